#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCalendarWidget>
#include <QClipboard>
#include <QDateEdit>
#include <QHeaderView>
#include <QListView>
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

using Happened = std::vector<std::string>;

void Refuse(Control& control) {
  control.validate.Handle([](bool& keep) { keep = true; });
}

TEST(Binder, AWidgetWithoutItsControlIsFoundOut) {
  Desk desk;
  EXPECT_EQ(desk.window()->view().untied(), QStringList{"Stranger"});
}

TEST(Focus, TheFirstControlHasItWhenTheFormOpens) {
  Desk desk;
  EXPECT_TRUE(desk.IsFocused(desk.form().Text1));
}

TEST(Focus, ValidationKeepsItAndNothingIsClicked) {
  Desk desk;
  frmdesk& form = desk.form();
  Refuse(form.Text1);
  form.Note(form.Command1.click, "save");
  desk.Click(form.Command1);
  EXPECT_TRUE(desk.IsFocused(form.Text1)) << "by mouse";
  desk.Key(Qt::Key_S, Qt::AltModifier);
  EXPECT_TRUE(desk.IsFocused(form.Text1)) << "by mnemonic";
  desk.Key(Qt::Key_Tab);
  EXPECT_TRUE(desk.IsFocused(form.Text1)) << "by the Tab key";
  desk.Click(form.Combo1);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "a list must not open";
  desk.Click(form.Option2);
  desk.Click(form.Check1);
  EXPECT_FALSE(desk.As<QAbstractButton>(form.Option2).isChecked());
  EXPECT_FALSE(desk.As<QAbstractButton>(form.Check1).isChecked());
  EXPECT_EQ(form.happened, Happened{});
}

