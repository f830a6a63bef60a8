#include "reports/listing.h"

#include <string>

#include "base/text/blanks.h"

namespace ovindra {

void WriteHeadings(Sheet& sheet, int row, std::initializer_list<std::string_view> headings) {
  WriteHeadings(sheet, row, std::span(headings.begin(), headings.size()));
}

void WriteHeadings(Sheet& sheet, int row, std::span<const std::string_view> headings) {
  int column = 0;
  for (const std::string_view heading : headings) sheet.SetCellText(row, ++column, heading);
}

int WriteRecords(Sheet& sheet, int first_row, Recordset& records,
                 std::initializer_list<std::string_view> fields) {
  return WriteRecords(sheet, first_row, records, std::span(fields.begin(), fields.size()));
}

int WriteRecords(Sheet& sheet, int first_row, Recordset& records, std::span<const std::string_view> fields) {
  int row = first_row - 1;
  if (records.Eof()) return row;
  std::vector<std::size_t> ordinals;
  for (const std::string_view field : fields) ordinals.push_back(records.Ordinal(field));
  for (; !records.Eof(); records.MoveNext()) {
    ++row;
    int column = 1;
    sheet.SetCellText(row, column, std::to_string(row - first_row + 1));
    for (const std::size_t ordinal : ordinals) sheet.SetCellText(row, ++column, records.At(ordinal));
  }
  return row;
}

int WriteGridRows(Sheet& sheet, int first_row, const Grid& grid, std::initializer_list<int> columns) {
  int row = first_row - 1;
  for (int grid_row = grid.fixed_rows(); grid_row < grid.rows(); ++grid_row) {
    ++row;
    int column = 1;
    sheet.SetCellText(row, column, std::to_string(row - first_row + 1));
    for (const int grid_column : columns)
      sheet.SetCellText(row, ++column, Trim(grid.Cell(grid_row, grid_column)));
  }
  return row;
}

void StyleBlock(Sheet& sheet, const CellRange& cells, const CellFont& font) {
  sheet.SelectCells(cells.first_row, cells.first_column, cells.last_row, cells.last_column);
  sheet.SetSelectionFont(font);
  sheet.SetSelectionBorder();
}

void StyleList(Sheet& sheet, int heading_row, int last_row, int columns) {
  StyleBlock(sheet, {heading_row, 1, heading_row, columns}, HeaderStyle());
  if (last_row > heading_row) StyleBlock(sheet, {heading_row + 1, 1, last_row, columns}, BodyStyle());
  sheet.FitColumns(heading_row, 1, last_row, columns);
}

StagingGrid::StagingGrid(Container& container, std::string_view name,
                         std::initializer_list<std::string_view> headings)
    : Grid(container, name, headings) {
  SetVisible(false);
}

void RowIndex::Add(std::string_view text, int row) {
  rows_[std::string(Trim(text))].push_back(row);
}

std::span<const int> RowIndex::RowsOf(std::string_view text) const {
  const auto found = rows_.find(std::string(text));
  if (found == rows_.end()) return {};
  return found->second;
}

GridIndex::GridIndex(const Grid& grid, int column) {
  for (int row = grid.fixed_rows(); row < grid.rows(); ++row) Add(grid.Cell(row, column), row);
}

SheetIndex::SheetIndex(const Sheet& sheet, int first_row, int last_row, int column) {
  for (int row = first_row; row <= last_row; ++row) Add(sheet.GetCellText(row, column), row);
}

bool JoinText(Grid& grid, int row, int column, std::string_view text) {
  const std::string& before = grid.Cell(row, column);
  if (before.empty()) {
    grid.SetCell(row, column, text);
    return true;
  }
  std::string joined = before;
  joined += ',';
  grid.SetCell(row, column, joined += text);
  return false;
}

void JoinRecords(Grid& grid, const GridIndex& index, int column, Recordset& records,
                 std::string_view key_field, std::string_view value_field) {
  if (records.Eof()) return;
  const std::size_t value_ordinal = records.Ordinal(value_field);
  const std::size_t key_ordinal = records.Ordinal(key_field);
  for (; !records.Eof(); records.MoveNext()) {
    const std::string value = Trim(records.At(value_ordinal));
    for (const int row : index.RowsOf(Trim(records.At(key_ordinal)))) JoinText(grid, row, column, value);
  }
}

}  // namespace ovindra
