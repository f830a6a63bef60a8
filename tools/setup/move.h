// Moves the rows of a database to a server that holds the fresh schema. The numbers that the source has given
// are kept, and so are the next ones that it would give. All of it is one transaction on the server: a move
// that fails leaves the server as it was, but where the server is lost while it is told to keep the rows;
// then the error says that nobody can know.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/database/connection.h"

namespace ovindra {

struct MovedTable {
  std::string name;
  std::int64_t rows_here;
  std::int64_t rows_there;
};

/// Moves every table of the schema but the export's work table, which is made anew where it is needed.
/// Refuses a server that lacks a table, or holds rows other than those of the fresh schema, which `pristine`
/// holds.
std::vector<MovedTable> MoveRows(TransactionSession& source, TransactionSession& server, Session& pristine,
                                 std::string_view schema);

}  // namespace ovindra
