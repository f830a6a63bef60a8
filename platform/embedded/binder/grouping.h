// The rule of grouped queries: outside an aggregate only what is grouped by may be used.
#pragma once

#include "platform/embedded/binder/bound_tree.h"

namespace ovindra::embedded {

/// Refuses an expression that uses a column that is neither grouped by nor inside an aggregate. Columns of
/// sources numbered below `first_source` belong to a query around this one and may be used.
void RequireGrouped(const bound::Expression& expression, const bound::ExpressionList& groups,
                    std::size_t first_source);

/// Whether two expressions are written alike, of the kinds that a query groups and orders by; that one of
/// them has lost its trailing blanks makes no difference.
bool IsSame(const bound::Expression& left, const bound::Expression& right);

}  // namespace ovindra::embedded
