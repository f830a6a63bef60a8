// Texts as drivers take and give them, in UTF-16: so no locale comes between the program's UTF-8 and the
// server.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <sql.h>
#include <sqlext.h>

namespace ovindra::odbc {

/// The text in UTF-16, without an end mark. A byte that is no UTF-8 becomes U+FFFD.
std::vector<SQLWCHAR> WideText(std::string_view text);

/// UTF-16 as UTF-8. Half of a pair becomes U+FFFD.
std::string NarrowText(const SQLWCHAR* text, std::size_t length);

/// How many characters stand before the end mark in a buffer of that size.
std::size_t LengthOf(const SQLWCHAR* buffer, std::size_t size);

}  // namespace ovindra::odbc
