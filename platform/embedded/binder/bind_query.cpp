#include <algorithm>
#include <charconv>
#include <utility>

#include "base/text/utf8.h"
#include "platform/embedded/binder/coercion.h"
#include "platform/embedded/binder/expression_binder.h"
#include "platform/embedded/binder/grouping.h"
#include "platform/embedded/refusals.h"

namespace ovindra::embedded {
namespace {

using bound::ExpressionPtr;

constexpr std::string_view kOwner = "dbo";

/// A select with the names of its columns, while it is bound.
struct BoundSelect {
  bound::Select select;
  std::vector<std::string> names;
};

std::string NameOf(const syntax::SelectItem& item) {
  if (!item.alias.text.empty()) return item.alias.text;
  const auto* column = std::get_if<syntax::ColumnName>(&item.value->node);
  return column == nullptr ? std::string() : column->column;
}

/// All columns of the sources, or of the one that is named.
void AddStar(const syntax::ColumnName& star, const Scope& scope, BoundSelect& result) {
  if (!star.table.empty() && scope.TableNamed(star.table) == nullptr)
    throw UnboundIdentifier(star.table + ".*");
  for (const ScopeTable& table : scope.tables()) {
    if (!star.table.empty() && !SameWithoutCase(table.exposed_name, star.table)) continue;
    for (const ScopeColumn& column : table.columns) {
      bound::Expression value{bound::Column{table.source, column.output}, column.type};
      value.allows_null = column.allows_null;
      value.is_trimmed = column.is_trimmed;
      result.select.items.push_back(MakeExpression(std::move(value)));
      result.names.push_back(column.name);
    }
  }
}

class SelectBinder {
 public:
  SelectBinder(const syntax::Select& select, BindContext& context, const Scope* outer)
      : syntax_(select), context_(context), scope_(outer), first_source_(context.sources + 1) {}

  BoundSelect Run() {
    result_.select.is_distinct = syntax_.is_distinct;
    result_.select.from = BindFrom(syntax_.from, context_, scope_);
    BindGroups();
    BindItems();
    if (syntax_.where) {
      result_.select.where =
          ExpressionBinder(context_, scope_, Aggregates::kRefused).Condition(*syntax_.where);
    }
    if (syntax_.having) {
      ExpressionBinder binder(context_, scope_, Aggregates::kAllowed);
      result_.select.having = binder.Condition(*syntax_.having);
      if (!is_grouped_ && !binder.has_aggregate()) throw GroupedByConstant();
      is_grouped_ = true;
    }
    if (is_grouped_) {
      for (const ExpressionPtr& item : result_.select.items) Require(*item);
      if (result_.select.having) Require(*result_.select.having);
    }
    if (syntax_.top) BindTop();
    return std::move(result_);
  }

  /// An expression of the order, which sees the sources of the select.
  ExpressionPtr OrderValue(const syntax::Expression& expression, const bound::Select& select) {
    ExpressionBinder binder(context_, scope_, is_grouped_ ? Aggregates::kAllowed : Aggregates::kRefused);
    ExpressionPtr value = binder.Value(expression);
    if (is_grouped_) RequireGrouped(*value, select.group_by, first_source_);
    return value;
  }

 private:
  void Require(const bound::Expression& expression) const {
    RequireGrouped(expression, result_.select.group_by, first_source_);
  }

  void BindGroups() {
    for (const syntax::ExpressionPtr& group : syntax_.group_by) {
      ExpressionPtr value = ExpressionBinder(context_, scope_, Aggregates::kRefused).Value(*group);
      if (std::holds_alternative<syntax::Literal>(group->node)) throw GroupedByConstant();
      if (value->type.IsText()) value = CoerceCompared(std::move(value), TextType(kMaxText), context_);
      result_.select.group_by.push_back(std::move(value));
    }
    is_grouped_ = !syntax_.group_by.empty();
  }

  void BindItems() {
    if (syntax_.from.empty() && syntax_.items.front().star) throw StarWithoutTable();
    for (const syntax::SelectItem& item : syntax_.items) {
      if (item.star) {
        AddStar(*item.star, scope_, result_);
        continue;
      }
      ExpressionBinder binder(context_, scope_, Aggregates::kAllowed);
      ExpressionPtr value = binder.Value(*item.value);
      is_grouped_ = is_grouped_ || binder.has_aggregate();
      if (syntax_.is_distinct && value->type.IsText()) {
        const SqlType type = value->type;
        value = Coerce(std::move(value), type, Purpose::kCompared, context_);
      }
      result_.select.items.push_back(std::move(value));
      result_.names.push_back(NameOf(item));
    }
  }

