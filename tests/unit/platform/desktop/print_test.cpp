// Sheets on paper: how they fall into pages, what stands above and below, and that a printer gets them.
#include <QPrinter>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "platform/desktop/paper/page_text.h"
#include "platform/desktop/paper/print_sheet.h"
#include "platform/desktop/paper/sheet_pages.h"
#include "sheet_desk.h"

namespace ovindra::desktop {
namespace {

SheetSize Rows(int rows, int columns, double column_width) {
  SheetSize size;
  size.last_row = rows;
  size.last_column = columns;
  size.row_height = [](int) { return 20.0; };
  size.column_width = [column_width](int) { return column_width; };
  return size;
}

TEST(Pages, AreFilledWithRowsAndNoneIsLost) {
  const SheetPages laid_out = LayOut(Rows(95, 4, 100), 600, 800);
  ASSERT_EQ(laid_out.pages.size(), 3U);
  EXPECT_EQ(laid_out.scale, 1);
  EXPECT_EQ(laid_out.pages[0].last_row, 40);
  EXPECT_EQ(laid_out.pages[1].first_row, 41);
  EXPECT_EQ(laid_out.pages[2].last_row, 95);
}

TEST(Pages, RepeatTheHeadingRowWhereItIsNotTheirOwn) {
  SheetSize size = Rows(95, 4, 100);
  size.repeated_rows = {5, 5};
  const SheetPages laid_out = LayOut(size, 600, 800);
  EXPECT_FALSE(laid_out.pages[0].repeats_rows);
  EXPECT_TRUE(laid_out.pages[1].repeats_rows);
  EXPECT_EQ(laid_out.pages[1].last_row - laid_out.pages[1].first_row + 1, 39);
}

TEST(Pages, OfAWideSheetAreMadeSmallerThenGoOnBeside) {
  const SheetPages fitted = LayOut(Rows(10, 8, 100), 600, 800);
  EXPECT_DOUBLE_EQ(fitted.scale, 0.75);
  EXPECT_EQ(fitted.pages.size(), 1U);
  const SheetPages beside = LayOut(Rows(10, 20, 100), 600, 800);
  EXPECT_DOUBLE_EQ(beside.scale, kSmallestScale);
  ASSERT_EQ(beside.pages.size(), 2U);
  EXPECT_EQ(beside.pages[1].first_column, beside.pages[0].last_column + 1);
  EXPECT_EQ(beside.pages[1].last_column, 20);
}

TEST(Pages, HoldARowThatIsHigherThanThePaper) {
  SheetSize size = Rows(3, 1, 100);
  size.row_height = [](int row) { return row == 2 ? 5000.0 : 20.0; };
  EXPECT_EQ(LayOut(size, 600, 800).pages.size(), 3U);
  EXPECT_EQ(LayOut(Rows(0, 0, 100), 600, 800).pages.size(), 1U);
}

TEST(PageTexts, AreReadFromTheirCodes) {
  const PageFacts facts{3, 7, "Enroll", "31/05/2016", "10:15"};
  const struct {
    const char* codes;
    const char* left;
    const char* centre;
    const char* right;
  } cases[] = {
      {"&C & Page &P", "", "  Page 3", ""}, {"&LA&CB&RC", "A", "B", "C"},
      {"plain", "", "plain", ""},           {"&R&P of &N", "", "", "3 of 7"},
      {"&l&a", "Enroll", "", ""},           {"Tom && Co &D &T", "", "Tom & Co 31/05/2016 10:15", ""},
      {"&C&B&Page 5&", "", "3age 5", ""},
  };
  for (const auto& [codes, left, centre, right] : cases) {
    const PageText text = ReadPageText(codes, facts);
    EXPECT_EQ(text.left, left) << codes;
    EXPECT_EQ(text.centre.trimmed(), QString(centre).trimmed()) << codes;
    EXPECT_EQ(text.right, right) << codes;
  }
}

/// So that the text of the page has them as they are written.
void KeepHeadingsOnOneLine(Workbook& workbook, int columns) {
  for (int column = 1; column <= columns; ++column) workbook.SetColumnWidth(column, 14 * 256);
}

class Printed : public testing::Test {
 protected:
  Printed() { UseOffscreenApplication(); }

  /// The text of the printed pages, each ended by a form feed.
  QString Print(const Workbook& workbook) {
    const QString file = folder_.filePath("sheet.pdf");
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    printer.setPageSize(QPageSize(QPageSize::A4));
    PrintSheet(workbook, printer);
    QProcess reader;
    reader.start("pdftotext", {"-layout", file, "-"});
    reader.waitForFinished();
    return QString::fromUtf8(reader.readAllStandardOutput());
  }

  QTemporaryDir folder_;
};

TEST_F(Printed, AReportOfSeveralPagesIsWholeNumberedAndHeaded) {
  Workbook workbook;
  WriteReport(workbook, 120, 6);
  KeepHeadingsOnOneLine(workbook, 6);
  workbook.page_setup.grid_lines = false;
  workbook.page_setup.headings = false;
  workbook.page_setup.repeated_rows = {5, 5};
  const QString text = Print(workbook);
  EXPECT_EQ(text.count('\f'), 3);
  EXPECT_EQ(text.count("Heading 6"), 3);
  EXPECT_EQ(text.count("Lanvik Eye Institute"), 1);
  EXPECT_TRUE(text.contains("Page 2 of 3"));
  for (int row = 6; row <= 125; ++row) EXPECT_TRUE(text.contains("CHILD " + QString::number(row)));
}

TEST_F(Printed, APageSetupWithoutMarginsKeepsItsFooterAndItsText) {
  Workbook workbook;
  WriteReport(workbook, 10, 3);
  KeepHeadingsOnOneLine(workbook, 3);
  PageSetup& setup = workbook.page_setup;
  setup.left_margin = setup.right_margin = setup.top_margin = setup.bottom_margin = 0;
  setup.centred = true;
  setup.footer = "&C & Page &P";
  const QString text = Print(workbook);
  EXPECT_TRUE(text.contains(" Page 1"));
  EXPECT_TRUE(text.contains("Heading 3"));
  EXPECT_TRUE(text.contains("C\n") || text.contains(" C ")) << "the letters of the columns";
}

TEST_F(Printed, APrinterThatTakesNothingIsAnError) {
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(folder_.filePath("missing/sheet.pdf"));
  try {
    PrintSheet(Workbook(), printer);
    FAIL();
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.number(), 482);
  }
}

}  // namespace
}  // namespace ovindra::desktop
