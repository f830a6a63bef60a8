#include <algorithm>
#include <utility>

#include "base/text/utf8.h"
#include "platform/embedded/binder/coercion.h"
#include "platform/embedded/binder/expression_binder.h"
#include "platform/embedded/refusals.h"

namespace ovindra::embedded {
namespace {

using bound::ExpressionPtr;

/// The columns of a table that is being defined, as a computed column and a partial index see them.
Scope OwnColumns(const std::string& table, const std::vector<bound::ColumnDefinition>& columns) {
  Scope scope(nullptr);
  ScopeTable own{table, kOwnTable, {}};
  for (const bound::ColumnDefinition& column : columns) {
    own.columns.push_back({column.name, column.name, column.type, column.allows_null, true});
  }
  scope.Add(std::move(own));
  return scope;
}

bound::ColumnDefinition BindColumn(const syntax::ColumnDefinition& column, BindContext& context) {
  bound::ColumnDefinition result;
  result.name = column.name.text;
  if (column.type) result.type = ResolveType(*column.type);
  result.is_identity = column.is_identity;
  result.allows_null = column.allows_null.value_or(true) && !column.is_identity;
  if (column.is_identity && result.type.kind != TypeKind::kInteger)
    throw NotSupported("identity", column.name.offset);
  if (column.default_value) {
    const Scope nothing(nullptr);
    ExpressionPtr value =
        ExpressionBinder(context, nothing, Aggregates::kRefused).Value(*column.default_value);
    result.default_value = Coerce(std::move(value), result.type, Purpose::kStored, context);
  }
  return result;
}

/// The computed columns, which see the others; what they compute gives their types.
void BindComputed(const std::vector<syntax::ColumnDefinition>& definitions, const std::string& table,
                  std::vector<bound::ColumnDefinition>& columns, BindContext& context) {
  const Scope scope = OwnColumns(table, columns);
  for (std::size_t i = 0; i < definitions.size(); ++i) {
    if (!definitions[i].computed) continue;
    ExpressionPtr value =
        ExpressionBinder(context, scope, Aggregates::kRefused).Value(*definitions[i].computed);
    columns[i].type = value->type;
    columns[i].computed = Coerce(std::move(value), columns[i].type, Purpose::kStored, context);
  }
}

void RequireUnique(const std::vector<bound::ColumnDefinition>& columns, const std::string& table) {
  for (auto each = columns.begin(); each != columns.end(); ++each) {
    const auto same = [&](const bound::ColumnDefinition& other) {
      return SameWithoutCase(other.name, each->name);
    };
    if (std::any_of(columns.begin(), each, same)) throw ColumnTwice(each->name, table);
  }
}

bound::ColumnDefinition& DefinitionNamed(std::vector<bound::ColumnDefinition>& columns,
                                         const std::string& name) {
  const auto found = std::find_if(columns.begin(), columns.end(), [&](const bound::ColumnDefinition& each) {
    return SameWithoutCase(each.name, name);
  });
  if (found == columns.end()) throw UnknownColumn(name);
  return *found;
}

/// The name of a key that was given none.
std::string KeyName(const bound::KeyDefinition& key, const std::string& table) {
  std::string name = (key.is_primary ? "PK_" : "UQ_") + table;
  if (!key.is_primary) {
    for (const std::string& column : key.columns) name += "_" + column;
  }
  return name;
}

std::vector<bound::KeyDefinition> BindKeys(const std::vector<syntax::KeyDefinition>& definitions,
                                           const std::string& table,
                                           std::vector<bound::ColumnDefinition>& columns) {
  std::vector<bound::KeyDefinition> keys;
  for (const syntax::KeyDefinition& definition : definitions) {
    bound::KeyDefinition key{definition.constraint.text, definition.is_primary, {}};
    const auto is_primary = [](const bound::KeyDefinition& each) { return each.is_primary; };
    if (key.is_primary && std::any_of(keys.begin(), keys.end(), is_primary)) throw SecondPrimaryKey(table);
    for (const syntax::Name& name : definition.columns) {
      bound::ColumnDefinition& column = DefinitionNamed(columns, name.text);
      if (key.is_primary) column.allows_null = false;
      key.columns.push_back(column.name);
    }
    if (key.constraint.empty()) key.constraint = KeyName(key, table);
    keys.push_back(std::move(key));
  }
  return keys;
}

std::vector<bound::ColumnDefinition> BindColumns(const std::vector<syntax::ColumnDefinition>& definitions,
                                                 BindContext& context) {
  std::vector<bound::ColumnDefinition> columns;
  columns.reserve(definitions.size());
  for (const syntax::ColumnDefinition& column : definitions) columns.push_back(BindColumn(column, context));
  return columns;
}

/// The columns of a table that is there, as definitions.
std::vector<bound::ColumnDefinition> DefinitionsOf(const CatalogTable& table) {
  std::vector<bound::ColumnDefinition> columns;
  for (const CatalogColumn& column : table.columns) {
    bound::ColumnDefinition definition;
    definition.name = column.name;
    definition.type = column.type;
    definition.allows_null = column.allows_null;
    columns.push_back(std::move(definition));
  }
  return columns;
}

}  // namespace

void RequireNewName(const syntax::Name& name, BindContext& context) {
  if (Catalog::IsReserved(name.text)) throw NotSupported(name.text, name.offset);
  const bool is_taken =
      context.catalog.Find(name.text) != nullptr || !context.catalog.TableOfIndex(name.text).empty();
  if (is_taken) throw TableExists(name.text);
}

bound::CreateTable BindCreateTable(const syntax::CreateTable& table, BindContext& context) {
  const std::string& name = table.table.name.text;
  RequireNewName(table.table.name, context);
  bound::CreateTable result{name, BindColumns(table.columns, context), {}};
  RequireUnique(result.columns, name);
  BindComputed(table.columns, name, result.columns, context);
  result.keys = BindKeys(table.keys, name, result.columns);
  const auto is_identity = [](const bound::ColumnDefinition& each) { return each.is_identity; };
  if (std::count_if(result.columns.begin(), result.columns.end(), is_identity) > 1)
    throw SecondIdentity(name);
  return result;
}

bound::AddColumns BindAddColumns(const syntax::AddColumns& added, BindContext& context) {
  const CatalogTable& table = ChangeableTable(added.table, context);
  bound::AddColumns result{table.name, BindColumns(added.columns, context), {}};
  std::vector<bound::ColumnDefinition> all = DefinitionsOf(table);
  for (std::size_t i = 0; i < result.columns.size(); ++i) {
    const bound::ColumnDefinition& column = result.columns[i];
    if (column.is_identity) throw NotSupported("identity", added.columns[i].name.offset);
    if (added.columns[i].computed) throw NotSupported("as", added.columns[i].name.offset);
    if (!column.allows_null && !column.default_value) throw AddedColumnNeedsValue(column.name, table.name);
    bound::ColumnDefinition copy;
    copy.name = column.name;
    copy.type = column.type;
    all.push_back(std::move(copy));
  }
  RequireUnique(all, table.name);
  result.keys = BindKeys(added.keys, table.name, all);
  for (std::size_t i = 0; i < result.keys.size(); ++i) {
    if (result.keys[i].is_primary) throw NotSupported("primary", added.keys[i].constraint.offset);
  }
  return result;
}

bound::CreateView BindCreateView(const syntax::CreateView& view, BindContext& context) {
  const std::string& name = view.view.name.text;
  RequireNewName(view.view.name, context);
  if (!view.query->order_by.empty() && !view.query->selects.front().top) throw OrderInside();
  if (view.query->selects.front().into) throw IntoInside();
  bound::CreateView result{name, BindQuery(*view.query, context, nullptr, QueryPlace::kOutermost)};
  std::vector<bound::ResultColumn>& columns = result.query.columns;
  if (!view.columns.empty() && view.columns.size() != columns.size()) throw WrongValueCount();
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (!view.columns.empty()) columns[i].name = view.columns[i].text;
    if (columns[i].name.empty()) throw ColumnWithoutName(i + 1, name);
    const auto same = [&](const bound::ResultColumn& each) {
      return SameWithoutCase(each.name, columns[i].name);
    };
    if (std::any_of(columns.begin(), columns.begin() + static_cast<std::ptrdiff_t>(i), same)) {
      throw ColumnTwiceInQuery(columns[i].name, name);
    }
  }
  return result;
}