  void BindTop() {
    const Scope nothing(nullptr);
    ExpressionBinder binder(context_, nothing, Aggregates::kRefused);
    result_.select.top = Coerce(binder.Value(*syntax_.top), kBigIntType, Purpose::kComputed, context_);
  }

  const syntax::Select& syntax_;
  BindContext& context_;
  Scope scope_;
  std::size_t first_source_;
  bool is_grouped_ = false;
  BoundSelect result_;
};

/// The columns of a query: of its only select, or of those that a union joins, which must agree.
void BindColumns(std::vector<BoundSelect>& selects, bound::Query& query, BindContext& context) {
  BoundSelect& first = selects.front();
  for (std::size_t i = 0; i < first.select.items.size(); ++i) {
    bound::ResultColumn column{first.names[i], {}, false, true};
    for (const BoundSelect& each : selects) {
      if (each.select.items.size() != first.select.items.size()) throw UnequalUnion();
      column.type = CommonType(column.type, each.select.items[i]->type);
      column.allows_null = column.allows_null || each.select.items[i]->allows_null;
    }
    for (BoundSelect& each : selects) {
      ExpressionPtr& item = each.select.items[i];
      const bool is_compared = selects.size() > 1 && column.type.IsText();
      if (selects.size() > 1) {
        item = Coerce(std::move(item), column.type, is_compared ? Purpose::kCompared : Purpose::kComputed,
                      context);
      }
      column.is_trimmed = column.is_trimmed && item->is_trimmed;
    }
    query.columns.push_back(std::move(column));
  }
}

class OrderBinder {
 public:
  OrderBinder(bound::Query& query, SelectBinder& select) : query_(query), select_(select) {}

  bound::OrderItem Bind(const syntax::OrderItem& item) {
    bound::OrderItem result{ColumnOf(*item.value), nullptr, item.is_descending};
    if (result.column) return result;
    if (query_.selects.size() > 1) throw OrderNotInUnion();
    result.value = select_.OrderValue(*item.value, query_.selects.front());
    const bound::ExpressionList& items = query_.selects.front().items;
    const auto same = std::find_if(items.begin(), items.end(),
                                   [&](const ExpressionPtr& each) { return IsSame(*each, *result.value); });
    if (same != items.end()) {
      result.column = static_cast<std::size_t>(same - items.begin());
    } else if (query_.selects.front().is_distinct) {
      throw OrderNotInDistinct();
    }
    return result;
  }

 private:
  /// The column that a number or a bare name means.
  std::optional<std::size_t> ColumnOf(const syntax::Expression& expression) const {
    if (const auto* literal = std::get_if<syntax::Literal>(&expression.node)) {
      std::size_t number = 0;
      const std::string& text = literal->text;
      const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
      if (literal->kind != syntax::LiteralKind::kInteger || read.ec != std::errc{} || number < 1 ||
          number > query_.columns.size()) {
        throw OrderPositionOutOfRange(text);
      }
      return number - 1;
    }
    const auto* name = std::get_if<syntax::ColumnName>(&expression.node);
    if (name == nullptr || !name->table.empty()) return {};
    return ColumnNamed(name->column);
  }

  /// Of two columns of one name only one and the same will do.
  std::optional<std::size_t> ColumnNamed(const std::string& name) const {
    std::optional<std::size_t> found;
    const bound::ExpressionList& items = query_.selects.front().items;
    for (std::size_t i = 0; i < query_.columns.size(); ++i) {
      if (!SameWithoutCase(query_.columns[i].name, name)) continue;
      if (found && !IsSame(*items[*found], *items[i])) throw AmbiguousColumn(name);
      if (!found) found = i;
    }
    return found;
  }

