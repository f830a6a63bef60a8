#include <gtest/gtest.h>

#include "base/controls/buttons.h"
#include "base/controls/dates.h"
#include "base/controls/frame.h"
#include "base/controls/tabs.h"
#include "tests/unit/base/controls/test_form.h"

namespace ovindra {
namespace {

class Switchboard : public TestForm {
 public:
  explicit Switchboard(QuietMachine& quiet) : TestForm(quiet) { SSTab1.SetPages({&Frame1, &Frame2}); }

  Frame Frame1{*this, "Frame1", "Gender"};
  OptionButton Option1{Frame1, "Option1", "&Male"};
  OptionButton Option2{Frame1, "Option2", "&Female"};
  Frame Frame2{*this, "Frame2", "School Going ?"};
  OptionButton Option3{Frame2, "Option3", "YES"};
  CheckBox Check1{*this, "Check1", "All"};
  TabControl SSTab1{*this, "SSTab1", {"Enroll", "Screen"}};
  MonthView MonthView1{*this, "MonthView1"};
};

class Switches : public ::testing::Test {
 protected:
  Switches() {
    log.Note(form.Option1.click, "Option1");
    log.Note(form.Option2.click, "Option2");
    log.Note(form.Check1.click, "Check1");
    log.Note(form.SSTab1.click, "SSTab1");
  }

  QuietMachine machine;
  EventLog log;
  Switchboard form{machine};
};

TEST_F(Switches, OptionsOfOneFrameExcludeOneAnother) {
  form.Option3.SetOn(true);
  form.Option1.SetOn(true);
  form.Option1.SetOn(true);
  form.Option2.UserClick();
  EXPECT_EQ(log.Take(), (Events{"Option1", "Option2"}));
  EXPECT_FALSE(form.Option1.on());
  EXPECT_TRUE(form.Option3.on());
}

TEST_F(Switches, TheTabKeyStopsAtTheOptionThatIsOn) {
  form.Option2.SetOn(true);
  EXPECT_EQ(form.NextInOrder(form.MonthView1), &form.Option2);
}

TEST_F(Switches, UpAndDownChooseTheNeighbourInTheFrame) {
  form.Option1.SetOn(true);
  form.Option1.UserKey({KeyName::kDown});
  EXPECT_TRUE(form.Option2.on());
  EXPECT_TRUE(form.Option2.HasFocus());
  form.Option2.UserKey({KeyName::kDown});
  EXPECT_TRUE(form.Option1.on());
  form.Option2.SetEnabled(false);
  form.Option1.UserKey({KeyName::kUp});
  EXPECT_TRUE(form.Option1.on());
  EXPECT_EQ(log.Take(), (Events{"Option1", "Option2", "Option1"}));
}

TEST_F(Switches, ACheckBoxSetByCodeFiresOnlyWhenItChanges) {
  form.Check1.SetOn(false);
  form.Check1.SetOn(true);
  form.Check1.UserClick();
  form.Check1.UserKey({KeyName::kSpace});
  EXPECT_EQ(log.Take(), (Events{"Check1", "Check1", "Check1"}));
  EXPECT_TRUE(form.Check1.on());
}

TEST_F(Switches, ATabShowsItsPageAlone) {
  EXPECT_TRUE(form.Frame1.visible());
  form.SSTab1.UserSelect(1);
  EXPECT_FALSE(form.Option1.IsVisibleNow());
  EXPECT_TRUE(form.Frame2.visible());
  EXPECT_EQ(log.Take(), Events{"SSTab1"});
}

TEST_F(Switches, DisablingAFrameKeepsItsControlsOwnState) {
  form.Option2.SetEnabled(false);
  form.Frame1.SetEnabled(false);
  form.Option1.UserClick();
  EXPECT_EQ(log.Take(), Events{});
  EXPECT_TRUE(form.Option1.enabled());
  form.Frame1.SetEnabled(true);
  EXPECT_TRUE(form.Option1.IsEnabledNow());
  EXPECT_FALSE(form.Option2.IsEnabledNow());
}

}  // namespace
}  // namespace ovindra
