// How the answer to a statement is written: a table for people, or one line of JSON for other programs, where
// every value is its text, a date reads 2016-05-31 and NULL is null.
#pragma once

#include <ostream>
#include <string>
#include <string_view>

#include "base/database/recordset.h"
#include "base/runtime_error.h"

namespace ovindra {

/// Writes the rows as a table with aligned columns, or how many rows the statement has changed.
void WriteTable(std::ostream& out, Recordset answer);

/// {"columns":["A"],"rows":[["text",null]]}, or {"count":N} for a statement without rows.
std::string JsonLine(Recordset answer);

/// {"error":NUMBER,"text":"..."}.
std::string JsonLine(const RuntimeError& error);

/// The text as a string of JSON. Bytes that are no UTF-8 become U+FFFD.
std::string JsonString(std::string_view text);

}  // namespace ovindra
