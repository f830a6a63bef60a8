#include <charconv>
#include <utility>

#include "base/database/database_error.h"
#include "base/text/utf8.h"
#include "platform/embedded/binder/coercion.h"
#include "platform/embedded/binder/expression_binder.h"
#include "platform/embedded/refusals.h"

namespace ovindra::embedded {
namespace {

using bound::ExpressionPtr;

/// A value of unknown length.
constexpr int kLongestValue = 8000;

SqlType TypeOf(const syntax::Literal& literal) {
  const std::string& text = literal.text;
  switch (literal.kind) {
    case syntax::LiteralKind::kNull:
      return {};
    case syntax::LiteralKind::kText:
      return TextType(literal.value ? kLongestValue : std::max(1, static_cast<int>(CharacterCount(text))));
    case syntax::LiteralKind::kFloat:
      return kFloatType;
    case syntax::LiteralKind::kInteger:
      // A number that is too long for an int is a numeric.
      if (std::int64_t value = 0;
          std::from_chars(text.data(), text.data() + text.size(), value).ec == std::errc{} &&
          value <= HighestOf(kIntType)) {
        return kIntType;
      }
      return NumericType(std::min(static_cast<int>(text.size()), 38), 0);
    case syntax::LiteralKind::kDecimal:
      break;
  }
  const std::size_t point = text.find('.');
  const int scale = std::min(static_cast<int>(text.size() - point - 1), 37);
  return NumericType(std::min(std::max(static_cast<int>(point) + scale, 1), 38), scale);
}

ExpressionPtr MakeCondition(bound::Expression expression) {
  expression.is_condition = true;
  return MakeExpression(std::move(expression));
}

}  // namespace

ExpressionPtr ExpressionBinder::Value(const syntax::Expression& expression) {
  ExpressionPtr value = Bind(expression);
  if (value->is_condition) throw IncorrectSyntax("=");
  return value;
}

ExpressionPtr ExpressionBinder::Condition(const syntax::Expression& expression) {
  ExpressionPtr condition = Bind(expression);
  if (!condition->is_condition) throw NotACondition();
  return condition;
}

ExpressionPtr ExpressionBinder::Bind(const syntax::Expression& expression) {
  return std::visit([&](const auto& node) { return Bind(node); }, expression.node);
}

ExpressionPtr ExpressionBinder::Bind(const syntax::Literal& literal) {
  const SqlType type = TypeOf(literal);
  if (literal.value && context_.takes_parameters) {
    context_.parameters.push_back({*literal.value, type, type, Purpose::kComputed});
    bound::Expression parameter{bound::Parameter{context_.parameters.size() - 1}, type};
    parameter.allows_null = false;
    return MakeExpression(std::move(parameter));
  }
  bound::Expression value{bound::Literal{}, type};
  if (literal.kind == syntax::LiteralKind::kText) {
    value.node = bound::Literal{literal.text};
    value.is_trimmed = !literal.text.ends_with(' ');
  } else if (literal.kind != syntax::LiteralKind::kNull) {
    value.node = bound::Literal{ConvertText(literal.text, type, Purpose::kComputed)};
  }
  value.allows_null = literal.kind == syntax::LiteralKind::kNull;
  return MakeExpression(std::move(value));
}

ExpressionPtr ExpressionBinder::Bind(const syntax::ColumnName& name) {
  const Scope::Found found = scope_.Resolve(name);
  bound::Expression column{bound::Column{found.table->source, found.column->output}, found.column->type};
  column.allows_null = found.column->allows_null;
  column.is_trimmed = found.column->is_trimmed;
  return MakeExpression(std::move(column));
}

ExpressionPtr ExpressionBinder::Bind(const syntax::Binary& binary) {
  if (binary.operation >= syntax::Operator::kEqual) return BindComparison(binary);
  ExpressionPtr left = Value(*binary.left);
  ExpressionPtr right = Value(*binary.right);
  return BindArithmetic(binary.operation, std::move(left), std::move(right), context_);
}

ExpressionPtr ExpressionBinder::BindComparison(const syntax::Binary& binary) {
  ExpressionPtr left = Value(*binary.left);
  ExpressionPtr right = Value(*binary.right);
  CoerceToCompare(left, right, context_);
  return MakeCondition({bound::Comparison{binary.operation, std::move(left), std::move(right)}, {}});
}

ExpressionPtr ExpressionBinder::Bind(const syntax::Negation& negation) {
  ExpressionPtr operand = Value(*negation.operand);
  if (operand->type.kind == TypeKind::kNull)
    operand = Coerce(std::move(operand), kIntType, Purpose::kComputed, context_);
  if (!operand->type.IsNumber()) throw InvalidOperand(operand->type, "minus");
  SqlType type = operand->type;
  if (type.kind == TypeKind::kInteger) type.size = std::max(type.size, kIntType.size);
  bound::Expression result{bound::Negation{}, type};
  result.allows_null = operand->allows_null;
  result.node = bound::Negation{std::move(operand)};
  return MakeExpression(std::move(result));
}

ExpressionPtr ExpressionBinder::Bind(const syntax::Junction& junction) {
  bound::Junction result{junction.is_and, {}};
  for (const syntax::ExpressionPtr& operand : junction.operands)
    result.operands.push_back(Condition(*operand));
  return MakeCondition({std::move(result), {}});
}

ExpressionPtr ExpressionBinder::Bind(const syntax::Not& node) {
  return MakeCondition({bound::Not{Condition(*node.operand)}, {}});
}

ExpressionPtr ExpressionBinder::Bind(const syntax::Between& between) {
  ExpressionPtr value = Value(*between.value);
  ExpressionPtr low = Value(*between.low);
  ExpressionPtr high = Value(*between.high);
  const SqlType type = ComparedType(ComparedType(value->type, low->type), high->type);
  for (ExpressionPtr* each : {&value, &low, &high}) *each = CoerceCompared(std::move(*each), type, context_);
  return MakeCondition(
      {bound::Between{between.is_not, std::move(value), std::move(low), std::move(high)}, {}});
}

ExpressionPtr ExpressionBinder::Bind(const syntax::Like& like) {
  const auto* literal = std::get_if<syntax::Literal>(&like.pattern->node);
  const bool is_text = literal != nullptr && literal->kind == syntax::LiteralKind::kText;
  const auto shape = is_text ? ShapeOf(literal->text) : bound::PatternShape::kAny;
  ExpressionPtr value = Coerce(Value(*like.value), TextType(kMaxText), Purpose::kCompared, context_);
  ExpressionPtr pattern = Coerce(Value(*like.pattern), TextType(kMaxText), Purpose::kComputed, context_);
  return MakeCondition({bound::Like{like.is_not, std::move(value), std::move(pattern), shape}, {}});
}

ExpressionPtr ExpressionBinder::Bind(const syntax::InList& in) {
  bound::InList result{in.is_not, Value(*in.value), {}};
  SqlType type = result.value->type;
  for (const syntax::ExpressionPtr& each : in.list) {
    result.list.push_back(Value(*each));
    type = ComparedType(type, result.list.back()->type);
  }
  result.value = CoerceCompared(std::move(result.value), type, context_);
  for (ExpressionPtr& each : result.list) each = CoerceCompared(std::move(each), type, context_);
  return MakeCondition({std::move(result), {}});
}

ExpressionPtr ExpressionBinder::Bind(const syntax::InQuery& in) {
  ExpressionPtr value = Value(*in.value);
  bound::Query query = BindQuery(*in.query, context_, &scope_, QueryPlace::kInside);
  if (query.columns.size() != 1) throw OneExpressionOnly();
  const SqlType type = ComparedType(value->type, query.columns.front().type);
  value = CoerceCompared(std::move(value), type, context_);
  for (bound::Select& select : query.selects) {
    select.items.front() = CoerceCompared(std::move(select.items.front()), type, context_);
  }
  return MakeCondition(
      {bound::InQuery{in.is_not, std::move(value), std::make_unique<bound::Query>(std::move(query))}, {}});
}

ExpressionPtr ExpressionBinder::Bind(const syntax::IsNull& is_null) {
  return MakeCondition({bound::IsNull{is_null.is_not, Value(*is_null.value)}, {}});
}

ExpressionPtr ExpressionBinder::Bind(const syntax::Exists& exists) {
  auto query =
      std::make_unique<bound::Query>(BindQuery(*exists.query, context_, &scope_, QueryPlace::kInside));
  return MakeCondition({bound::Exists{std::move(query)}, {}});
}

ExpressionPtr ExpressionBinder::Bind(const syntax::Case& node) {
  bound::Case result;
  SqlType type;
  for (const syntax::When& branch : node.branches) {
    ExpressionPtr condition;
    if (node.operand) {
      ExpressionPtr left = Value(*node.operand);
      ExpressionPtr right = Value(*branch.condition);
      CoerceToCompare(left, right, context_);
      condition =
          MakeCondition({bound::Comparison{syntax::Operator::kEqual, std::move(left), std::move(right)}, {}});
    } else {
      condition = Condition(*branch.condition);
    }
    result.branches.push_back({std::move(condition), Value(*branch.result)});
    type = CommonType(type, result.branches.back().result->type);
  }
  if (node.otherwise) {
    result.otherwise = Value(*node.otherwise);
    type = CommonType(type, result.otherwise->type);
  }
  bool is_trimmed = true;
  for (bound::When& branch : result.branches) {
    branch.result = Coerce(std::move(branch.result), type, Purpose::kComputed, context_);
    is_trimmed = is_trimmed && branch.result->is_trimmed;
  }
  if (result.otherwise) {
    result.otherwise = Coerce(std::move(result.otherwise), type, Purpose::kComputed, context_);
    is_trimmed = is_trimmed && result.otherwise->is_trimmed;
  }
  bound::Expression expression{std::move(result), type};
  expression.is_trimmed = is_trimmed;
  return MakeExpression(std::move(expression));
}

ExpressionPtr ExpressionBinder::Bind(const syntax::Conversion& conversion) {
  SqlType type = ResolveType(conversion.type);
  // A text without a length is of thirty characters here, though of one in a table.
  constexpr int kConvertedLength = 30;
  if (type.IsText() && conversion.type.arguments.empty()) type.size = kConvertedLength;
  ExpressionPtr value = Value(*conversion.value);
  return Coerce(std::move(value), type, Purpose::kComputed, context_, conversion.style.value_or(0));
}

ExpressionPtr ExpressionBinder::Bind(const syntax::Subquery& subquery) {
  auto query =
      std::make_unique<bound::Query>(BindQuery(*subquery.query, context_, &scope_, QueryPlace::kInside));
  if (query->columns.size() != 1) throw OneExpressionOnly();
  bound::Expression expression{bound::Subquery{}, query->columns.front().type};
  expression.is_trimmed = query->columns.front().is_trimmed;
  expression.node = bound::Subquery{std::move(query)};
  return MakeExpression(std::move(expression));
}

SqlType ResolveType(const syntax::TypeName& type) {
  const auto resolved = TypeNamed(type.name.text, type.arguments);
  if (!resolved) throw UnknownType(type.name.text);
  return *resolved;
}

}  // namespace ovindra::embedded