TEST(Focus, TabFollowsTheOrderOfTheFormBothWays) {
  Desk desk;
  frmdesk& form = desk.form();
  for (Control* next :
       std::initializer_list<Control*>{&form.Text2, &form.Combo1, &form.Combo2, &form.Option1}) {
    desk.Key(Qt::Key_Tab);
    EXPECT_TRUE(desk.IsFocused(*next)) << next->name();
  }
  desk.Key(Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_TRUE(desk.IsFocused(form.Combo2));
}

TEST(Focus, AControlThatIsSwitchedOffWhileItHasItGivesItAway) {
  Desk desk;
  frmdesk& form = desk.form();
  form.Command1.click.Handle([&] { form.Command1.SetEnabled(false); });
  desk.Click(form.Command1);
  ASSERT_NE(form.focused(), &form.Command1);
  EXPECT_TRUE(desk.IsFocused(*form.focused()));
}

TEST(Focus, CodeMovesItOnTheScreenToo) {
  Desk desk;
  desk.Do([&] { desk.form().Combo2.SetFocus(); });
  EXPECT_TRUE(desk.IsFocused(desk.form().Combo2));
}

TEST(TypedText, TheFilterChangesACharacterInTheMiddle) {
  Desk desk;
  desk.Do([&] { desk.form().Text1.SetText("AC"); });
  auto& line = desk.As<QLineEdit>(desk.form().Text1);
  line.setCursorPosition(1);
  desk.Type("b");
  EXPECT_EQ(desk.form().Text1.text(), "ABC");
  EXPECT_EQ(line.text(), "ABC");
  EXPECT_EQ(line.cursorPosition(), 2);
}

TEST(TypedText, ADroppedCharacterNeverShows) {
  Desk desk;
  frmdesk& form = desk.form();
  desk.Key(Qt::Key_Tab);
  desk.Type("1x2");
  EXPECT_EQ(desk.As<QLineEdit>(form.Text2).text(), "12");
  EXPECT_EQ(desk.box().texts, Happened{"Enter Number Only"});
  EXPECT_TRUE(desk.IsFocused(form.Text2));
}

TEST(TypedText, PasteSeesNoFilterAndIsCutAtTheLimit) {
  Desk desk;
  QGuiApplication::clipboard()->setText("asha devi");
  desk.Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(desk.form().Text1.text(), "asha d");
  EXPECT_EQ(desk.As<QLineEdit>(desk.form().Text1).text(), "asha d");
}

TEST(TypedText, BackspaceTakesWhatIsBeforeTheCaret) {
  Desk desk;
  desk.Do([&] { desk.form().Text1.SetText("ABC"); });
  desk.As<QLineEdit>(desk.form().Text1).setCursorPosition(1);
  desk.Key(Qt::Key_Backspace);
  EXPECT_EQ(desk.form().Text1.text(), "BC");
}

TEST(TypedText, WhatAnInputMethodPutsTogetherPassesTheFilter) {
  Desk desk;
  QInputMethodEvent composed;
  composed.setCommitString("é");
  QApplication::sendEvent(&desk.WidgetOf(desk.form().Text1), &composed);
  EXPECT_EQ(desk.form().Text1.text(), "É");
}

TEST(TypedText, OnlyTheFormSelects) {
  Desk desk;
  frmdesk& form = desk.form();
  desk.Do([&] {
    form.Text1.SetText("ASHA");
    form.Text2.SetText("12");
  });
  form.Text2.got_focus.Handle([&] { form.Text2.SelectAll(); });
  desk.Key(Qt::Key_Tab);
  EXPECT_EQ(desk.As<QLineEdit>(form.Text2).selectedText(), "12");
  desk.Key(Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_FALSE(desk.As<QLineEdit>(form.Text1).hasSelectedText());
  EXPECT_EQ(desk.As<QLineEdit>(form.Text1).cursorPosition(), 4);
}

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

TEST(Options, ArrowsChooseTheNeighbour) {
  Desk desk;
  frmdesk& form = desk.form();
  desk.Click(form.Option1);
  form.Note(form.Option2.click, "female");
  desk.Key(Qt::Key_Right);
  EXPECT_TRUE(desk.IsFocused(form.Option2));
  EXPECT_TRUE(desk.As<QAbstractButton>(form.Option2).isChecked());
  EXPECT_FALSE(desk.As<QAbstractButton>(form.Option1).isChecked());
  EXPECT_EQ(form.happened, Happened{"female"});
}

QPoint Middle(GridView& grid, int row, int column) {
  return grid.visualRect(grid.model()->index(row, column)).center();
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

TEST(Dates, AHalfTypedDateIsHandedOverBeforeTheNextStep) {
  Desk desk;
  frmdesk& form = desk.form();
  desk.Do([&] { form.DTPicker1.SetFocus(); });
  form.Command1.click.Handle([&] { form.happened.push_back(MonthFirst(form.DTPicker1.value())); });
  desk.Type("24");
  EXPECT_EQ(MonthFirst(form.DTPicker1.value()), "05/31/2016");
  desk.Key(Qt::Key_S, Qt::AltModifier);
  EXPECT_EQ(form.happened, Happened{"05/24/2016"});
}

TEST(Dates, TabLeavesThePicker) {
  Desk desk;
  frmdesk& form = desk.form();
  desk.Do([&] { form.DTPicker1.SetFocus(); });
  desk.Type("24");
  desk.Key(Qt::Key_Tab);
  EXPECT_EQ(MonthFirst(form.DTPicker1.value()), "05/24/2016");
  EXPECT_TRUE(desk.IsFocused(form.Command1));
  desk.Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(desk.IsFocused(form.DTPicker1));
}

TEST(Dates, TheCalendarIsWalkedByKeysAndPutAway) {
  Desk desk;
  frmdesk& form = desk.form();
  form.MonthView1.key_press.Handle(
      [&](KeyPress& press) { form.happened.push_back(press.character == kEnterKey ? "enter" : "?"); });
  desk.Do([&] {
    form.MonthView1.SetVisible(true);
    form.MonthView1.SetFocus();
  });
  ASSERT_TRUE(desk.IsFocused(form.MonthView1));
  desk.Key(Qt::Key_Left);
  desk.Key(Qt::Key_Up);
  EXPECT_EQ(MonthFirst(form.MonthView1.value()), "05/23/2016");
  EXPECT_EQ(desk.As<QCalendarWidget>(form.MonthView1).selectedDate(), QDate(2016, 5, 23));
  desk.Key(Qt::Key_Return);
  EXPECT_EQ(form.happened, Happened{"enter"});
  desk.Key(Qt::Key_Escape);
  EXPECT_FALSE(desk.WidgetOf(form.MonthView1).isVisible());
}

TEST(ShowingChanges, AMessageBoxSeesWhatWasDoneBeforeIt) {
  Desk desk;
  frmdesk& form = desk.form();
  QString seen;
  desk.box().look = [&] { seen = desk.As<QLabel>(form.Label1).text(); };
  form.Command1.click.Handle([&] {
    form.Label1.SetCaption("saved");
    form.machine().message_box.Show({"This Record Saved", "Saved"});
    form.Label1.SetCaption("after");
  });
  desk.Click(form.Command1);
  EXPECT_EQ(seen, "saved");
  EXPECT_EQ(desk.As<QLabel>(form.Label1).text(), "after");
}

class Paints : public QObject {
 public:
  explicit Paints(QWidget& widget) { widget.installEventFilter(this); }
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count;
    return false;
  }
  int count = 0;
};

TEST(ShowingChanges, WhatStandsBesideAnAnimationIsPaintedBeforeTheWork) {
  Desk desk;
  frmdesk& form = desk.form();
  Paints paints(desk.WidgetOf(form.Label1));
  QString seen;
  int painted = 0;
  form.Command1.click.Handle([&] {
    form.Label1.SetCaption("working");
    paints.count = 0;
    form.Animation1.Play();
    seen = desk.As<QLabel>(form.Label1).text();
    painted = paints.count;
    form.Animation1.Stop();
  });
  desk.Click(form.Command1);
  EXPECT_EQ(seen, "working");
  EXPECT_GT(painted, 0);
}

TEST(Closing, AFormMayCloseItselfWhileItsButtonIsPressed) {
  Desk desk;
  frmdesk& form = desk.form();
  form.Command2.click.Handle([&] { form.Close(); });
  const QPointer<QWidget> window = desk.window()->window();
  desk.Click(form.Command2);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(desk.IsOpen());
  EXPECT_TRUE(window.isNull());
}

TEST(Closing, TheFrameAsksTheForm) {
  Desk desk;
  frmdesk& form = desk.form();
  form.query_close.Handle([&](bool& keep) { keep = form.happened.empty(); });
  desk.window()->window()->close();
  EXPECT_TRUE(desk.IsOpen());
  EXPECT_TRUE(desk.window()->window()->isVisible());
  form.happened.push_back("done");
  desk.window()->window()->close();
  EXPECT_FALSE(desk.IsOpen());
}

}  // namespace
}  // namespace ovindra::desktop
