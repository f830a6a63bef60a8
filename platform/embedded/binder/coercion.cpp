#include "platform/embedded/binder/coercion.h"

#include <utility>

namespace ovindra::embedded {
namespace {

using namespace bound;

/// The digits of the widest numeric.
constexpr int kMostDigits = 38;
constexpr int kDigitsOfInt = 10;

bool FitsText(int size, int into) {
  return into == kMaxText || (size != kMaxText && size <= into);
}

/// Whether a value of one type is one of the other as it stands.
bool IsAlready(const Expression& expression, SqlType to, Purpose purpose) {
  const SqlType from = expression.type;
  if (from.kind == to.kind) {
    switch (to.kind) {
      case TypeKind::kText:
        if (purpose != Purpose::kComputed && !expression.is_trimmed) return false;
        return purpose == Purpose::kCompared || FitsText(from.size, to.size);
      case TypeKind::kInteger:
        return from.size <= to.size;
      case TypeKind::kNumeric:
        return from.scale == to.scale && from.size <= to.size;
      default:
        return true;
    }
  }
  return from.kind == TypeKind::kInteger && to.kind == TypeKind::kNumeric && to.scale == 0 &&
         from.size <= 4 && to.size >= kDigitsOfInt;
}

}  // namespace

ExpressionPtr MakeExpression(Expression expression) {
  return std::make_unique<Expression>(std::move(expression));
}

ExpressionPtr Coerce(ExpressionPtr expression, SqlType to, Purpose purpose, BindContext& context, int style) {
  // What a number or a moment is written as has no trailing blanks.
  const bool is_trimmed = purpose != Purpose::kComputed || !to.IsText() || !expression->type.IsText();
  if (auto* literal = std::get_if<Literal>(&expression->node)) {
    literal->value = Convert(literal->value, expression->type, to, purpose, style);
    expression->type = to;
    expression->is_trimmed = is_trimmed;
    return expression;
  }
  if (auto* parameter = std::get_if<Parameter>(&expression->node)) {
    ParameterRule& rule = context.parameters[parameter->rule];
    if (rule.to == rule.from && rule.purpose == Purpose::kComputed) {
      rule.to = to;
      rule.purpose = purpose;
      expression->type = to;
      expression->is_trimmed = is_trimmed;
      return expression;
    }
  }
  if (expression->type.kind == TypeKind::kNull) {
    expression->type = to;
    return expression;
  }
  if (IsAlready(*expression, to, purpose)) {
    if (purpose != Purpose::kCompared) expression->type = to;
    return expression;
  }
  Expression converted{Conversion{std::move(expression), purpose, style}, to};
  converted.allows_null = std::get<Conversion>(converted.node).value->allows_null;
  converted.is_trimmed = is_trimmed;
  return MakeExpression(std::move(converted));
}

SqlType ComparedType(SqlType left, SqlType right) {
  const SqlType type = left.kind < right.kind ? right : left;
  if (type.IsText()) return TextType(kMaxText);
  // A longer number in a text is compared, not refused.
  if (type.kind == TypeKind::kNumeric) return NumericType(kMostDigits, type.scale);
  return type;
}

ExpressionPtr CoerceCompared(ExpressionPtr expression, SqlType to, BindContext& context) {
  if (expression->type.IsNumber() && to.IsNumber()) return expression;
  return Coerce(std::move(expression), to, Purpose::kCompared, context);
}

void CoerceToCompare(ExpressionPtr& left, ExpressionPtr& right, BindContext& context) {
  const SqlType type = ComparedType(left->type, right->type);
  left = CoerceCompared(std::move(left), type, context);
  right = CoerceCompared(std::move(right), type, context);
}

}  // namespace ovindra::embedded
