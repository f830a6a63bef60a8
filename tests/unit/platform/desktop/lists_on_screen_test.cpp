// Lists and grids on the widgets: what mouse, wheel and keys do to them.
#include <QAbstractItemView>
#include <QApplication>
#include <QHeaderView>
#include <QListView>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include "desk.h"
#include "platform/desktop/binder/binding.h"
#include "platform/desktop/binder/grid_view.h"

namespace ovindra::desktop {
namespace {

/// Two clicks, the second of which is a double-click.
void DoubleClick(QWidget& widget, QPoint place) {
  QTest::mouseClick(&widget, Qt::LeftButton, {}, place);
  QTest::mouseDClick(&widget, Qt::LeftButton, {}, place);
}

QPoint Middle(GridView& grid, int row, int column) {
  return grid.visualRect(grid.model()->index(row, column)).center();
}

using Happened = std::vector<std::string>;

TEST(DropDownList, LettersSearchAndEnterPicks) {
  Desk desk;
  frmdesk& form = desk.form();
  form.Note(form.Combo1.click, "picked");
  desk.Do([&] { form.Combo1.SetFocus(); });
  auto& box = desk.As<QComboBox>(form.Combo1);
  desk.Type("mu");
  EXPECT_TRUE(box.view()->isVisible());
  EXPECT_EQ(box.view()->currentIndex().data().toString(), "MUSAHRI");
  EXPECT_EQ(form.Combo1.text(), "") << "searching picks nothing";
  desk.Key(Qt::Key_Return);
  EXPECT_EQ(form.Combo1.text(), "MUSAHRI");
  EXPECT_EQ(form.happened, Happened{"picked"});
}

TEST(DropDownList, EscapeLeavesTheValue) {
  Desk desk;
  frmdesk& form = desk.form();
  desk.Do([&] {
    form.Combo1.SetFocus();
    form.Combo1.SetListIndex(0);
  });
  form.Note(form.Combo1.click, "picked");
  desk.Type("s");
  desk.Key(Qt::Key_Escape);
  EXPECT_EQ(form.Combo1.text(), "BARIYARPUR");
  EXPECT_EQ(desk.As<QComboBox>(form.Combo1).currentText(), "BARIYARPUR");
  EXPECT_EQ(form.happened, Happened{});
}

TEST(DropDownList, ThePickOfTheChosenEntryIsAPick) {
  Desk desk;
  frmdesk& form = desk.form();
  desk.Do([&] {
    form.Combo1.SetFocus();
    form.Combo1.SetListIndex(1);
  });
  form.Note(form.Combo1.click, "picked");
  desk.Key(Qt::Key_F4);
  desk.Key(Qt::Key_Return);
  EXPECT_EQ(form.happened, Happened{"picked"});
}

TEST(DropDownList, TheWheelBelowTheMouseChangesNothing) {
  Desk desk;
  frmdesk& form = desk.form();
  desk.Do([&] { form.Combo1.SetListIndex(1); });
  QWidget& box = desk.WidgetOf(form.Combo1);
  QWheelEvent roll(QPointF(5, 5), box.mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120), Qt::NoButton,
                   Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&box, &roll);
  EXPECT_EQ(form.Combo1.text(), "MOTIPUR");
  EXPECT_EQ(desk.As<QComboBox>(form.Combo1).currentText(), "MOTIPUR");
}

TEST(DropDownCombo, LeavingATypedEntryPicksNothing) {
  Desk desk;
  frmdesk& form = desk.form();
  form.Note(form.Combo2.click, "picked");
  desk.Do([&] { form.Combo2.SetFocus(); });
  desk.Type("0.00");
  desk.Key(Qt::Key_Tab);
  EXPECT_EQ(form.Combo2.text(), "0.00");
  EXPECT_EQ(form.Combo2.list_index(), 0);
  EXPECT_EQ(form.happened, Happened{});
}

TEST(GridOnTheScreen, AHeadingIsDoubleClickedWithoutAClick) {
  Desk desk;
  frmdesk& form = desk.form();
  form.Note(form.MSFlexGrid1.click, "click");
  form.Note(form.MSFlexGrid1.double_click, "double");
  auto& grid = desk.As<GridView>(form.MSFlexGrid1);
  QHeaderView& head = *grid.horizontalHeader();
  DoubleClick(*head.viewport(), QPoint(head.sectionViewportPosition(1) + 20, 10));
  EXPECT_EQ(form.happened, Happened{"double"});
  EXPECT_EQ(form.MSFlexGrid1.mouse_row(), 0);
  EXPECT_EQ(form.MSFlexGrid1.mouse_column(), 1);
}

TEST(GridOnTheScreen, TheMouseMovesAndClicksTheArrowsMoveSpaceClicks) {
  Desk desk;
  frmdesk& form = desk.form();
  form.Note(form.MSFlexGrid1.click, "click");
  form.Note(form.MSFlexGrid1.cell_moved, "moved");
  form.Note(form.MSFlexGrid1.double_click, "double");
  auto& grid = desk.As<GridView>(form.MSFlexGrid1);
  QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, Middle(grid, 1, 0));
  EXPECT_EQ(form.happened, (Happened{"moved", "click"}));
  form.happened.clear();
  desk.Key(Qt::Key_Up);
  EXPECT_EQ(form.happened, Happened{"moved"});
  EXPECT_EQ(form.MSFlexGrid1.row(), 1);
  form.happened.clear();
  desk.Key(Qt::Key_Space);
  EXPECT_EQ(form.happened, Happened{"click"});
  form.happened.clear();
  DoubleClick(*grid.viewport(), Middle(grid, 0, 0));
  EXPECT_EQ(form.happened, (Happened{"click", "double"}));
  desk.Key(Qt::Key_Tab);
  EXPECT_TRUE(desk.IsFocused(form.Check1)) << "Tab leaves the grid";
}

