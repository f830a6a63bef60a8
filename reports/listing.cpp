#include "reports/listing.h"

#include <numeric>
#include <string>

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

int RowIndex::GroupOf(std::string_view text) {
  return groups_.try_emplace(std::string(text), static_cast<int>(groups_.size())).first->second;
}

void RowIndex::Gather(int first_row, const std::vector<int>& group_of_row) {
  starts_.assign(groups_.size() + 1, 0);
  for (const int group : group_of_row) ++starts_[static_cast<std::size_t>(group) + 1];
  std::partial_sum(starts_.begin(), starts_.end(), starts_.begin());
  rows_.resize(group_of_row.size());
  std::vector<int> next(starts_);
  int row = first_row;
  for (const int group : group_of_row) {
    const int place = next[static_cast<std::size_t>(group)]++;
    rows_[static_cast<std::size_t>(place)] = row++;
  }
}

std::span<const int> RowIndex::RowsOf(std::string_view text) const {
  const auto found = groups_.find(std::string(text));
  if (found == groups_.end()) return {};
  const int* start = &starts_[static_cast<std::size_t>(found->second)];
  return std::span(rows_).subspan(static_cast<std::size_t>(start[0]),
                                  static_cast<std::size_t>(start[1] - start[0]));
}

GridIndex::GridIndex(const Grid& grid, int column)
    : RowIndex(grid.fixed_rows(), grid.rows() - 1,
               [&](int row) -> decltype(auto) { return grid.Cell(row, column); }) {}

SheetIndex::SheetIndex(const Sheet& sheet, int first_row, int last_row, int column)
    : RowIndex(first_row, last_row, [&](int row) { return sheet.GetCellText(row, column); }) {}

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
    const std::span<const int> rows = index.RowsOf(Trim(records.At(key_ordinal)));
    if (rows.empty()) continue;
    const std::string value = Trim(records.At(value_ordinal));
    for (const int row : rows) JoinText(grid, row, column, value);
  }
}

}  // namespace ovindra
