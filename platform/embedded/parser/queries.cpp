#include <utility>

#include "platform/embedded/parser/grammar.h"
#include "platform/embedded/refusals.h"

namespace ovindra::embedded {

using namespace syntax;

Query Grammar::ReadQuery() {
  const TokenReader::Nesting nesting(reader_);
  Query query;
  query.selects.push_back(ReadSelect());
  while (reader_.TakeWord("union")) {
    query.keeps_duplicates.push_back(reader_.TakeWord("all"));
    query.selects.push_back(ReadSelect());
  }
  if (reader_.AtWord("intersect") || reader_.AtWord("except")) {
    throw NotSupported(reader_.Here().text, reader_.Here().offset);
  }
  if (reader_.TakeWord("order")) query.order_by = ReadOrderBy();
  return query;
}

Select Grammar::ReadSelect() {
  reader_.ExpectWord("select");
  Select select;
  select.is_distinct = reader_.TakeWord("distinct");
  if (!select.is_distinct) reader_.TakeWord("all");
  if (reader_.TakeWord("top")) {
    select.top = reader_.AtSymbol("(") ? ReadParenthesized() : ReadLiteral();
    if (reader_.AtWord("percent")) throw NotSupported(reader_.Here().text, reader_.Here().offset);
  }
  do {
    select.items.push_back(ReadSelectItem());
  } while (reader_.TakeSymbol(","));
  if (reader_.TakeWord("into")) select.into = reader_.TakeObjectName();
  if (reader_.TakeWord("from")) select.from = ReadFromList();
  if (reader_.TakeWord("where")) select.where = ReadExpression();
  if (reader_.TakeWord("group")) {
    reader_.ExpectWord("by");
    select.group_by = ReadExpressionList();
  }
  if (reader_.TakeWord("having")) select.having = ReadExpression();
  return select;
}

SelectItem Grammar::ReadSelectItem() {
  SelectItem item;
  if (reader_.TakeSymbol("*")) {
    item.star = ColumnName{};
    return item;
  }
  // alias = expression; a comparison is no value, so the two can't be taken for one another.
  const Token& next = reader_.Next();
  if (reader_.AtName() && next.kind == TokenKind::kSymbol && next.text == "=") {
    item.alias = reader_.TakeName();
    reader_.ExpectSymbol("=");
    item.value = ReadExpression();
    return item;
  }
  const Token& after = reader_.Next(2);
  if (reader_.AtName() && next.text == "." && after.kind == TokenKind::kSymbol && after.text == "*") {
    item.star = ColumnName{{}, reader_.TakeName().text, {}};
    reader_.ExpectSymbol(".");
    reader_.ExpectSymbol("*");
    return item;
  }
  item.value = ReadExpression();
  item.alias = ReadAlias();
  return item;
}

/// A name behind an expression or a table, with or without the word as. A text may stand as one behind an
/// expression.
Name Grammar::ReadAlias() {
  if (reader_.TakeWord("as")) {
    if (reader_.Here().kind != TokenKind::kText) return reader_.TakeName();
    const Token token = reader_.Take();
    return {Unquoted(token), token.offset};
  }
  return reader_.AtName() ? reader_.TakeName() : Name{};
}

FromList Grammar::ReadFromList() {
  FromList list;
  do {
    list.push_back(ReadJoinedTable());
  } while (reader_.TakeSymbol(","));
  return list;
}

/// A chain of joins becomes a tree as deep as it is long.
constexpr int kMostJoins = 32;

TableSourcePtr Grammar::ReadJoinedTable() {
  TableSourcePtr left = ReadTableSource();
  for (int count = 0;; ++count) {
    const auto kind = TakeJoin();
    if (!kind) return left;
    if (count >= kMostJoins) throw NestedTooDeeply();
    Join join{*kind, std::move(left), ReadTableSource(), nullptr};
    if (*kind != JoinKind::kCross) {
      reader_.ExpectWord("on");
      join.condition = ReadExpression();
    }
    left = std::make_unique<TableSource>(TableSource{std::move(join), {}});
  }
}

std::optional<JoinKind> Grammar::TakeJoin() {
  if (reader_.TakeWord("join")) return JoinKind::kInner;
  if (reader_.TakeWord("inner")) {
    reader_.ExpectWord("join");
    return JoinKind::kInner;
  }
  if (reader_.TakeWord("left")) {
    reader_.TakeWord("outer");
    reader_.ExpectWord("join");
    return JoinKind::kLeft;
  }
  if (reader_.TakeWord("cross")) {
    reader_.ExpectWord("join");
    return JoinKind::kCross;
  }
  if (reader_.AtWord("right") || reader_.AtWord("full")) {
    throw NotSupported(reader_.Here().text, reader_.Here().offset);
  }
  return {};
}

TableSourcePtr Grammar::ReadTableSource() {
  auto source = std::make_unique<TableSource>();
  if (reader_.AtSymbol("(")) {
    const TokenReader::Nesting nesting(reader_);
    reader_.ExpectSymbol("(");
    if (!reader_.AtWord("select")) {
      source = ReadJoinedTable();
      reader_.ExpectSymbol(")");
      return source;
    }
    source->node = DerivedTable{std::make_unique<Query>(ReadQuery())};
    reader_.ExpectSymbol(")");
    source->alias = ReadAlias();
    // A derived table has no name of its own.
    if (source->alias.text.empty()) throw reader_.Refusal();
    return source;
  }
  source->node = NamedTable{reader_.TakeObjectName()};
  source->alias = ReadAlias();
  return source;
}

std::vector<OrderItem> Grammar::ReadOrderBy() {
  reader_.ExpectWord("by");
  std::vector<OrderItem> items;
  do {
    OrderItem item{ReadExpression(), false};
    item.is_descending = reader_.TakeWord("desc");
    if (!item.is_descending) reader_.TakeWord("asc");
    items.push_back(std::move(item));
  } while (reader_.TakeSymbol(","));
  return items;
}

}  // namespace ovindra::embedded
