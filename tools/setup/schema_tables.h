// The tables of a schema script, as far as a tool must know them that writes whole rows: the script is the
// one place that says what they are. Views into the script's text.
#pragma once

#include <string_view>
#include <vector>

namespace ovindra {

struct SchemaTable {
  std::string_view name;
  /// The batch that creates it.
  std::string_view batch;
  /// The columns that hold what was put into them, in their order; a computed one is not among them.
  std::vector<std::string_view> columns;
  /// The column that the database numbers by itself; empty where there is none.
  std::string_view identity;
};

/// The table that the programme's export makes anew with the columns of its own statement.
inline constexpr std::string_view kWorkTable = "GRANT2016";

/// The batch that creates the table.
std::string_view BatchOf(std::string_view schema, std::string_view table);

/// Every table, in the order of the script.
std::vector<SchemaTable> TablesOf(std::string_view schema);

}  // namespace ovindra
