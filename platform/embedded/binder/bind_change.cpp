#include <algorithm>
#include <utility>

#include "base/text/utf8.h"
#include "platform/embedded/binder/coercion.h"
#include "platform/embedded/binder/expression_binder.h"
#include "platform/embedded/refusals.h"

namespace ovindra::embedded {
namespace {

using bound::ExpressionPtr;

bool TakesIdentity(const CatalogTable& table, const BindContext& context) {
  return SameWithoutCase(context.identity_insert, table.name);
}

/// The columns that an insert without a column list fills.
std::vector<const CatalogColumn*> FilledColumns(const CatalogTable& table) {
  std::vector<const CatalogColumn*> columns;
  for (const CatalogColumn& column : table.columns) {
    if (!column.is_identity && !column.is_computed) columns.push_back(&column);
  }
  return columns;
}

std::vector<const CatalogColumn*> ListedColumns(const syntax::Insert& insert, const CatalogTable& table,
                                                const BindContext& context) {
  std::vector<const CatalogColumn*> columns;
  for (const syntax::Name& name : insert.columns) {
    const CatalogColumn& column = ColumnNamed(table, name.text);
    if (column.is_computed) throw ComputedColumn(column.name);
    if (column.is_identity && !TakesIdentity(table, context)) throw ExplicitIdentity(table.name);
    if (std::find(columns.begin(), columns.end(), &column) != columns.end())
      throw ColumnSetTwice(column.name);
    columns.push_back(&column);
  }
  return columns;
}

bound::ExpressionList BindRow(const syntax::ExpressionList& row,
                              const std::vector<const CatalogColumn*>& columns, bool has_list,
                              BindContext& context) {
  if (row.size() != columns.size()) {
    if (!has_list) throw WrongValueCount();
    throw row.size() > columns.size() ? FewerColumnsThanValues() : MoreColumnsThanValues();
  }
  const Scope nothing(nullptr);
  bound::ExpressionList values;
  for (std::size_t i = 0; i < row.size(); ++i) {
    ExpressionPtr value = ExpressionBinder(context, nothing, Aggregates::kRefused).Value(*row[i]);
    values.push_back(Coerce(std::move(value), columns[i]->type, Purpose::kStored, context));
  }
  return values;
}

/// The query of an insert, its columns made those of the table.
bound::QueryPtr BindRows(const syntax::Query& query, const std::vector<const CatalogColumn*>& columns,
                         bool has_list, BindContext& context) {
  auto rows = std::make_unique<bound::Query>(BindQuery(query, context, nullptr, QueryPlace::kOutermost));
  if (query.selects.front().into) throw IntoInside();
  if (rows->columns.size() != columns.size()) {
    if (!has_list) throw WrongValueCount();
    throw rows->columns.size() > columns.size() ? FewerColumnsThanValues() : MoreColumnsThanValues();
  }
  for (bound::Select& select : rows->selects) {
    for (std::size_t i = 0; i < columns.size(); ++i) {
      select.items[i] = Coerce(std::move(select.items[i]), columns[i]->type, Purpose::kStored, context);
    }
  }
  return rows;
}

/// The target among the sources of an update or a delete: the one that bears its name there, or, when none
/// does, the table of that name as one source more.
struct Target {
  const CatalogTable* table;
  std::size_t source;
};

const bound::Source* SourceNumbered(const bound::Source& source, std::size_t number) {
  if (source.number == number) return &source;
  const auto* join = std::get_if<bound::Join>(&source.node);
  if (join == nullptr) return nullptr;
  const bound::Source* left = SourceNumbered(*join->left, number);
  return left != nullptr ? left : SourceNumbered(*join->right, number);
}

Target BindTarget(const syntax::ObjectName& name, std::vector<bound::SourcePtr>& from, Scope& scope,
                  BindContext& context) {
  const ScopeTable* exposed = name.schema.empty() ? scope.TableNamed(name.name.text) : nullptr;
  if (exposed != nullptr) {
    for (const bound::SourcePtr& each : from) {
      const bound::Source* source = SourceNumbered(*each, exposed->source);
      const auto* table = source == nullptr ? nullptr : std::get_if<bound::Table>(&source->node);
      if (table == nullptr) continue;
      return {&ChangeableTable({{}, {table->name, 0}}, context), exposed->source};
    }
    throw NotChangeable(name.name.text);
  }
  const CatalogTable& table = ChangeableTable(name, context);
  const std::size_t number = context.NewSource();
  scope.AddTable(table, name.name.text, number);
  from.push_back(std::make_unique<bound::Source>(bound::Source{bound::Table{table.name}, number}));
  return {&table, number};
}

}  // namespace

const CatalogColumn& ColumnNamed(const CatalogTable& table, const std::string& name) {
  const CatalogColumn* column = table.Find(name);
  if (column == nullptr) throw UnknownColumn(name);
  return *column;
}

const CatalogTable& ChangeableTable(const syntax::ObjectName& name, BindContext& context) {
  const CatalogTable& table = TableNamed(name, context);
  if (table.is_view) throw NotChangeable(name.Written());
  return table;
}

bound::Insert BindInsert(const syntax::Insert& insert, BindContext& context) {
  const CatalogTable& table = ChangeableTable(insert.table, context);
  const bool has_list = !insert.columns.empty();
  if (!has_list && table.Identity() != nullptr && TakesIdentity(table, context)) {
    throw IdentityNeedsColumnList(table.name);
  }
  const auto columns = has_list ? ListedColumns(insert, table, context) : FilledColumns(table);
  bound::Insert result{table.name, {}, {}, nullptr};
  for (const CatalogColumn* column : columns) result.columns.push_back(column->name);
  for (const syntax::ExpressionList& row : insert.rows) {
    result.rows.push_back(BindRow(row, columns, has_list, context));
  }
  if (insert.query) result.query = BindRows(*insert.query, columns, has_list, context);
  return result;
}

bound::Update BindUpdate(const syntax::Update& update, BindContext& context) {
  Scope scope(nullptr);
  bound::Update result{{}, 0, {}, BindFrom(update.from, context, scope), nullptr};
  const Target target = BindTarget(update.target, result.from, scope, context);
  result.table = target.table->name;
  result.target = target.source;
  for (const syntax::Assignment& assignment : update.assignments) {
    const CatalogColumn& column = ColumnNamed(*target.table, assignment.column.text);
    if (column.is_computed) throw ComputedColumn(column.name);
    if (column.is_identity) throw IdentityUpdate(column.name);
    const auto is_set = [&](const bound::Assignment& each) { return each.column == column.name; };
    if (std::any_of(result.assignments.begin(), result.assignments.end(), is_set))
      throw ColumnSetTwice(column.name);
    if (!assignment.table.text.empty()) {
      // The name before the column must be the target's, or the statement means something else.
      const Scope::Found named = scope.Resolve({{}, assignment.table.text, assignment.column.text});
      if (named.table->source != target.source) {
        throw UnboundIdentifier(assignment.table.text + "." + assignment.column.text);
      }
    }
    ExpressionPtr value = ExpressionBinder(context, scope, Aggregates::kRefused).Value(*assignment.value);
    result.assignments.push_back(
        {column.name, Coerce(std::move(value), column.type, Purpose::kStored, context)});
  }
  if (update.where)
    result.where = ExpressionBinder(context, scope, Aggregates::kRefused).Condition(*update.where);
  return result;
}

bound::Delete BindDelete(const syntax::Delete& node, BindContext& context) {
  Scope scope(nullptr);
  bound::Delete result{{}, 0, BindFrom(node.from, context, scope), nullptr};
  const Target target = BindTarget(node.target, result.from, scope, context);
  result.table = target.table->name;
  result.target = target.source;
  if (node.where)
    result.where = ExpressionBinder(context, scope, Aggregates::kRefused).Condition(*node.where);
  return result;
}

}  // namespace ovindra::embedded
