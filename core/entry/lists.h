// Filling lists and grids from statements. The statement runs first: one that fails leaves the list as it
// was.
#pragma once

#include <initializer_list>
#include <span>
#include <string_view>

#include "base/controls/combo_box.h"
#include "base/controls/grid.h"
#include "base/controls/list_box.h"
#include "base/database/connection.h"

namespace ovindra {

/// Empties the list and adds one column of the statement's rows, trimmed, in their order.
void FillList(Connection& connection, const SqlText& statement, std::string_view field, ComboBox& list);
void FillList(Connection& connection, const SqlText& statement, std::string_view field, ListBox& list);

/// The same with a number of the row beside each entry.
void FillListWithData(Connection& connection, const SqlText& statement, std::string_view field,
                      std::string_view data_field, ListBox& list);
void FillListWithData(Connection& connection, const SqlText& statement, std::string_view field,
                      std::string_view data_field, ComboBox& list);

/// In place of a field of FillGrid: the cell stays empty.
inline constexpr std::string_view kEmptyCell{};

/// Cuts the grid down to its header and adds a row for each of the statement's rows, from the given fields,
/// trimmed.
void FillGrid(Connection& connection, const SqlText& statement,
              std::initializer_list<std::string_view> fields, Grid& grid);
void FillGrid(Connection& connection, const SqlText& statement, std::span<const std::string_view> fields,
              Grid& grid);
/// The same from a statement's rows.
void FillGrid(Recordset& rows, std::span<const std::string_view> fields, Grid& grid);

}  // namespace ovindra
