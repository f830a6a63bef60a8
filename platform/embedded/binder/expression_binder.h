// Binds the expressions of one place of a statement: its names come from a scope, and it tells whether
// aggregates may stand there.
#pragma once

#include "platform/embedded/binder/bind_context.h"
#include "platform/embedded/binder/bound_tree.h"
#include "platform/embedded/binder/scope.h"

namespace ovindra::embedded {

enum class Aggregates { kRefused, kAllowed };

class ExpressionBinder {
 public:
  ExpressionBinder(BindContext& context, const Scope& scope, Aggregates aggregates)
      : context_(context), scope_(scope), aggregates_(aggregates) {}

  /// A value; a condition is refused.
  bound::ExpressionPtr Value(const syntax::Expression& expression);
  /// A condition; a value is refused.
  bound::ExpressionPtr Condition(const syntax::Expression& expression);

  /// Whether an aggregate has been bound.
  bool has_aggregate() const { return has_aggregate_; }

 private:
  bound::ExpressionPtr Bind(const syntax::Expression& expression);
  bound::ExpressionPtr Bind(const syntax::Literal& literal);
  bound::ExpressionPtr Bind(const syntax::ColumnName& name);
  bound::ExpressionPtr Bind(const syntax::Binary& binary);
  bound::ExpressionPtr Bind(const syntax::Negation& negation);
  bound::ExpressionPtr Bind(const syntax::Junction& junction);
  bound::ExpressionPtr Bind(const syntax::Not& node);
  bound::ExpressionPtr Bind(const syntax::Between& between);
  bound::ExpressionPtr Bind(const syntax::Like& like);
  bound::ExpressionPtr Bind(const syntax::InList& in);
  bound::ExpressionPtr Bind(const syntax::InQuery& in);
  bound::ExpressionPtr Bind(const syntax::IsNull& is_null);
  bound::ExpressionPtr Bind(const syntax::Exists& exists);
  bound::ExpressionPtr Bind(const syntax::Case& node);
  bound::ExpressionPtr Bind(const syntax::Call& call);
  bound::ExpressionPtr Bind(const syntax::Conversion& conversion);
  bound::ExpressionPtr Bind(const syntax::Subquery& subquery);

  bound::ExpressionPtr BindComparison(const syntax::Binary& binary);
  bound::ExpressionPtr BindAggregate(const syntax::Call& call, bound::AggregateKind kind);
  bound::ExpressionPtr BindFunction(const syntax::Call& call);
  bound::ExpressionPtr BindArgument(const syntax::Expression& argument, ArgumentKind kind, SqlType first);

  BindContext& context_;
  const Scope& scope_;
  Aggregates aggregates_;
  bool has_aggregate_ = false;
};

/// The sum, difference, product or quotient of two values, or two texts joined, by the types of the operands.
bound::ExpressionPtr BindArithmetic(syntax::Operator operation, bound::ExpressionPtr left,
                                    bound::ExpressionPtr right, BindContext& context);

}  // namespace ovindra::embedded
