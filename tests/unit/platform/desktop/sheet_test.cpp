// The report sheet on the screen: what a person sees of it and does with it.
#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QMdiSubWindow>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

#include "platform/desktop/windows/form_window.h"
#include "sheet_desk.h"

namespace ovindra::desktop {
namespace {

class Sheet : public testing::Test {
 protected:
  void Write(int row, int column, const char* text) {
    desk_.Do([&] { desk_.form().F1Book1.Edit().SetText(row, column, text); });
  }
  void Report(int rows, int columns) {
    desk_.Do([&] { WriteReport(desk_.form().F1Book1.Edit(), rows, columns); });
  }
  SheetView& sheet() { return desk_.sheet(); }
  QImage Picture() { return sheet().viewport()->grab().toImage(); }
  /// The part of the picture within the columns of a row.
  QImage Cells(int row, int first_column, int last_column) {
    const QModelIndex first = sheet().model()->index(row - 1, first_column - 1);
    const QModelIndex last = sheet().model()->index(row - 1, last_column - 1);
    return Picture().copy(sheet().visualRect(first).united(sheet().visualRect(last)));
  }
  static bool HasInk(const QImage& image, QColor ink) {
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, y) == ink) return true;
      }
    }
    return false;
  }
  SheetCell Current() { return {sheet().currentIndex().row() + 1, sheet().currentIndex().column() + 1}; }

  SheetDesk desk_;
};

TEST_F(Sheet, ALongTextRunsOverEmptyNeighboursAndStopsAtFullOnes) {
  Write(3, 2, "A TITLE THAT IS FAR TOO LONG FOR ONE COLUMN");
  desk_.Do([&] {
    desk_.form().F1Book1.Edit().Restyle({3, 2, 3, 2}, [](CellStyle& style) { style.font.colour = 255; });
  });
  EXPECT_TRUE(HasInk(Cells(3, 4, 4), Qt::red));
  Write(3, 3, "x");
  EXPECT_FALSE(HasInk(Cells(3, 4, 4), Qt::red));
}

TEST_F(Sheet, ANumberTooWideForItsCellIsShownWithAllItsDigits) {
  Write(3, 2, "x");
  Write(3, 4, "x");
  Write(3, 3, "738834908112");
  const QImage shown = Cells(3, 3, 3);
  for (const char* other : {"138834908112", "738834908117"}) {
    Write(3, 3, other);
    EXPECT_NE(Cells(3, 3, 3), shown) << other;
  }
}

TEST_F(Sheet, BordersAreInkedOnTheirSidesAlone) {
  desk_.Do([&] {
    desk_.form().F1Book1.Edit().Restyle({5, 3, 5, 3}, [](CellStyle& style) {
      style.border.bottom = true;
      style.border.colour = 255;
    });
  });
  const QImage cell = Cells(5, 3, 3);
  const int last = cell.height() - 1;
  EXPECT_EQ(cell.pixelColor(cell.width() / 2, last), QColor(Qt::red));
  EXPECT_NE(cell.pixelColor(cell.width() - 1, last / 2), QColor(Qt::red));
  EXPECT_NE(cell.pixelColor(cell.width() / 2, 0), QColor(Qt::red));
}

TEST_F(Sheet, WidthsAreThoseOfTheWorkbookAtAnyZoom) {
  const int widths[] = {1500, 12000, 20000, 1, 2304};
  desk_.Do([&] {
    for (int column = 1; column <= 5; ++column)
      desk_.form().F1Book1.Edit().SetColumnWidth(column, widths[column - 1]);
  });
  for (const double zoom : {1.0, 0.5, 1.3}) {
    sheet().SetZoom(zoom);
    for (int column = 1; column <= 5; ++column) EXPECT_EQ(sheet().ShownWidth(column), widths[column - 1]);
  }
  sheet().SetZoom(1);
  sheet().setColumnWidth(1, 700);
  EXPECT_NE(sheet().ShownWidth(2), 12000) << "a dragged column is not the workbook's";
  EXPECT_EQ(desk_.form().F1Book1.workbook().ColumnWidth(2), 12000);
}

TEST_F(Sheet, AReportIsShownFromItsFirstCellAPageSetupLeavesThePlace) {
  Report(500, 13);
  sheet().setCurrentIndex(sheet().model()->index(300, 2));
  const int place = sheet().verticalScrollBar()->value();
  ASSERT_GT(place, 0);
  desk_.Do([&] { desk_.form().F1Book1.Edit().page_setup.grid_lines = false; });
  EXPECT_EQ(sheet().verticalScrollBar()->value(), place);
  EXPECT_EQ(Current(), (SheetCell{301, 3}));
  Report(20, 13);
  EXPECT_EQ(sheet().verticalScrollBar()->value(), 0);
  EXPECT_EQ(Current(), (SheetCell{1, 1}));
}

TEST_F(Sheet, RowHeightsGoBackWhenAReportIsBuiltAnew) {
  desk_.Do([&] { desk_.form().F1Book1.Edit().SetRowHeight(2, 40); });
  EXPECT_EQ(sheet().rowHeight(1), 55);
  EXPECT_EQ(sheet().rowHeight(2), 20);
  const auto enlarge = [](CellStyle& style) { style.font.size = 20; };
  desk_.Do([&] { desk_.form().F1Book1.Edit().Restyle({2, 1, 3, 1}, enlarge); });
  EXPECT_EQ(sheet().rowHeight(1), 55) << "a height that was given";
  EXPECT_EQ(sheet().rowHeight(2), 35) << "room for the font";
  desk_.Do([&] { desk_.form().F1Book1.Edit().Clear({3, 1, 3, 13}); });
  EXPECT_EQ(sheet().rowHeight(2), 20);
  sheet().SetZoom(2);
  EXPECT_EQ(sheet().rowHeight(1), 111);
  EXPECT_EQ(sheet().rowHeight(2), 40);
}

