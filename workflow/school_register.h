// The school screening register: one row for each school that was screened, entered once. The three names are
// chosen through text boxes with a list that follows the typing.
#pragma once

#include <string>

#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/dates.h"
#include "base/controls/form.h"
#include "base/controls/frame.h"
#include "base/controls/list_box.h"
#include "base/controls/text_box.h"
#include "core/entry/key_filters.h"
#include "core/startup/module1.h"

namespace ovindra {

class frmschool_screening : public Form {
 public:
  explicit frmschool_screening(Module1& module);

 private:
  Button Command1{*this, "Command1", "&Add"};
  Frame Frame1{*this, "Frame1", "", Disabled};
  DatePicker DTPicker1{Frame1, "DTPicker1", "Screening Date"};
  TextBox Text4{Frame1, "Text4", "School Name", Capitals};
  ListBox List1{Frame1, "List1", "", Hidden};
  TextBox Text5{Frame1, "Text5", "Sankul Name", Capitals};
  ListBox List2{Frame1, "List2", "", Hidden};
  TextBox Text6{Frame1, "Text6", "Center Name", Capitals};
  ListBox List3{Frame1, "List3", "", Hidden};
  TextBox Text1{Frame1, "Text1", "No of Trained Teacher"};
  ComboBox Combo4{Frame1, "Combo4", "Type", DropDownList};
  TextBox Text2{Frame1, "Text2", "Boys"};
  TextBox Text3{Frame1, "Text3", "Girls"};
  TextBox Text7{Frame1, "Text7", "Boys"};
  TextBox Text8{Frame1, "Text8", "Girls"};
  // They lie behind the three search boxes; their lists are kept with those of the boxes.
  ComboBox Combo1{Frame1, "Combo1", "", DropDownCombo, Hidden};
  ComboBox Combo2{Frame1, "Combo2", "", DropDownCombo, Hidden};
  ComboBox Combo3{Frame1, "Combo3", "", DropDownCombo, Hidden};
  Button Command3{*this, "Command3", "&Save", Disabled};
  Button Command2{*this, "Command2", "Ca&ncel", Disabled};
  Button Command4{*this, "Command4", "&Close"};

  /// What the check of the entries says; the save asks only whether it is told to stop.
  enum class Check { kStop, kPassed, kLeftOpen };

  void OnLoad();
  void Add();
  void Cancel();
  void Save();
  void PressInTeachers(KeyPress& press);

  void WireSearch(TextBox& box, ListBox& list);
  void PressInSearch(TextBox& box, ListBox& list, const KeyPress& press);
  void SearchChanged(TextBox& box, ListBox& list);
  void KeyDownInSearch(TextBox& box, ListBox& list, KeyName key);
  void TakeFromList(TextBox& box, ListBox& list);

  bool CheckPairacy();
  Check CheckEntries();
  SqlText Insert();
  std::string GetSchoolID();
  std::string GetSankulID();
  std::string GetCenterID();
  std::string GetTypeID();
  void EmptyBox();
  void GoIdle();

  Connection& database() { return module_.ScreeningConnection; }

  Module1& module_;
};

}  // namespace ovindra
