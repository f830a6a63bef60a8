#include "reports/sheet.h"

#include <algorithm>

#include "base/text/blanks.h"
#include "base/text/utf8.h"
#include "base/workbook/text_fit.h"
#include "core/text/text.h"

namespace ovindra {
namespace {

/// All styles are of one face; outline and shadow are on.
CellFont Style(int size, bool bold, bool underline, Colour colour) {
  CellFont font;
  font.size = size;
  font.bold = bold;
  font.underline = underline;
  font.colour = colour;
  font.outline = true;
  font.shadow = true;
  return font;
}

}  // namespace

CellFont HospitalStyle() {
  return Style(15, true, true, kRed);
}
CellFont TitleStyle() {
  return Style(10, true, true, kRed);
}
CellFont HeaderStyle() {
  return Style(10, true, false, kMagenta);
}
CellFont SubtotalStyle() {
  return Style(10, true, false, kBlue);
}
CellFont BodyStyle() {
  return Style(10, false, false, kBlue);
}

void Sheet::ClearCells(int row1, int col1, int row2, int col2) {
  Edit().Clear({row1, col1, row2, col2});
}

void Sheet::SetCellText(int row, int col, std::string_view text) {
  Edit().SetText(row, col, text);
}

void Sheet::SetCellText(int row, int col, double number) {
  SetCellText(row, col, NumberText(number));
}

void Sheet::SetCellText(int row, int col, const Field& field) {
  if (field.kind() == FieldKind::kText) {
    SetCellText(row, col, Trim(field.RawText()));
  } else {
    SetCellText(row, col, Trim(field));
  }
}

void Sheet::SelectCells(int row1, int col1, int row2, int col2) {
  selection_ = {row1, col1, row2, col2};
}

void Sheet::SetSelectionFont(const CellFont& font) {
  Edit().Restyle(selection_, [&](CellStyle& style) { style.font = font; });
}

void Sheet::SetSelectionFontSize(int size) {
  Edit().Restyle(selection_, [&](CellStyle& style) { style.font.size = size; });
}

void Sheet::SetSelectionAlignment(HorizontalAlign horizontal, Wrap wrap, VerticalAlign vertical) {
  const CellAlignment alignment{horizontal, wrap == Wrap::kOn, vertical};
  Edit().Restyle(selection_, [&](CellStyle& style) { style.alignment = alignment; });
}

void Sheet::SetSelectionBorder() {
  constexpr CellBorder kLines{true, true, true, true, kBlue};
  Edit().Restyle(selection_, [&](CellStyle& style) { style.border = kLines; });
}

void Sheet::SetColumnWidth(int col, int width) {
  Edit().SetColumnWidth(col, width);
}

void Sheet::FitColumns(int row1, int col1, int row2, int col2) {
  FitColumnWidths(Edit(), {row1, col1, row2, col2});
}

void Sheet::FitRows(int row1, int col1, int row2, int col2) {
  FitRowHeights(Edit(), {row1, col1, row2, col2});
}

void Sheet::RepeatOnPages(int first_row, int last_row) {
  Edit().page_setup.repeated_rows = {first_row, last_row};
}

void Sheet::NameSheet(std::string_view text) {
  constexpr std::size_t kLongestName = 31;
  constexpr std::string_view kForbidden = ":\\/?*[]";
  if (text.empty()) return;
  std::string name(FirstCharacters(text, kLongestName));
  std::replace_if(
      name.begin(), name.end(), [&](char character) { return kForbidden.find(character) != kForbidden.npos; },
      ' ');
  Edit().SetSheetName(std::move(name));
}

}  // namespace ovindra
