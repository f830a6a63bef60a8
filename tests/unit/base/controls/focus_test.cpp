#include <gtest/gtest.h>

#include "base/controls/buttons.h"
#include "base/controls/frame.h"
#include "base/controls/shown.h"
#include "base/controls/text_box.h"
#include "tests/unit/base/controls/test_form.h"

namespace ovindra {
namespace {

class Desk : public TestForm {
 public:
  using TestForm::TestForm;

  TextBox Text1{*this, "Text1", ""};
  Frame Frame1{*this, "Frame1", ""};
  TextBox Text2{Frame1, "Text2", ""};
  Label Label1{*this, "Label1", ""};
  Button Command1{*this, "Command1", "&Ok"};
  Button Command2{*this, "Command2", "&Close"};
};

class Focus : public ::testing::Test {
 protected:
  Focus() {
    log.Note(form.Text1.lost_focus, "Text1 lost");
    log.Note(form.Text2.got_focus, "Text2 got");
    log.Note(form.Text2.lost_focus, "Text2 lost");
    log.Note(form.Command1.got_focus, "Command1 got");
    log.Note(form.Command1.click, "Command1 click");
    form.UserFocus(form.Text1);
    log.Take();
  }

  void Keep(Control& control) {
    control.validate.Handle([](bool& keep) { keep = true; });
  }

  QuietMachine machine;
  EventLog log;
  Desk form{machine};
};

TEST_F(Focus, AClickMovesItBeforeTheClickIsDone) {
  form.Command1.UserClick();
  EXPECT_EQ(log.Take(), (Events{"Text1 lost", "Command1 got", "Command1 click"}));
}

TEST_F(Focus, AValidateStepThatKeepsItCancelsTheClick) {
  Keep(form.Text1);
  form.Command1.UserClick();
  EXPECT_EQ(log.Take(), Events{});
  EXPECT_EQ(form.focused(), &form.Text1);
}

TEST_F(Focus, MovedByCodeAsksNoValidateStep) {
  Keep(form.Text1);
  form.Text2.SetFocus();
  EXPECT_EQ(log.Take(), (Events{"Text1 lost", "Text2 got"}));
}

TEST_F(Focus, ALostFocusStepThatTakesItBackCancelsTheClick) {
  form.Text1.lost_focus.Handle([this] { form.Text1.SetFocus(); });
  form.Command1.UserClick();
  EXPECT_EQ(form.focused(), &form.Text1);
  EXPECT_EQ(log.Take(), Events{});
}

TEST_F(Focus, CodeCanNotSetItOnWhatIsDisabledOrHidden) {
  form.Frame1.SetEnabled(false);
  form.Text2.SetFocus();
  EXPECT_EQ(form.focused(), &form.Text1);
  EXPECT_TRUE(form.Text2.enabled());
  EXPECT_FALSE(form.Text2.IsEnabledNow());

  form.Frame1.SetEnabled(true);
  form.Frame1.SetVisible(false);
  form.Text2.SetFocus();
  EXPECT_EQ(form.focused(), &form.Text1);
}

TEST_F(Focus, AClickOnADisabledButtonDoesNothingAtAll) {
  form.Command1.SetEnabled(false);
  form.Command1.UserClick();
  EXPECT_EQ(log.Take(), Events{});
  EXPECT_EQ(form.focused(), &form.Text1);
}

TEST_F(Focus, AValidateStepThatDisablesTheTargetLeavesItWhereItIs) {
  form.Text1.validate.Handle([this](bool&) { form.Command1.SetEnabled(false); });
  form.Command1.UserClick();
  EXPECT_EQ(log.Take(), Events{});
  EXPECT_EQ(form.focused(), &form.Text1);
}

TEST_F(Focus, LeavingGoesToTheNextThatCanHaveItAndRoundTheEnd) {
  form.Frame1.SetEnabled(false);
  form.UserLeave(form.Text1);
  EXPECT_EQ(form.focused(), &form.Command1);
  form.UserLeave(form.Command1);
  form.UserLeave(form.Command2);
  EXPECT_EQ(form.focused(), &form.Text1);
  form.UserLeave(form.Text1, true);
  EXPECT_EQ(form.focused(), &form.Command2);
}

TEST_F(Focus, WhatIsDisabledUnderItGivesItBackToTheOneBefore) {
  form.Command1.UserClick();
  form.Command1.SetEnabled(false);
  form.Frame1.SetEnabled(false);
  EXPECT_EQ(form.focused(), &form.Command1);
  form.SettleFocus();
  EXPECT_EQ(form.focused(), &form.Text1);
}

TEST_F(Focus, EnterInABoxPressesTheDefaultButton) {
  form.Text1.UserKey({KeyName::kEnter});
  EXPECT_EQ(log.Take(), Events{});
  form.SetDefaultButton(form.Command1);
  form.Text1.UserKey({KeyName::kEnter});
  EXPECT_EQ(log.Take(), (Events{"Text1 lost", "Command1 got", "Command1 click"}));
}

TEST(Tail, ShowsNumberBlankAndTextOfAGuardedErrorAloneAndLeavesTheProcedure) {
  class Faulty : public TestForm {
   public:
    explicit Faulty(QuietMachine& quiet) : TestForm(quiet) {
      TestForm::Guarded(Command1.click, &Faulty::Fail);
      TestForm::Plain(Command2.click, &Faulty::Fail);
    }
    void Fail() { throw DivisionByZero(); }

    Button Command1{*this, "Command1", ""};
    Button Command2{*this, "Command2", ""};
  };
  QuietMachine machine;
  Faulty form(machine);
  form.Command1.UserClick();
  EXPECT_EQ(machine.messages, std::vector<std::string>{"11 Division by zero"});
  EXPECT_THROW(form.Command2.UserClick(), RuntimeError);
}

}  // namespace
}  // namespace ovindra