bound::CreateIndex BindCreateIndex(const syntax::CreateIndex& index, BindContext& context) {
  const CatalogTable& table = ChangeableTable(index.table, context);
  bound::CreateIndex result{index.index.text, index.is_unique, table.name, {}, nullptr};
  if (!context.catalog.TableOfIndex(result.index).empty()) throw IndexExists(result.index, table.name);
  RequireNewName(index.index, context);
  for (const syntax::IndexColumn& column : index.columns) {
    result.columns.push_back({ColumnNamed(table, column.name.text).name, column.is_descending});
  }
  for (const syntax::Name& name : index.included) {
    const CatalogColumn& column = ColumnNamed(table, name.text);
    // What is included does not keep rows apart.
    if (!index.is_unique) result.columns.push_back({column.name, false});
  }
  if (index.where) {
    const Scope scope = OwnColumns(table.name, DefinitionsOf(table));
    result.where = ExpressionBinder(context, scope, Aggregates::kRefused).Condition(*index.where);
  }
  return result;
}

bound::Drop BindDrop(const syntax::Drop& drop, BindContext& context) {
  bound::Drop result{drop.kind, {}};
  for (const syntax::ObjectName& object : drop.objects) {
    // An index is written behind its table: table.index.
    const std::string& name = object.name.text;
    const bool is_view = drop.kind == syntax::DropKind::kView;
    bool is_there = false;
    if (drop.kind == syntax::DropKind::kIndex) {
      is_there = !context.catalog.TableOfIndex(name).empty();
    } else {
      const CatalogTable* table = context.catalog.Find(name);
      is_there = table != nullptr && table->is_view == is_view;
    }
    if (is_there) {
      result.names.push_back(name);
    } else if (!drop.if_exists) {
      constexpr std::string_view kKinds[] = {"table", "view", "index"};
      throw NoSuchTableToDrop(kKinds[static_cast<std::size_t>(drop.kind)], object.Written());
    }
  }
  return result;
}

}  // namespace ovindra::embedded
