// The one model of a sheet: what reports write, the screen shows, the printer prints and the writers of files
// save. Rows and columns count from 1. Cells are texts, kept only where something was written or formatted;
// styles are kept once each and named by a number.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/workbook/style.h"

namespace ovindra {

/// Cells from one corner to the other, both included. A range with a last row or column before its first
/// holds no cell.
struct CellRange {
  int first_row = 1;
  int first_column = 1;
  int last_row = 1;
  int last_column = 1;

  bool operator==(const CellRange&) const = default;
};

/// How the sheet goes to paper. Margins in inches; header and footer in the codes of spreadsheets: &L, &C, &R
/// begin a part, &P is the page's number, &N the count of pages, && one ampersand.
struct PageSetup {
  double left_margin = 0.75;
  double right_margin = 0.75;
  double top_margin = 1;
  double bottom_margin = 1;
  bool grid_lines = true;
  bool headings = true;
  bool centred = false;
  std::string header;
  std::string footer;
  /// The first and last row that stand at the top of every page.
  std::optional<std::pair<int, int>> repeated_rows = std::nullopt;
};

/// The place of a style in the list of them.
using StyleId = std::uint16_t;

class Workbook {
 public:
  /// 256 to a character.
  static constexpr int kDefaultColumnWidth = 9 * 256;
  /// Points.
  static constexpr double kDefaultRowHeight = 13.5;
  /// The height of a line, in sizes of its font.
  static constexpr double kLineHeight = 1.25;

  Workbook();

  /// The name of its one sheet.
  const std::string& sheet_name() const { return sheet_name_; }
  void SetSheetName(std::string name) { sheet_name_ = std::move(name); }

  /// The last row and column where anything was written or formatted; 0 in an empty sheet.
  int last_row() const;
  int last_column() const;

  /// The text of a cell, empty where nothing was written.
  std::string_view Text(int row, int column) const;
  void SetText(int row, int column, std::string_view text);

  /// How a cell looks.
  const CellStyle& Style(int row, int column) const { return StyleOf(StyleIdAt(row, column)); }
  StyleId StyleIdAt(int row, int column) const;
  const CellStyle& StyleOf(StyleId id) const { return styles_[id]; }
  /// All styles so far, by their numbers; 0 is that of a cell never formatted.
  const std::vector<CellStyle>& styles() const { return styles_; }

  /// Changes the style of every cell of the range, empty ones too.
  void Restyle(const CellRange& range, const std::function<void(CellStyle&)>& change);

  /// Takes text and format away.
  void Clear(const CellRange& range);

  int ColumnWidth(int column) const;
  void SetColumnWidth(int column, int width);
  /// The columns that were given a width.
  const std::map<int, int>& column_widths() const { return column_widths_; }

  /// Points. A row that was given no height has room for its largest font.
  double RowHeight(int row) const;
  void SetRowHeight(int row, double height);
  /// The rows that are not as high as an empty one, and their heights.
  std::map<int, double> OtherHeights() const;
  /// The rows that were given a height.
  const std::map<int, double>& row_heights() const { return row_heights_; }

  const std::vector<CellRange>& merges() const { return merges_; }
  void Merge(const CellRange& range);

  /// The password that the sheet's contents are protected with, if they are.
  const std::optional<std::string>& protection() const { return protection_; }
  void Protect(std::string password) { protection_ = std::move(password); }

  /// Counts the changes of what the sheet shows: texts, looks, sizes and merges, not the page setup.
  std::uint64_t revision() const { return revision_; }

  PageSetup page_setup;

 private:
  struct Cell {
    std::string text;
    StyleId style = 0;
  };
  using Row = std::vector<Cell>;

  const Cell* Find(int row, int column) const;
  Cell& At(int row, int column);
  StyleId IdOf(const CellStyle& style);
  double FontHeight(const Row& row) const;

  std::uint64_t revision_ = 0;
  std::string sheet_name_ = "Sheet1";
  std::vector<Row> rows_;
  std::vector<CellStyle> styles_;
  std::map<int, int> column_widths_;
  std::map<int, double> row_heights_;
  std::vector<CellRange> merges_;
  std::optional<std::string> protection_;
};

}  // namespace ovindra
