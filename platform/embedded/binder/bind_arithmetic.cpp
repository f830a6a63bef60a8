#include <algorithm>
#include <utility>

#include "platform/embedded/binder/coercion.h"
#include "platform/embedded/binder/expression_binder.h"
#include "platform/embedded/refusals.h"

namespace ovindra::embedded {
namespace {

using namespace bound;

/// The longest text that joining gives, and the widest numeric.
constexpr int kLongestJoined = 8000;
constexpr int kMostDigits = 38;

std::string_view WordFor(Operator operation) {
  switch (operation) {
    case Operator::kAdd:
      return "add";
    case Operator::kSubtract:
      return "subtract";
    case Operator::kMultiply:
      return "multiply";
    case Operator::kDivide:
      return "divide";
    default:
      return "modulo";
  }
}

/// An integer as the numeric that holds it.
SqlType AsNumeric(SqlType type) {
  return type.kind == TypeKind::kNumeric ? type : NumericType(type.size > 4 ? 19 : 10, 0);
}

SqlType NumericResult(Operator operation, SqlType left, SqlType right) {
  const int whole = std::max(left.size - left.scale, right.size - right.scale);
  int scale = std::max(left.scale, right.scale);
  int precision = whole + scale + 1;
  if (operation == Operator::kMultiply) {
    scale = left.scale + right.scale;
    precision = left.size + right.size + 1;
  } else if (operation == Operator::kDivide) {
    scale = std::max(6, left.scale + right.size + 1);
    precision = left.size - left.scale + right.scale + scale;
  }
  // Where the digits don't suffice the fraction gives way, but not below six digits.
  if (precision > kMostDigits) {
    const int kept = std::min(scale, 6);
    scale = std::max(scale - (precision - kMostDigits), kept);
    precision = kMostDigits;
  }
  return NumericType(precision, std::min(scale, precision));
}

SqlType NumberResult(Operator operation, SqlType left, SqlType right) {
  if (left.kind == TypeKind::kFloat || right.kind == TypeKind::kFloat) return kFloatType;
  if (left.kind == TypeKind::kNumeric || right.kind == TypeKind::kNumeric) {
    return NumericResult(operation, AsNumeric(left), AsNumeric(right));
  }
  return std::max(left.size, right.size) > 4 ? kBigIntType : kIntType;
}

ExpressionPtr JoinTexts(ExpressionPtr left, ExpressionPtr right) {
  const int size = left->type.size == kMaxText || right->type.size == kMaxText
                       ? kMaxText
                       : std::min(left->type.size + right->type.size, kLongestJoined);
  Expression joined{Concatenation{}, TextType(size)};
  joined.allows_null = left->allows_null || right->allows_null;
  joined.node = Concatenation{std::move(left), std::move(right)};
  return MakeExpression(std::move(joined));
}

/// NULL counts as the other operand's type, a text beside a number or a moment is converted.
void AlignOperands(Operator operation, ExpressionPtr& left, ExpressionPtr& right, BindContext& context) {
  const SqlType stronger = left->type.kind < right->type.kind ? right->type : left->type;
  for (ExpressionPtr* operand : {&left, &right}) {
    const TypeKind kind = (*operand)->type.kind;
    if (kind == TypeKind::kNull) {
      const SqlType type = stronger.kind == TypeKind::kNull ? kIntType : stronger;
      *operand = Coerce(std::move(*operand), type, Purpose::kComputed, context);
    } else if (kind == TypeKind::kText && stronger.kind != TypeKind::kText) {
      *operand = Coerce(std::move(*operand), stronger, Purpose::kComputed, context);
    } else if (kind != TypeKind::kMoment && stronger.kind == TypeKind::kMoment) {
      *operand = Coerce(std::move(*operand), kMomentType, Purpose::kComputed, context);
    }
  }
  const bool can_only_add = left->type.IsText() || left->type.kind == TypeKind::kMoment;
  const bool is_refused = left->type.IsText()
                              ? operation != Operator::kAdd
                              : operation != Operator::kAdd && operation != Operator::kSubtract;
  if (can_only_add && is_refused) throw InvalidOperand(left->type, WordFor(operation));
}

}  // namespace

ExpressionPtr BindArithmetic(syntax::Operator operation, ExpressionPtr left, ExpressionPtr right,
                             BindContext& context) {
  AlignOperands(operation, left, right, context);
  if (left->type.IsText()) return JoinTexts(std::move(left), std::move(right));
  const bool is_moment = left->type.kind == TypeKind::kMoment;
  if (operation == Operator::kModulo &&
      (left->type.kind == TypeKind::kFloat || right->type.kind == TypeKind::kFloat)) {
    throw InvalidOperand(kFloatType, WordFor(operation));
  }
  Expression result{Arithmetic{}, is_moment ? kMomentType : NumberResult(operation, left->type, right->type)};
  result.allows_null = left->allows_null || right->allows_null;
  result.node = Arithmetic{operation, std::move(left), std::move(right)};
  return MakeExpression(std::move(result));
}

}  // namespace ovindra::embedded