TEST_F(Sheet, ABlockIsCopiedAsSpreadsheetsExchangeIt) {
  Write(1, 1, "NAME");
  Write(1, 2, "say \"no\"");
  Write(2, 1, "two\nlines");
  Write(2, 3, "tab\there");
  desk_.WidgetOf(desk_.form().F1Book1).setFocus();
  desk_.Do([&] { desk_.form().F1Book1.SetFocus(); });
  desk_.Key(Qt::Key_A, Qt::ControlModifier);
  desk_.Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(),
            "NAME\t\"say \"\"no\"\"\"\t\n\"two\nlines\"\t\t\"tab\there\"\n");
  sheet().setCurrentIndex(sheet().model()->index(0, 0));
  desk_.Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "NAME");
}

TEST_F(Sheet, FindGoesRoundTheSheetAndGivesTheFocusBack) {
  Report(30, 3);
  Write(20, 2, "Musahri");
  Write(9, 3, "MUSAHRI");
  desk_.Do([&] { desk_.form().Command1.SetFocus(); });
  desk_.Key(Qt::Key_F, Qt::ControlModifier);
  desk_.Type("musah");
  EXPECT_EQ(Current(), (SheetCell{9, 3}));
  desk_.Key(Qt::Key_Return);
  EXPECT_EQ(Current(), (SheetCell{20, 2}));
  desk_.Key(Qt::Key_Return);
  EXPECT_EQ(Current(), (SheetCell{9, 3}));
  desk_.Key(Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(Current(), (SheetCell{20, 2}));
  desk_.Type("q");
  EXPECT_EQ(Current(), (SheetCell{20, 2})) << "a text that is nowhere moves nothing";
  desk_.Key(Qt::Key_Escape);
  EXPECT_FALSE(sheet().find_bar()->isVisible());
  EXPECT_EQ(desk_.form().focused(), &desk_.form().Command1);
  EXPECT_EQ(QApplication::focusWidget(), &desk_.WidgetOf(desk_.form().Command1));
}

TEST_F(Sheet, TheFormsKeysWorkInTheSheetAndInTheFindBar) {
  std::vector<KeyName> seen;
  desk_.form().key_down.Handle([&](KeyName key) { seen.push_back(key); });
  desk_.Do([&] { desk_.form().F1Book1.SetFocus(); });
  desk_.Key(Qt::Key_F8);
  desk_.Key(Qt::Key_F, Qt::ControlModifier);
  desk_.Key(Qt::Key_F8);
  EXPECT_EQ(seen, (std::vector{KeyName::kF8, KeyName::kF8}));
}

TEST_F(Sheet, ZoomLeavesTheWorkbookAndThePlaceAlone) {
  Report(500, 13);
  sheet().setCurrentIndex(sheet().model()->index(300, 0));
  const int top = sheet().rowAt(0);
  desk_.Do([&] { desk_.form().F1Book1.SetFocus(); });
  desk_.Key(Qt::Key_Plus, Qt::ControlModifier);
  desk_.Key(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(sheet().zoom(), 1.2);
  EXPECT_EQ(sheet().rowAt(0), top);
  EXPECT_EQ(desk_.form().F1Book1.workbook().Style(6, 1).font.size, 10);
  desk_.Key(Qt::Key_0, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(sheet().zoom(), 1.0);
}

TEST_F(Sheet, AHundredThousandRowsOpenAtOnce) {
  QElapsedTimer clock;
  Workbook& workbook = desk_.form().F1Book1.Edit();
  WriteReport(workbook, 100'000, 13);
  clock.start();
  desk_.Do([] {});
  Picture();
  const qint64 opened = clock.restart();
  for (int place = 0; place < 100; ++place) {
    sheet().verticalScrollBar()->setValue(place * 15'000);
    Picture();
  }
  RecordProperty("opened_ms", static_cast<int>(opened));
  RecordProperty("hundred_places_ms", static_cast<int>(clock.elapsed()));
  EXPECT_LT(opened, 1000);
}

TEST(ReportWindow, TakesTheHeightOfTheAreaAnyOtherWhatItWishes) {
  NoOffice office;
  const ViewSettings still{"", Timers::kStandStill};
  Desktop desktop((UseOffscreenApplication(), office.services()), still);
  frmsheet report(desktop.machine());
  BackdropArea area;
  area.resize(1366, 900);
  area.show();
  QApplication::processEvents();
  const auto perform = [](const std::function<void()>& action) { action(); };
  FormWindow window(report, perform, still, {}, [](Form&) {});
  window.Show(&area);
  EXPECT_EQ(window.window()->height(), area.viewport()->height());
  QMdiSubWindow other;
  other.setWidget(new SheetView);
  area.addSubWindow(&other);
  area.Place(other, BackdropArea::Height::kWished);
  EXPECT_LT(other.height(), area.viewport()->height());
}

}  // namespace
}  // namespace ovindra::desktop
