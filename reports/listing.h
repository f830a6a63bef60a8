// What the list reports share: headings, numbered rows from records or from a staging grid, and the texts of
// other records joined to the rows of a grid. A join goes through an index of the grid's rows, so that the
// work grows with the rows and not with their square; what comes out is what a scan of all rows for every
// record would give.
#pragma once

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "base/controls/grid.h"
#include "base/database/recordset.h"
#include "base/text/blanks.h"
#include "reports/sheet.h"

namespace ovindra {

/// Writes the headings from column 1 on.
void WriteHeadings(Sheet& sheet, int row, std::span<const std::string_view> headings);
void WriteHeadings(Sheet& sheet, int row, std::initializer_list<std::string_view> headings);

/// Writes a row for each record from that row on: the running number, then the fields, trimmed. Gives the
/// last row written, the one before the first where there is no record.
int WriteRecords(Sheet& sheet, int first_row, Recordset& records, std::span<const std::string_view> fields);
int WriteRecords(Sheet& sheet, int first_row, Recordset& records,
                 std::initializer_list<std::string_view> fields);

/// Writes a row for each row of the staging grid: the running number, then the grid's columns, trimmed.
int WriteGridRows(Sheet& sheet, int first_row, const Grid& grid, std::initializer_list<int> columns);

/// The cells with that font inside blue lines.
void StyleBlock(Sheet& sheet, const CellRange& cells, const CellFont& font);

/// A list as it comes out: the heading row and the data rows below it, their columns fitted.
void StyleList(Sheet& sheet, int heading_row, int last_row, int columns);

/// A table in memory in which a builder gathers its rows; a person never sees it.
class StagingGrid : public Grid {
 public:
  StagingGrid(Container& container, std::string_view name, std::initializer_list<std::string_view> headings);

  /// Leaves the headings alone.
  void Empty() { SetRows(fixed_rows()); }
};

/// Rows by the trimmed text of one of their columns. It stands as long as the rows do.
class RowIndex {
 public:
  /// The rows with that text, in their order.
  std::span<const int> RowsOf(std::string_view text) const;

 protected:
  /// The rows from one to another, by the texts that the function gives for them.
  template <typename TextOf>
  RowIndex(int first_row, int last_row, TextOf text_of) {
    const int count = last_row - first_row + 1;
    if (count <= 0) return;
    groups_.reserve(static_cast<std::size_t>(count));
    std::vector<int> group_of_row;
    group_of_row.reserve(static_cast<std::size_t>(count));
    for (int row = first_row; row <= last_row; ++row) group_of_row.push_back(GroupOf(Trim(text_of(row))));
    Gather(first_row, group_of_row);
  }

 private:
  int GroupOf(std::string_view text);
  void Gather(int first_row, const std::vector<int>& group_of_row);

  std::unordered_map<std::string, int> groups_;
  /// The rows, group by group, and where each group begins; behind the last one the end.
  std::vector<int> rows_;
  std::vector<int> starts_;
};

/// The data rows of a grid.
class GridIndex : public RowIndex {
 public:
  GridIndex(const Grid& grid, int column);
};

/// Rows of the sheet, from one to another.
class SheetIndex : public RowIndex {
 public:
  SheetIndex(const Sheet& sheet, int first_row, int last_row, int column);
};

/// Puts a text into the cell, or behind a comma where something stands already. True when it was the first.
bool JoinText(Grid& grid, int row, int column, std::string_view text);

/// Joins the trimmed value of every record into the column of each row whose key is the record's.
void JoinRecords(Grid& grid, const GridIndex& index, int column, Recordset& records,
                 std::string_view key_field, std::string_view value_field);

}  // namespace ovindra
