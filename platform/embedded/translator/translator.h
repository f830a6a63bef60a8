// Writes a bound statement as SQLite's text: the only stage that knows it. A conversion or a computation that
// SQLite does not have is a call of one of the session's functions.
#pragma once

#include <string>
#include <vector>

#include "platform/embedded/binder/bound_tree.h"

namespace ovindra::embedded {

/// What SQLite is to run: one statement, or several that are one transaction.
struct Program {
  std::vector<std::string> steps;
  std::vector<bound::ParameterRule> parameters;
  /// The columns of the result; none for a statement without rows.
  std::vector<bound::ResultColumn> columns;
  /// The table whose rows are changed, and the verb of the server's messages on it.
  std::string changed_table;
  std::string verb;
  /// The columns of the changed table that an insert fills, and the query of the rows it inserts: what tells
  /// a duplicate key's value.
  std::vector<std::string> filled_columns;
  std::string inserted_rows;
  /// The index that is made.
  std::string created_index;
  /// Whether the schema is another one afterwards.
  bool changes_schema = false;
};

Program Translate(const bound::Statement& statement);

}  // namespace ovindra::embedded
