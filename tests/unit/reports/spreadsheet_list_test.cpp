// What a list in the spreadsheet application looks like, and the marks that all styles of a report share.
#include "reports/spreadsheet_list.h"

#include <gtest/gtest.h>

#include "reports/sheet.h"

namespace ovindra {
namespace {

TEST(SpreadsheetList, HasTheFontsLinesAndLockOfItsParts) {
  SpreadsheetList list;
  list.lines = {{3, "period"}};
  list.headings = {"Sr.", "Name", "School"};
  list.rows = {{"ASHA", "EAST"}};
  list.closing_line = "Double-0";
  const Workbook workbook = MakeSpreadsheet(list);
  const struct {
    int row, column, size;
    bool bold, underline, boxed, wrapped;
    HorizontalAlign align;
  } kCells[] = {{1, 1, 20, true, true, false, false, HorizontalAlign::kCentre},
                {3, 1, 14, false, false, false, false, HorizontalAlign::kGeneral},
                {5, 1, 10, true, false, false, false, HorizontalAlign::kLeft},
                {5, 3, 10, true, false, false, true, HorizontalAlign::kLeft},
                {6, 2, 10, false, false, true, false, HorizontalAlign::kLeft},
                {6, 3, 10, false, false, true, true, HorizontalAlign::kLeft},
                {7, 1, 10, false, false, false, false, HorizontalAlign::kGeneral}};
  for (const auto& cell : kCells) {
    SCOPED_TRACE(testing::Message() << cell.row << ' ' << cell.column);
    const CellStyle& style = workbook.Style(cell.row, cell.column);
    EXPECT_EQ(style.font.size, cell.size);
    EXPECT_EQ(style.font.bold, cell.bold);
    EXPECT_EQ(style.font.underline, cell.underline);
    EXPECT_EQ(style.border.OnAllSides(), cell.boxed);
    EXPECT_EQ(style.border.OnAnySide(), cell.boxed);
    EXPECT_EQ(style.alignment.wrapped, cell.wrapped);
    EXPECT_EQ(style.alignment.horizontal, cell.align);
  }
  EXPECT_EQ(workbook.protection(), "Tarn");
}

TEST(Styles, AreTimesWithOutlineAndShadow) {
  for (const CellFont& font : {HospitalStyle(), TitleStyle(), HeaderStyle(), SubtotalStyle(), BodyStyle()}) {
    EXPECT_EQ(font.name, "TIMES NEW ROMAN");
    EXPECT_TRUE(font.outline && font.shadow);
    EXPECT_FALSE(font.italic || font.strikeout);
  }
}

}  // namespace
}  // namespace ovindra
