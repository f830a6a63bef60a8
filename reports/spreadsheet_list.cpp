#include "reports/spreadsheet_list.h"

#include <algorithm>

#include "base/workbook/text_fit.h"

namespace ovindra {
namespace {

constexpr const char* kFontName = "Times New Roman";
constexpr const char* kPassword = "Tarn";
constexpr double kWidening = 2.5;
/// 30.71 characters.
constexpr int kLastColumnWidth = 7862;
/// A spreadsheet's widest column.
constexpr int kWidestColumn = 255 * 256;

CellFont Font(int size, bool bold, bool underline = false) {
  CellFont font;
  font.name = kFontName;
  font.size = size;
  font.bold = bold;
  font.underline = underline;
  return font;
}

void SetFont(Workbook& workbook, const CellRange& range, const CellFont& font) {
  workbook.Restyle(range, [&](CellStyle& style) { style.font = font; });
}

void WriteRows(Workbook& workbook, const SpreadsheetList& list) {
  int row = list.heading_row;
  for (std::size_t i = 0; i < list.headings.size(); ++i)
    workbook.SetText(row, static_cast<int>(i) + 1, list.headings[i]);
  for (const auto& cells : list.rows) {
    ++row;
    workbook.SetText(row, 1, std::to_string(row - list.heading_row));
    for (std::size_t i = 0; i < cells.size(); ++i) workbook.SetText(row, static_cast<int>(i) + 2, cells[i]);
  }
}

void FormatBlock(Workbook& workbook, const CellRange& block) {
  CellRange heading = block;
  heading.last_row = block.first_row;
  CellRange data = block;
  ++data.first_row;
  SetFont(workbook, heading, Font(10, true));
  SetFont(workbook, data, Font(10, false));
  workbook.Restyle(data, [](CellStyle& style) { style.border = {true, true, true, true, 0}; });
  workbook.Restyle(block, [](CellStyle& style) { style.alignment.horizontal = HorizontalAlign::kLeft; });
  FitColumnWidths(workbook, block);
  for (int column = block.first_column; column < block.last_column; ++column) {
    const double width = workbook.ColumnWidth(column) * kWidening;
    workbook.SetColumnWidth(column, std::min(kWidestColumn, static_cast<int>(width)));
  }
  CellRange last_column = block;
  last_column.first_column = block.last_column;
  workbook.SetColumnWidth(block.last_column, kLastColumnWidth);
  workbook.Restyle(last_column, [](CellStyle& style) { style.alignment.wrapped = true; });
}

}  // namespace

Workbook MakeSpreadsheet(const SpreadsheetList& list) {
  Workbook workbook;
  const int columns = static_cast<int>(list.headings.size());
  const int last_row = list.heading_row + static_cast<int>(list.rows.size());
  workbook.SetText(1, 1, "Lanvik Eye Institute");
  SetFont(workbook, {1, 1, 1, 1}, Font(20, true, true));
  for (const SpreadsheetLine& line : list.lines) {
    workbook.SetText(line.row, 1, line.text);
    SetFont(workbook, {line.row, 1, line.row, 1}, Font(14, false));
  }
  WriteRows(workbook, list);
  FormatBlock(workbook, {list.heading_row, 1, last_row, columns});
  const CellRange top{1, 1, 1, columns};
  workbook.Merge(top);
  workbook.Restyle(top, [](CellStyle& style) { style.alignment.horizontal = HorizontalAlign::kCentre; });
  if (!list.closing_line.empty()) workbook.SetText(last_row + 1, 1, list.closing_line);
  workbook.Protect(kPassword);
  return workbook;
}

}  // namespace ovindra
