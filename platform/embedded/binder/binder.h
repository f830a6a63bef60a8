// Resolves the names of a statement against the catalog and gives every expression its type. Decides all
// conversions: a literal is converted here, a value of the statement each time it runs, a column row by row.
// Fails with the server's refusal.
#pragma once

#include <string>
#include <string_view>

#include "platform/embedded/binder/bound_tree.h"
#include "platform/embedded/catalog/catalog.h"
#include "platform/embedded/parser/syntax_tree.h"

namespace ovindra::embedded {

/// Binds a statement; an if is not bound as a whole, since what it guards may not be there. `identity_insert`
/// is the table that takes explicit values for its identity column, or empty.
bound::Statement Bind(const syntax::Statement& statement, Catalog& catalog, std::string_view identity_insert);

/// Binds a query by itself, as of the condition of an if.
bound::Statement Bind(const syntax::Query& query, Catalog& catalog);

}  // namespace ovindra::embedded
