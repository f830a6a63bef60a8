// What drivers say of a failure, as the program's run-time errors: the SQLSTATE tells the number, the text is
// the server's own, without the names of those through whose hands it went.
#pragma once

#include <string_view>

#include <sql.h>

#include "base/runtime_error.h"

namespace ovindra::odbc {

/// The error of a handle on which a call has just failed: of its diagnostic records the first that is no
/// mere warning.
RuntimeError LastError(SQLSMALLINT handle_kind, SQLHANDLE handle);

/// The refusal for an SQLSTATE (five characters) and the text that came with it.
RuntimeError RefusalFor(std::string_view state, std::string_view text);

/// The text without the prefixes of vendor, driver and server, "[FreeTDS][SQL Server]": those in brackets at
/// its begin that no blank follows.
std::string_view WithoutPrefixes(std::string_view text);

/// There is no memory, or no driver manager that would say so.
RuntimeError NoDriverManager();

}  // namespace ovindra::odbc
