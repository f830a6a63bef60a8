#include <optional>
#include <utility>

#include "base/text/utf8.h"
#include "platform/embedded/binder/coercion.h"
#include "platform/embedded/binder/expression_binder.h"
#include "platform/embedded/moment_text.h"
#include "platform/embedded/refusals.h"

namespace ovindra::embedded {
namespace {

using bound::AggregateKind;
using bound::ExpressionPtr;

struct AggregateName {
  std::string_view name;
  AggregateKind kind;
};

constexpr AggregateName kAggregates[] = {
    {"count", AggregateKind::kCount}, {"sum", AggregateKind::kSum},     {"min", AggregateKind::kMin},
    {"max", AggregateKind::kMax},     {"avg", AggregateKind::kAverage},
};

std::optional<AggregateKind> AggregateNamed(std::string_view name) {
  for (const AggregateName& each : kAggregates) {
    if (SameWithoutCase(each.name, name)) return each.kind;
  }
  return {};
}

constexpr int kMostDigits = 38;
constexpr int kLeastAverageScale = 6;

SqlType AggregateType(AggregateKind kind, SqlType argument) {
  if (kind == AggregateKind::kMin || kind == AggregateKind::kMax) return argument;
  SqlType type = argument;
  if (type.kind == TypeKind::kInteger) type.size = std::max(type.size, kIntType.size);
  if (type.kind == TypeKind::kNumeric) {
    type.size = kMostDigits;
    if (kind == AggregateKind::kAverage) type.scale = std::max(type.scale, kLeastAverageScale);
  }
  return type;
}

/// The longest text that a function gives when its first argument is no text column.
constexpr int kLongestResult = 8000;

SqlType ResultType(const Function& function, const bound::ExpressionList& arguments) {
  switch (function.result) {
    case ResultKind::kInteger:
      return kIntType;
    case ResultKind::kMoment:
      return kMomentType;
    case ResultKind::kText: {
      const bool keeps_length = arguments.size() < 3 || function.name == "substring";
      return TextType(keeps_length ? arguments.front()->type.size : kLongestResult);
    }
    case ResultKind::kFirst:
      return arguments.front()->type;
    case ResultKind::kCommon:
      break;
  }
  SqlType common;
  for (const ExpressionPtr& argument : arguments) common = CommonType(common, argument->type);
  return common;
}

}  // namespace

ExpressionPtr ExpressionBinder::Bind(const syntax::Call& call) {
  if (const auto kind = AggregateNamed(call.function.text)) return BindAggregate(call, *kind);
  return BindFunction(call);
}

ExpressionPtr ExpressionBinder::BindAggregate(const syntax::Call& call, AggregateKind kind) {
  if (aggregates_ == Aggregates::kRefused) throw AggregateNotAllowed();
  if (call.arguments.size() != (call.has_star ? 0U : 1U) ||
      (call.has_star && kind != AggregateKind::kCount)) {
    throw WrongArgumentCount(call.function.text, 1);
  }
  bound::Expression result{bound::Aggregate{kind, call.is_distinct, nullptr}, kIntType};
  if (!call.has_star) {
    // An aggregate of an aggregate is none.
    ExpressionBinder inner(context_, scope_, Aggregates::kRefused);
    ExpressionPtr argument = inner.Value(*call.arguments.front());
    if (kind != AggregateKind::kCount) {
      const bool adds = kind == AggregateKind::kSum || kind == AggregateKind::kAverage;
      if (argument->type.kind == TypeKind::kNull || (adds && !argument->type.IsNumber())) {
        throw InvalidOperand(argument->type, call.function.text);
      }
      result.type = AggregateType(kind, argument->type);
      result.is_trimmed = argument->is_trimmed;
    } else if (call.is_distinct && argument->type.IsText()) {
      argument = Coerce(std::move(argument), TextType(kMaxText), Purpose::kCompared, context_);
    }
    std::get<bound::Aggregate>(result.node).argument = std::move(argument);
  }
  result.allows_null = kind != AggregateKind::kCount;
  has_aggregate_ = true;
  return MakeExpression(std::move(result));
}

ExpressionPtr ExpressionBinder::BindFunction(const syntax::Call& call) {
  const Function* function = FunctionNamed(call.function.text);
  if (function == nullptr || call.has_star || call.is_distinct) throw UnknownFunction(call.function.text);
  const std::size_t count = call.arguments.size();
  const bool takes_many = function->result == ResultKind::kCommon;
  if (count < function->least_arguments ||
      count > (takes_many ? function->arguments.size() : function->least_arguments)) {
    throw WrongArgumentCount(call.function.text, function->least_arguments);
  }
  bound::FunctionCall result{function, {}};
  for (std::size_t i = 0; i < count; ++i) {
    const SqlType first = result.arguments.empty() ? SqlType{} : result.arguments.front()->type;
    result.arguments.push_back(BindArgument(*call.arguments[i], function->arguments[i], first));
  }
  const SqlType type = ResultType(*function, result.arguments);
  if (takes_many) {
    for (ExpressionPtr& each : result.arguments)
      each = Coerce(std::move(each), type, Purpose::kComputed, context_);
  }
  return MakeExpression({std::move(result), type});
}

ExpressionPtr ExpressionBinder::BindArgument(const syntax::Expression& argument, ArgumentKind kind,
                                             SqlType first) {
  if (kind == ArgumentKind::kPart) {
    const auto* name = std::get_if<syntax::ColumnName>(&argument.node);
    if (name == nullptr || !name->table.empty()) throw InvalidDatePart("", "datepart");
    MomentPart(name->column, 0);
    return MakeExpression({bound::Literal{name->column}, TextType(kMaxText)});
  }
  ExpressionPtr value = Value(argument);
  switch (kind) {
    case ArgumentKind::kText:
      if (!value->type.IsText())
        value = Coerce(std::move(value), TextType(kLongestResult), Purpose::kComputed, context_);
      return value;
    case ArgumentKind::kInteger:
      return Coerce(std::move(value), kIntType, Purpose::kComputed, context_);
    case ArgumentKind::kMoment:
      return Coerce(std::move(value), kMomentType, Purpose::kComputed, context_);
    case ArgumentKind::kNumber:
      if (!value->type.IsNumber()) value = Coerce(std::move(value), kFloatType, Purpose::kComputed, context_);
      return value;
    case ArgumentKind::kLikeFirst:
      return first.kind == TypeKind::kNull ? std::move(value)
                                           : Coerce(std::move(value), first, Purpose::kComputed, context_);
    default:
      return value;
  }
}

}  // namespace ovindra::embedded
