// How wide columns and how high rows become for their texts.
#include "base/workbook/text_fit.h"

#include <gtest/gtest.h>

namespace ovindra {
namespace {

constexpr CellRange kCell{1, 1, 1, 1};

Workbook With(std::string_view text, bool wrapped = false) {
  Workbook workbook;
  workbook.SetText(1, 1, text);
  workbook.Restyle(kCell, [&](CellStyle& style) {
    style.font.size = 10;
    style.alignment.wrapped = wrapped;
  });
  return workbook;
}

int FittedWidth(std::string_view text) {
  Workbook workbook = With(text);
  FitColumnWidths(workbook, kCell);
  return workbook.ColumnWidth(1);
}

double FittedHeight(std::string_view text, int column_width) {
  Workbook workbook = With(text, true);
  workbook.SetColumnWidth(1, column_width);
  FitRowHeights(workbook, kCell);
  return workbook.RowHeight(1);
}

TEST(ColumnWidths, FitTheWidestTextWhichNeedNotBeTheLongest) {
  EXPECT_LT(FittedWidth("IIIIII"), FittedWidth("WWWW"));
  for (const bool widest_first : {true, false}) {
    Workbook workbook = With(widest_first ? "WWWW" : "IIIIII");
    workbook.SetText(2, 1, widest_first ? "IIIIII" : "WWWW");
    workbook.Restyle({2, 1, 2, 1}, [](CellStyle& style) { style.font.size = 10; });
    FitColumnWidths(workbook, {1, 1, 2, 1});
    EXPECT_EQ(workbook.ColumnWidth(1), FittedWidth("WWWW"));
  }
}

TEST(ColumnWidths, CountALetterBeyondTheLatinOnesOnce) {
  EXPECT_EQ(FittedWidth("\xE0\xA4\x86"),
            FittedWidth("A"));  // one letter of three bytes, as wide as a wide one
  EXPECT_LT(FittedWidth("\xE0\xA4\x86"), FittedWidth("AA"));
}

TEST(ColumnWidths, StayWhereNothingIsWritten) {
  Workbook workbook;
  FitColumnWidths(workbook, {1, 1, 5, 5});
  EXPECT_TRUE(workbook.column_widths().empty());
}

TEST(RowHeights, HoldTheLinesThatTheWordsTake) {
  const int width = 6000;
  const double line = FittedHeight("A", width);
  // Two words that would fill one line and a half take two, four of them four.
  EXPECT_EQ(FittedHeight("WWWWWWWWW WWWWWWWWW", width), 25);
  EXPECT_EQ(FittedHeight("WWWWWWWWW WWWWWWWWW WWWWWWWWW WWWWWWWWW", width), 50);
  EXPECT_EQ(line, Workbook::kDefaultRowHeight);
}

TEST(RowHeights, BreakBehindASlash) {
  EXPECT_EQ(FittedHeight("SPECTACLE PRESCRIBED/FREE,REFER TO OS CAMP", 6000), 50);
}

TEST(RowHeights, BreakAWordThatIsWiderThanItsColumn) {
  EXPECT_EQ(FittedHeight("WWWWWWWWWWWWWWWWWWWWWWWWWWWWWW", 6000), 37.5);
}

}  // namespace
}  // namespace ovindra
