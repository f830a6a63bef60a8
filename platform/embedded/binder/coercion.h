// Conversions that the dialect makes by itself: of a value stored into a column, of two values that are
// compared, of the branches of a case. A literal is converted at once, a parameter by its rule, anything else
// row by row.
#pragma once

#include "platform/embedded/binder/bind_context.h"
#include "platform/embedded/binder/bound_tree.h"

namespace ovindra::embedded {

bound::ExpressionPtr MakeExpression(bound::Expression expression);

/// The expression as the type, for the purpose.
bound::ExpressionPtr Coerce(bound::ExpressionPtr expression, SqlType to, Purpose purpose,
                            BindContext& context, int style = 0);

/// Makes two values comparable: texts without trailing blanks, a text with a number as a number, with a
/// moment as a moment.
void CoerceToCompare(bound::ExpressionPtr& left, bound::ExpressionPtr& right, BindContext& context);

/// What a value is compared as with a value of another type.
SqlType ComparedType(SqlType left, SqlType right);

/// The value as it is compared with a value of the type.
bound::ExpressionPtr CoerceCompared(bound::ExpressionPtr expression, SqlType to, BindContext& context);

}  // namespace ovindra::embedded
