#include <QAbstractButton>
#include <QApplication>
#include <QCalendarWidget>
#include <QClipboard>
#include <QInputMethodEvent>

#include <gtest/gtest.h>

#include "desk.h"
#include "platform/desktop/binder/binding.h"

namespace ovindra::desktop {
namespace {

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

TEST(Focus, ALetterPressesOneControlAndLeadsThroughSeveral) {
  Desk desk;
  frmdesk& form = desk.form();
  form.Note(form.Command1.click, "save");
  form.Note(form.Command2.click, "show");
  desk.Key(Qt::Key_S, Qt::AltModifier);
  EXPECT_EQ(form.happened, Happened{"save"});
  desk.Do([&] { form.Command2.SetCaption("&Show"); });
  for (Button* next : {&form.Command2, &form.Command1}) {
    desk.Key(Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(desk.IsFocused(*next)) << next->name();
  }
  EXPECT_EQ(form.happened, Happened{"save"});
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
      [&](KeyPress& press) { form.happened.emplace_back(press.character == kEnterKey ? "enter" : "?"); });
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
  form.happened.emplace_back("done");
  desk.window()->window()->close();
  EXPECT_FALSE(desk.IsOpen());
}

}  // namespace
}  // namespace ovindra::desktop
