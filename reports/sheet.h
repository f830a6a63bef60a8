// The operations of the report sheet by which all reports are written, and the named styles in which they
// come out. Rows and columns count from 1. A Sheet is a view of the form's report sheet with a selection of
// its own, made where it is needed and thrown away.
#pragma once

#include <string_view>

#include "base/controls/report_sheet.h"
#include "base/database/recordset.h"

namespace ovindra {

inline constexpr Colour kBlue = 0xFF0000;
inline constexpr Colour kMagenta = 0xFF00FF;

CellFont HospitalStyle();
CellFont TitleStyle();
CellFont HeaderStyle();
CellFont SubtotalStyle();
CellFont BodyStyle();

enum class Wrap { kOff, kOn };

class Sheet {
 public:
  explicit Sheet(ReportSheet& control) : control_(control) {}

  /// Empties the cells, text and formats both.
  void ClearCells(int row1, int col1, int row2, int col2);

  void SetCellText(int row, int col, std::string_view text);
  /// A number is written as its text.
  void SetCellText(int row, int col, double number);
  /// A field is written as its text, trimmed; NULL as none.
  void SetCellText(int row, int col, const Field& field);
  std::string_view GetCellText(int row, int col) const { return control_.workbook().Text(row, col); }

  /// The cells that the next formatting calls apply to.
  void SelectCells(int row1, int col1, int row2, int col2);
  void SetSelectionFont(const CellFont& font);
  /// The size alone.
  void SetSelectionFontSize(int size);
  void SetSelectionAlignment(HorizontalAlign horizontal, Wrap wrap,
                             VerticalAlign vertical = VerticalAlign::kBottom);
  /// Thin blue lines around every cell of the selection. The pattern that belongs to them is blank paper.
  void SetSelectionBorder();

  void SetColumnWidth(int col, int width);
  /// Fits the widths of the columns to the texts of the rectangle.
  void FitColumns(int row1, int col1, int row2, int col2);
  /// Fits the heights of the rows to the texts of the rectangle.
  void FitRows(int row1, int col1, int row2, int col2);

  /// Rows that stand at the top of every printed page.
  void RepeatOnPages(int first_row, int last_row);

  /// The sheet's name in a saved file, cut at 31 characters, each of : \ / ? * [ ] a blank. An empty text
  /// leaves the name as it was.
  void NameSheet(std::string_view text);

 private:
  Workbook& Edit() { return control_.Edit(); }

  ReportSheet& control_;
  CellRange selection_;
};

}  // namespace ovindra