  bound::Query& query_;
  SelectBinder& select_;
};

bound::SourcePtr BindSource(const syntax::TableSource& source, BindContext& context, Scope& scope);

bound::SourcePtr BindNamed(const syntax::NamedTable& named, const syntax::Name& alias, BindContext& context,
                           Scope& scope) {
  const CatalogTable& table = TableNamed(named.table, context);
  auto result = std::make_unique<bound::Source>(bound::Source{bound::Table{table.name}, context.NewSource()});
  scope.AddTable(table, alias.text.empty() ? named.table.name.text : alias.text, result->number);
  return result;
}

bound::SourcePtr BindDerived(const syntax::DerivedTable& derived, const syntax::Name& alias,
                             BindContext& context, Scope& scope) {
  bound::Query query = BindQuery(*derived.query, context, scope.outer(), QueryPlace::kInside);
  ScopeTable table{alias.text, context.NewSource(), {}};
  for (std::size_t i = 0; i < query.columns.size(); ++i) {
    const bound::ResultColumn& column = query.columns[i];
    if (column.name.empty()) throw ColumnWithoutName(i + 1, alias.text);
    const bool is_twice =
        std::any_of(table.columns.begin(), table.columns.end(),
                    [&](const ScopeColumn& each) { return SameWithoutCase(each.name, column.name); });
    if (is_twice) throw ColumnTwiceInQuery(column.name, alias.text);
    table.columns.push_back(
        {column.name, "c" + std::to_string(i + 1), column.type, column.allows_null, column.is_trimmed});
  }
  auto result = std::make_unique<bound::Source>(
      bound::Source{bound::Derived{std::make_unique<bound::Query>(std::move(query))}, table.source});
  scope.Add(std::move(table));
  return result;
}

bound::SourcePtr BindJoin(const syntax::Join& join, BindContext& context, Scope& scope) {
  bound::Join result{};
  result.kind = join.kind;
  result.left = BindSource(*join.left, context, scope);
  const std::size_t mark = scope.Mark();
  result.right = BindSource(*join.right, context, scope);
  if (join.condition) {
    result.condition = ExpressionBinder(context, scope, Aggregates::kRefused).Condition(*join.condition);
  }
  if (join.kind == syntax::JoinKind::kLeft) scope.AllowNullsFrom(mark);
  auto source = std::make_unique<bound::Source>();
  source->node = std::move(result);
  return source;
}

bound::SourcePtr BindSource(const syntax::TableSource& source, BindContext& context, Scope& scope) {
  if (const auto* named = std::get_if<syntax::NamedTable>(&source.node)) {
    return BindNamed(*named, source.alias, context, scope);
  }
  if (const auto* derived = std::get_if<syntax::DerivedTable>(&source.node)) {
    return BindDerived(*derived, source.alias, context, scope);
  }
  return BindJoin(std::get<syntax::Join>(source.node), context, scope);
}

}  // namespace

const CatalogTable& TableNamed(const syntax::ObjectName& name, BindContext& context) {
  const bool is_own = name.schema.empty() || SameWithoutCase(name.schema, kOwner);
  const CatalogTable* table = is_own ? context.catalog.Find(name.name.text) : nullptr;
  if (table == nullptr) throw UnknownTable(name.Written());
  return *table;
}

std::vector<bound::SourcePtr> BindFrom(const syntax::FromList& from, BindContext& context, Scope& scope) {
  std::vector<bound::SourcePtr> sources;
  for (const syntax::TableSourcePtr& source : from) sources.push_back(BindSource(*source, context, scope));
  return sources;
}

bound::Query BindQuery(const syntax::Query& query, BindContext& context, const Scope* outer,
                       QueryPlace place) {
  std::vector<SelectBinder> binders;
  std::vector<BoundSelect> selects;
  binders.reserve(query.selects.size());
  for (const syntax::Select& select : query.selects) {
    if (select.into && place == QueryPlace::kInside) throw IntoInside();
    selects.push_back(binders.emplace_back(select, context, outer).Run());
  }
  if (place == QueryPlace::kInside && !query.order_by.empty() && !query.selects.front().top)
    throw OrderInside();
  bound::Query result;
  result.keeps_duplicates = query.keeps_duplicates;
  BindColumns(selects, result, context);
  for (BoundSelect& each : selects) result.selects.push_back(std::move(each.select));
  OrderBinder order(result, binders.front());
  for (const syntax::OrderItem& item : query.order_by) result.order_by.push_back(order.Bind(item));
  return result;
}

bound::SelectInto BindSelectInto(const syntax::Query& query, BindContext& context) {
  const syntax::ObjectName& name = *query.selects.front().into;
  RequireNewName(name.name, context);
  bound::SelectInto result{name.name.text, BindQuery(query, context, nullptr, QueryPlace::kOutermost)};
  std::vector<bound::ResultColumn>& columns = result.query.columns;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (columns[i].name.empty()) throw ColumnWithoutName(i + 1, name.name.text);
    if (columns[i].type.kind == TypeKind::kNull) columns[i].type = kIntType;
    const auto same = [&](const bound::ResultColumn& each) {
      return SameWithoutCase(each.name, columns[i].name);
    };
    if (std::any_of(columns.begin(), columns.begin() + static_cast<std::ptrdiff_t>(i), same)) {
      throw ColumnTwice(columns[i].name, name.name.text);
    }
    for (bound::Select& select : result.query.selects) {
      select.items[i] = Coerce(std::move(select.items[i]), columns[i].type, Purpose::kStored, context);
    }
  }
  return result;
}

}  // namespace ovindra::embedded