TEST(GridOnTheScreen, ColumnsStandByWhatTheyHold) {
  Desk desk;
  const auto& model = *desk.As<GridView>(desk.form().MSFlexGrid1).model();
  const auto across = [&](int column) {
    return model.index(0, column).data(Qt::TextAlignmentRole).toInt() & Qt::AlignHorizontal_Mask;
  };
  EXPECT_EQ(across(0), Qt::AlignRight);
  EXPECT_EQ(across(1), Qt::AlignLeft);
  EXPECT_EQ(across(2), Qt::AlignHCenter);
}

TEST(GridOnTheScreen, ALongListIsShownAtTheEndOfTheAction) {
  Desk desk;
  Grid& grid = desk.form().MSFlexGrid1;
  constexpr int kMany = 100'000;
  const auto& model = *desk.As<GridView>(grid).model();
  int resets = 0;
  QObject::connect(&model, &QAbstractItemModel::modelReset, [&] { ++resets; });
  desk.Do([&] {
    grid.SetRows(1);
    for (int row = 0; row < kMany; ++row) grid.AddItem("7\tASHA\tF");
  });
  EXPECT_EQ(model.rowCount(), kMany);
  EXPECT_EQ(resets, 1);
}

TEST(ListOnTheScreen, AClickPicksTheSecondOneDoubleClicks) {
  Desk desk;
  frmdesk& form = desk.form();
  form.Note(form.List1.click, "pick");
  form.Note(form.List1.double_click, "double");
  auto& list = desk.As<QListView>(form.List1);
  DoubleClick(*list.viewport(), list.visualRect(list.model()->index(1, 0)).center());
  EXPECT_EQ(form.happened, (Happened{"pick", "double"}));
  EXPECT_EQ(form.List1.text(), "SPECTACLE");
}

TEST(ListOnTheScreen, KeysWalkWithoutAPick) {
  Desk desk;
  frmdesk& form = desk.form();
  form.Note(form.List1.click, "pick");
  desk.Do([&] { form.List1.SetFocus(); });
  desk.Key(Qt::Key_End);
  EXPECT_EQ(form.List1.text(), "SPECTACLE");
  desk.Key(Qt::Key_Home);
  EXPECT_EQ(form.List1.text(), "MEDICINE");
  desk.Type("s");
  EXPECT_EQ(form.List1.text(), "SPECTACLE");
  desk.Type("x");
  EXPECT_EQ(form.List1.text(), "SPECTACLE");
  EXPECT_EQ(desk.As<QListView>(form.List1).currentIndex().row(), 1);
  EXPECT_EQ(form.happened, Happened{});
}

TEST(GridOnTheScreen, ARowThatIsAddedIsSeen) {
  Desk desk;
  frmdesk& form = desk.form();
  auto& grid = desk.As<GridView>(form.MSFlexGrid1);
  desk.Do([&] {
    for (int row = 0; row < 60; ++row) form.MSFlexGrid1.AddItem("1\tRAVI\tM");
  });
  EXPECT_EQ(grid.verticalScrollBar()->value(), 0) << "a list that is loaded shows its beginning";
  desk.Do([&] { form.MSFlexGrid1.AddItem("2\tSITA\tF"); });
  EXPECT_EQ(grid.verticalScrollBar()->value(), grid.verticalScrollBar()->maximum());
}

}  // namespace
}  // namespace ovindra::desktop
