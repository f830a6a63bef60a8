#include "core/entry/lists.h"

#include <optional>
#include <vector>

namespace ovindra {
namespace {

template <typename List>
void Fill(Connection& connection, const SqlText& statement, std::string_view field, List& list) {
  Recordset rows = connection.Execute(statement);
  list.Clear();
  for (; !rows.Eof(); rows.MoveNext()) list.AddItem(Trim(rows[field]));
}

template <typename List>
void FillWithData(Connection& connection, const SqlText& statement, std::string_view field,
                  std::string_view data_field, List& list) {
  Recordset rows = connection.Execute(statement);
  list.Clear();
  for (; !rows.Eof(); rows.MoveNext())
    list.AddItem(Trim(rows[field]), static_cast<long>(rows[data_field].AsInteger()));
}

}  // namespace

void FillList(Connection& connection, const SqlText& statement, std::string_view field, ComboBox& list) {
  Fill(connection, statement, field, list);
}

void FillList(Connection& connection, const SqlText& statement, std::string_view field, ListBox& list) {
  Fill(connection, statement, field, list);
}

void FillListWithData(Connection& connection, const SqlText& statement, std::string_view field,
                      std::string_view data_field, ListBox& list) {
  FillWithData(connection, statement, field, data_field, list);
}

void FillListWithData(Connection& connection, const SqlText& statement, std::string_view field,
                      std::string_view data_field, ComboBox& list) {
  FillWithData(connection, statement, field, data_field, list);
}

void FillGrid(Connection& connection, const SqlText& statement,
              std::initializer_list<std::string_view> fields, Grid& grid) {
  FillGrid(connection, statement, std::span(fields.begin(), fields.size()), grid);
}

void FillGrid(Connection& connection, const SqlText& statement, std::span<const std::string_view> fields,
              Grid& grid) {
  Recordset rows = connection.Execute(statement);
  FillGrid(rows, fields, grid);
}

void FillGrid(Recordset& rows, std::span<const std::string_view> fields, Grid& grid) {
  grid.SetRows(grid.fixed_rows());
  if (rows.Eof()) return;
  std::vector<std::optional<std::size_t>> ordinals;
  for (std::string_view field : fields)
    ordinals.push_back(field == kEmptyCell ? std::nullopt : std::optional(rows.Ordinal(field)));
  for (; !rows.Eof(); rows.MoveNext()) {
    Grid::Row cells;
    cells.reserve(ordinals.size());
    for (const auto& ordinal : ordinals) cells.push_back(ordinal ? Trim(rows.At(*ordinal)) : std::string());
    grid.AddRow(std::move(cells));
  }
}

}  // namespace ovindra
