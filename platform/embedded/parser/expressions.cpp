#include <algorithm>
#include <utility>

#include "platform/embedded/parser/grammar.h"
#include "platform/embedded/parser/parser.h"
#include "platform/embedded/refusals.h"

namespace ovindra::embedded {
namespace {

using namespace syntax;

template <typename Node>
ExpressionPtr Make(std::size_t offset, Node node) {
  return std::make_unique<Expression>(Expression{std::move(node), offset});
}

struct OperatorSymbol {
  std::string_view symbol;
  Operator operation;
};

constexpr OperatorSymbol kComparisons[] = {
    {"=", Operator::kEqual},           {"<>", Operator::kNotEqual},
    {"!=", Operator::kNotEqual},       {"<", Operator::kLess},
    {"<=", Operator::kLessOrEqual},    {">", Operator::kGreater},
    {">=", Operator::kGreaterOrEqual}, {"!<", Operator::kGreaterOrEqual},
    {"!>", Operator::kLessOrEqual},
};
constexpr OperatorSymbol kSums[] = {{"+", Operator::kAdd}, {"-", Operator::kSubtract}};
constexpr OperatorSymbol kProducts[] = {
    {"*", Operator::kMultiply}, {"/", Operator::kDivide}, {"%", Operator::kModulo}};

std::optional<Operator> Find(std::span<const OperatorSymbol> symbols, const Token& token) {
  if (token.kind != TokenKind::kSymbol) return {};
  const auto found = std::find_if(symbols.begin(), symbols.end(),
                                  [&](const OperatorSymbol& each) { return each.symbol == token.text; });
  return found == symbols.end() ? std::nullopt : std::optional(found->operation);
}

/// A chain of + or * becomes a tree as deep as it is long.
constexpr int kLongestChain = 64;

}  // namespace

ExpressionPtr Grammar::ReadOr() {
  const std::size_t offset = reader_.Here().offset;
  ExpressionPtr first = ReadAnd();
  if (!reader_.AtWord("or")) return first;
  Junction junction{false, {}};
  junction.operands.push_back(std::move(first));
  while (reader_.TakeWord("or")) junction.operands.push_back(ReadAnd());
  return Make(offset, std::move(junction));
}

ExpressionPtr Grammar::ReadAnd() {
  const std::size_t offset = reader_.Here().offset;
  ExpressionPtr first = ReadNot();
  if (!reader_.AtWord("and")) return first;
  Junction junction{true, {}};
  junction.operands.push_back(std::move(first));
  while (reader_.TakeWord("and")) junction.operands.push_back(ReadNot());
  return Make(offset, std::move(junction));
}

ExpressionPtr Grammar::ReadNot() {
  const std::size_t offset = reader_.Here().offset;
  if (!reader_.TakeWord("not")) return ReadComparison();
  const TokenReader::Nesting nesting(reader_);
  return Make(offset, Not{ReadNot()});
}

ExpressionPtr Grammar::ReadComparison() {
  const std::size_t offset = reader_.Here().offset;
  if (reader_.TakeWord("exists")) {
    reader_.ExpectSymbol("(");
    const TokenReader::Nesting nesting(reader_);
    Exists exists{std::make_unique<Query>(ReadQuery())};
    reader_.ExpectSymbol(")");
    return Make(offset, std::move(exists));
  }
  ExpressionPtr left = ReadSum();
  if (const auto operation = Find(kComparisons, reader_.Here())) {
    reader_.Take();
    return Make(offset, Binary{*operation, std::move(left), ReadSum()});
  }
  if (reader_.TakeWord("is")) return ReadIsNull(std::move(left));
  const bool is_not = reader_.TakeWord("not");
  return ReadPredicate(std::move(left), is_not);
}

/// What may follow a value: between, like, in; nothing of it only when there was no "not".
ExpressionPtr Grammar::ReadPredicate(ExpressionPtr value, bool is_not) {
  const std::size_t offset = value->offset;
  if (reader_.TakeWord("between")) {
    ExpressionPtr low = ReadSum();
    reader_.ExpectWord("and");
    return Make(offset, Between{is_not, std::move(value), std::move(low), ReadSum()});
  }
  if (reader_.TakeWord("like")) {
    ExpressionPtr pattern = ReadSum();
    if (reader_.AtWord("escape")) throw NotSupported(reader_.Here().text, reader_.Here().offset);
    return Make(offset, Like{is_not, std::move(value), std::move(pattern)});
  }
  if (reader_.TakeWord("in")) return ReadIn(std::move(value), is_not);
  if (is_not) throw reader_.Refusal();
  return value;
}

ExpressionPtr Grammar::ReadIn(ExpressionPtr value, bool is_not) {
  const std::size_t offset = value->offset;
  reader_.ExpectSymbol("(");
  const TokenReader::Nesting nesting(reader_);
  ExpressionPtr in;
  if (reader_.AtWord("select")) {
    in = Make(offset, InQuery{is_not, std::move(value), std::make_unique<Query>(ReadQuery())});
  } else {
    in = Make(offset, InList{is_not, std::move(value), ReadExpressionList()});
  }
  reader_.ExpectSymbol(")");
  return in;
}

ExpressionPtr Grammar::ReadIsNull(ExpressionPtr value) {
  const std::size_t offset = value->offset;
  const bool is_not = reader_.TakeWord("not");
  reader_.ExpectWord("null");
  return Make(offset, IsNull{is_not, std::move(value)});
}

ExpressionPtr Grammar::ReadSum() {
  ExpressionPtr left = ReadProduct();
  for (int length = 1;; ++length) {
    const auto operation = Find(kSums, reader_.Here());
    if (!operation) return left;
    if (length >= kLongestChain) throw NestedTooDeeply();
    reader_.Take();
    const std::size_t offset = left->offset;
    left = Make(offset, Binary{*operation, std::move(left), ReadProduct()});
  }
}

ExpressionPtr Grammar::ReadProduct() {
  ExpressionPtr left = ReadSigned();
  for (int length = 1;; ++length) {
    const auto operation = Find(kProducts, reader_.Here());
    if (!operation) return left;
    if (length >= kLongestChain) throw NestedTooDeeply();
    reader_.Take();
    const std::size_t offset = left->offset;
    left = Make(offset, Binary{*operation, std::move(left), ReadSigned()});
  }
}

ExpressionPtr Grammar::ReadSigned() {
  const std::size_t offset = reader_.Here().offset;
  if (reader_.TakeSymbol("-")) {
    const TokenReader::Nesting nesting(reader_);
    return Make(offset, Negation{ReadSigned()});
  }
  if (reader_.TakeSymbol("+")) {
    const TokenReader::Nesting nesting(reader_);
    return ReadSigned();
  }
  return ReadPrimary();
}

ExpressionPtr Grammar::ReadPrimary() {
  const Token& here = reader_.Here();
  if (reader_.AtSymbol("(")) return ReadParenthesized();
  if (here.kind == TokenKind::kWord) {
    const Token& next = reader_.Next();
    const bool is_call = next.kind == TokenKind::kSymbol && next.text == "(";
    if (reader_.AtWord("case")) return ReadCase();
    if (is_call && reader_.AtWord("convert")) return ReadConvert();
    if (is_call && reader_.AtWord("cast")) return ReadCast();
    if (is_call && (reader_.AtName() || reader_.AtWord("left") || reader_.AtWord("right"))) return ReadCall();
    if (!reader_.AtWord("null")) return ReadColumnName();
  }
  if (here.kind == TokenKind::kQuotedName) return ReadColumnName();
  return ReadLiteral();
}

ExpressionPtr Grammar::ReadParenthesized() {
  const std::size_t offset = reader_.Here().offset;
  const TokenReader::Nesting nesting(reader_);
  reader_.ExpectSymbol("(");
  ExpressionPtr inner;
  if (reader_.AtWord("select")) {
    inner = Make(offset, Subquery{std::make_unique<Query>(ReadQuery())});
  } else {
    inner = ReadExpression();
  }
  reader_.ExpectSymbol(")");
  return inner;
}

ExpressionPtr Grammar::ReadCase() {
  const std::size_t offset = reader_.Take().offset;
  const TokenReader::Nesting nesting(reader_);
  Case node;
  if (!reader_.AtWord("when")) node.operand = ReadExpression();
  while (reader_.TakeWord("when")) {
    ExpressionPtr condition = ReadExpression();
    reader_.ExpectWord("then");
    node.branches.push_back({std::move(condition), ReadExpression()});
  }
  if (node.branches.empty()) throw reader_.Refusal();
  if (reader_.TakeWord("else")) node.otherwise = ReadExpression();
  reader_.ExpectWord("end");
  return Make(offset, std::move(node));
}

ExpressionPtr Grammar::ReadConvert() {
  const std::size_t offset = reader_.Take().offset;
  const TokenReader::Nesting nesting(reader_);
  reader_.ExpectSymbol("(");
  Conversion node{ReadType(), nullptr, {}};
  reader_.ExpectSymbol(",");
  node.value = ReadExpression();
  if (reader_.TakeSymbol(",")) node.style = reader_.TakeWholeNumber();
  reader_.ExpectSymbol(")");
  return Make(offset, std::move(node));
}

ExpressionPtr Grammar::ReadCast() {
  const std::size_t offset = reader_.Take().offset;
  const TokenReader::Nesting nesting(reader_);
  reader_.ExpectSymbol("(");
  ExpressionPtr value = ReadExpression();
  reader_.ExpectWord("as");
  TypeName type = ReadType();
  reader_.ExpectSymbol(")");
  return Make(offset, Conversion{std::move(type), std::move(value), {}});
}

ExpressionPtr Grammar::ReadCall() {
  const Token name = reader_.Take();
  const TokenReader::Nesting nesting(reader_);
  Call call{{std::string(name.text), name.offset}, false, false, {}};
  reader_.ExpectSymbol("(");
  if (reader_.TakeSymbol("*")) {
    call.has_star = true;
  } else if (!reader_.AtSymbol(")")) {
    call.is_distinct = reader_.TakeWord("distinct");
    if (!call.is_distinct) reader_.TakeWord("all");
    call.arguments = ReadExpressionList();
  }
  reader_.ExpectSymbol(")");
  if (reader_.AtWord("over")) throw NotSupported(reader_.Here().text, reader_.Here().offset);
  return Make(name.offset, std::move(call));
}

ExpressionPtr Grammar::ReadLiteral() {
  const Token token = reader_.Here();
  Literal literal{LiteralKind::kNull, Unquoted(token), ValueOf(token)};
  switch (token.kind) {
    case TokenKind::kInteger:
      literal.kind = LiteralKind::kInteger;
      break;
    case TokenKind::kDecimal:
      literal.kind = LiteralKind::kDecimal;
      break;
    case TokenKind::kFloat:
      literal.kind = LiteralKind::kFloat;
      break;
    case TokenKind::kText:
      literal.kind = LiteralKind::kText;
      break;
    default:
      if (!reader_.AtWord("null")) throw reader_.Refusal();
  }
  reader_.Take();
  return Make(token.offset, std::move(literal));
}

ExpressionPtr Grammar::ReadColumnName() {
  const Name first = reader_.TakeName();
  ColumnName column{{}, {}, first.text};
  while (reader_.TakeSymbol(".")) {
    if (!column.schema.empty()) throw reader_.Refusal();
    column.schema = std::move(column.table);
    column.table = std::move(column.column);
    column.column = reader_.TakeName().text;
  }
  return Make(first.offset, std::move(column));
}

ExpressionList Grammar::ReadExpressionList() {
  ExpressionList list;
  do {
    list.push_back(ReadExpression());
  } while (reader_.TakeSymbol(","));
  return list;
}

std::optional<std::size_t> Grammar::ValueOf(const Token& token) const {
  const auto found =
      std::lower_bound(values_.begin(), values_.end(), token.offset,
                       [](const ValuePlace& place, std::size_t offset) { return place.offset < offset; });
  // An empty bare value may stand just before the literal.
  for (auto place = found; place != values_.end() && place->offset == token.offset; ++place) {
    if (place->length == token.text.size() && place->is_quoted == (token.kind == TokenKind::kText) &&
        IsParameter(*place, statement_)) {
      return static_cast<std::size_t>(place - values_.begin());
    }
  }
  return {};
}

}  // namespace ovindra::embedded
