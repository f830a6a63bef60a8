// Statements of the setup program: one executed on a session, and many rows joined into few statements. A
// value that breaks its statement raises the server's refusal and sends nothing, as on a Connection.
#pragma once

#include <concepts>
#include <cstddef>
#include <string>
#include <tuple>

#include "base/database/connection.h"

namespace ovindra {

/// Runs a statement. Fails with its refusal, or the server's.
Recordset Execute(Session& session, const SqlText& statement);

/// A whole number as it stands in a statement, and as a text of digits.
template <std::integral T>
BareValue Number(T value) {
  return bare(std::to_string(value));
}
template <std::integral T>
QuotedValue Digits(T value) {
  return quoted(std::to_string(value));
}

/// The code of the row at that place of its list, where the database has numbered the rows from 1.
inline BareValue Code(std::size_t place) {
  return Number(place + 1);
}

/// One row of an INSERT: the values in brackets. A value is quoted(), bare(), a Fragment or SqlText.
template <typename First, typename... Rest>
SqlText Row(const First& first, const Rest&... rest) {
  return std::apply([](const auto&... parts) { return sql("(", parts..., ")"); },
                    std::tuple_cat(std::make_tuple(first), std::make_tuple(Fragment(","), rest)...));
}

/// Inserts rows into one table, each by a statement of its own: the engine prepares that once, while a
/// statement of many rows is new to it each time.
class RowWriter {
 public:
  /// The head is the statement up to the word "values".
  RowWriter(Session& session, Fragment head) : session_(session), head_(head) {}

  void Add(const SqlText& row) { Execute(session_, sql(head_, " ", row)); }

 private:
  Session& session_;
  Fragment head_;
};

}  // namespace ovindra
