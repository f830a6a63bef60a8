#include "base/controls/combo_box.h"

#include <gtest/gtest.h>

#include "base/controls/list_box.h"
#include "base/controls/text_box.h"
#include "base/runtime_error.h"
#include "tests/unit/base/controls/test_form.h"

namespace ovindra {
namespace {

class Lists : public TestForm {
 public:
  explicit Lists(QuietMachine& quiet) : TestForm(quiet) {
    for (const char* entry : {"SCHOOL", "HOSPITAL", "HOSPITAL"}) {
      Combo1.AddItem(entry);
      Combo2.AddItem(entry);
      List1.AddItem(entry, 7);
    }
  }

  ComboBox Combo1{*this, "Combo1", "", DropDownList};
  ComboBox Combo2{*this, "Combo2", "", DropDownCombo};
  ListBox List1{*this, "List1", ""};
  TextBox Text1{*this, "Text1", "", MaxLength{3}};
};

class ComboBoxes : public ::testing::Test {
 protected:
  ComboBoxes() {
    log.Note(form.Combo1.click, "click");
    log.Note(form.Combo1.change, "change");
    log.Note(form.Combo2.click, "combo click");
    log.Note(form.Combo2.change, "combo change");
    log.Note(form.List1.click, "list click");
  }

  template <typename Action>
  long ErrorOf(Action action) {
    try {
      action();
    } catch (const RuntimeError& error) {
      return error.number();
    }
    return 0;
  }

  QuietMachine machine;
  EventLog log;
  Lists form{machine};
};

TEST_F(ComboBoxes, TheIndexSetByCodeFiresClickAsAPickDoesAlsoForTheEntryThatIsChosen) {
  form.Combo1.SetListIndex(1);
  form.Combo1.UserPick(1);
  EXPECT_EQ(log.Take(), (Events{"click", "click"}));
  EXPECT_EQ(form.Combo1.text(), "HOSPITAL");
}

TEST_F(ComboBoxes, TheTextOfADropDownListPicksTheEntryOrFails) {
  form.Combo1.SetText("HOSPITAL");
  EXPECT_EQ(form.Combo1.list_index(), 1);
  EXPECT_EQ(log.Take(), Events{"click"});
  EXPECT_EQ(ErrorOf([&] { form.Combo1.SetText("CLINIC"); }), 383);
  EXPECT_EQ(form.Combo1.text(), "HOSPITAL");
  form.Combo1.SetText("");
  EXPECT_EQ(form.Combo1.list_index(), -1);
  EXPECT_EQ(log.Take(), Events{});
}

TEST_F(ComboBoxes, TheTextOfADropDownComboIsFree) {
  form.Combo2.SetText("CLINIC");
  EXPECT_EQ(form.Combo2.list_index(), -1);
  form.Combo2.SetText("CLINIC");
  EXPECT_EQ(log.Take(), Events{"combo change"});
  form.Combo2.UserType(U'S');
  EXPECT_EQ(form.Combo2.text(), "CLINICS");
}

TEST_F(ComboBoxes, TypingEntersNoValueIntoADropDownList) {
  form.Combo1.UserType(U'S');
  EXPECT_EQ(form.Combo1.text(), "");
  EXPECT_EQ(log.Take(), Events{});
}

TEST_F(ComboBoxes, PastTheEndsIsError380AndClearingFiresNothing) {
  EXPECT_EQ(ErrorOf([&] { form.Combo1.SetListIndex(3); }), 380);
  EXPECT_EQ(ErrorOf([&] { form.Combo1.SetListIndex(-2); }), 380);
  form.Combo1.SetListIndex(0);
  log.Take();
  form.Combo1.Clear();
  EXPECT_EQ(form.Combo1.text(), "");
  EXPECT_EQ(form.Combo1.items().count(), 0);
  EXPECT_EQ(log.Take(), Events{});
}

TEST_F(ComboBoxes, DownStepsThroughTheEntriesAndStopsAtTheLast) {
  for (int i = 0; i < 5; ++i) form.Combo1.UserKey({KeyName::kDown});
  EXPECT_EQ(form.Combo1.list_index(), 2);
  EXPECT_EQ(log.Take(), (Events{"click", "click", "click"}));
}

TEST_F(ComboBoxes, AListIsSetByCodeWithoutClickAndKeepsItsCurrentEntryWhenOneAboveGoes) {
  form.List1.SetListIndex(2);
  form.List1.RemoveItem(0);
  EXPECT_EQ(form.List1.list_index(), 1);
  form.List1.RemoveItem(1);
  EXPECT_EQ(form.List1.list_index(), -1);
  EXPECT_EQ(form.List1.text(), "");
  EXPECT_EQ(ErrorOf([&] { form.List1.RemoveItem(1); }), 5);
  EXPECT_EQ(form.List1.item_data(0), 7);
  EXPECT_EQ(log.Take(), Events{});
  form.List1.UserPick(0);
  EXPECT_EQ(log.Take(), Events{"list click"});
}

TEST_F(ComboBoxes, AMaximumLengthStopsTypingAndPastingButNotCode) {
  for (char32_t key : U"ABCD") {
    if (key != 0) form.Text1.UserType(key);
  }
  EXPECT_EQ(form.Text1.text(), "ABC");
  form.Text1.UserEdit("औरत है");
  EXPECT_EQ(form.Text1.text(), "औरत");
  form.Text1.SetText("LONGER");
  EXPECT_EQ(form.Text1.text(), "LONGER");
  form.Text1.UserType(U'X');
  EXPECT_EQ(form.Text1.text(), "LONGER");
  form.Text1.UserKey({KeyName::kBackspace});
  EXPECT_EQ(form.Text1.text(), "LONGE");
}

TEST_F(ComboBoxes, ASelectedTextIsReplacedByWhatIsTyped) {
  form.Text1.SetText("OLD");
  form.Text1.SelectAll();
  form.Text1.UserType(U'N');
  form.Text1.UserType(U'E');
  EXPECT_EQ(form.Text1.text(), "NE");
}

}  // namespace
}  // namespace ovindra
