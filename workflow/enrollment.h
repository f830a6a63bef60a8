// Enrollment: where a child comes into the system. A save makes one row of Enroll_Master under a running
// Enroll_No; an enrolled child can be deleted here but never edited.
#pragma once

#include <string>

#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/dates.h"
#include "base/controls/form.h"
#include "base/controls/frame.h"
#include "base/controls/grid.h"
#include "base/controls/shown.h"
#include "base/controls/text_box.h"
#include "core/entry/column_sort.h"
#include "core/entry/key_filters.h"
#include "core/entry/lookups.h"
#include "core/startup/module1.h"

namespace ovindra {

class frmenroll : public Form {
 public:
  explicit frmenroll(Module1& module);

 private:
  Frame Frame1{*this, "Frame1", "", Disabled};
  ComboBox Combo8{Frame1, "Combo8", "Programme", DropDownList};
  ComboBox Combo6{Frame1, "Combo6", "Type", DropDownList};
  ComboBox Combo7{Frame1, "Combo7", "Screening Center", DropDownList};
  Label Label5{Frame1, "Label5", "School/Center Name"};
  ComboBox Combo1{Frame1, "Combo1", "School/Center Name", DropDownList};
  TextBox Text1{Frame1, "Text1", "Child Name", Capitals};
  TextBox Text2{Frame1, "Text2", "F/M Name", Capitals};
  TextBox Text3{Frame1, "Text3", "Age(Y:M:D)", MaxLength{2}, NumbersOnly};
  TextBox Text5{Frame1, "Text5", "", MaxLength{2}};
  TextBox Text6{Frame1, "Text6", "", MaxLength{2}};
  Label Label6{Frame1, "Label6", "Class"};
  TextBox Text4{Frame1, "Text4", "Class", MaxLength{2}, NumbersOnly};
  TextBox Text7{Frame1, "Text7", "Mobile", MaxLength{10}};
  Frame Frame2{Frame1, "Frame2", "Gender"};
  OptionButton Option1{Frame2, "Option1", "&Male"};
  OptionButton Option2{Frame2, "Option2", "&Female"};
  Frame Frame3{Frame1, "Frame3", "School Going ?"};
  OptionButton Option3{Frame3, "Option3", "YES"};
  OptionButton Option4{Frame3, "Option4", "NO"};
  ComboBox Combo2{Frame1, "Combo2", "Select Block", DropDownList};
  ComboBox Combo3{Frame1, "Combo3", "District", DropDownCombo, Disabled};
  ComboBox Combo4{Frame1, "Combo4", "State", DropDownCombo, Disabled};
  ComboBox Combo5{Frame1, "Combo5", "Country", DropDownCombo, Disabled};
  DatePicker DTPicker1{Frame1, "DTPicker1", "Date"};
  Button Command4{Frame1, "Command4", ""};
  MonthView MonthView1{*this, "MonthView1", Hidden};
  Button Command1{*this, "Command1", "&Add"};
  Button Command2{*this, "Command2", "&Save", Disabled};
  Button Command5{*this, "Command5", "Ca&ncel", Disabled};
  Frame Frame4{*this, "Frame4", "List of Enroll Child On "};
  Grid MSFlexGrid1{Frame4, "MSFlexGrid1", {"Enroll No.", "Child Name", "F/M Name", "Age", "Gender"}};
  Button Command3{*this, "Command3", "&Close"};

  void OnLoad();
  void Add();
  void Save();
  void Cancel();
  void PickType();
  void PickCenter();
  void PickSchool();
  void PickBlock();
  void LeaveCenter(bool& keep);
  void LeaveBlock(bool& keep);
  void LeaveType(bool& keep);
  void CheckAge(bool& keep);
  void CheckClass(bool& keep);
  void LeaveAge();
  void LeaveClass();
  void ShowSchoolFields();
  void OpenCalendar();
  void ClickDay();
  void PressInCalendar(KeyPress& press);
  void DeleteChild();
  void SortColumn();

  bool Validation();
  struct PlaceCodes {
    std::string center;
    std::string block;
    std::string district;
    std::string state;
    std::string country;
  };

  std::string GetEnrollNO();
  void LoadEntry();
  SqlText InsertEverything(const Lookup& center);
  SqlText InsertPlaceAlone(const Lookup& center);
  PlaceCodes ReadPlace(const Lookup& center);
  /// The first values of a row. The number is read here, behind all codes, so that a name that is not found
  /// has read none.
  SqlText ChildValues(const PlaceCodes& place);
  std::string_view SchoolGoing() const;
  void IncreamentEnroll();
  void View();
  void EmptyBox();
  void GetBlockName();
  std::string GetProgrammeCode();
  void ShowDateOfList();

  Connection& database() { return module_.ScreeningConnection; }

  Module1& module_;
  std::string enroll_no_;
  ColumnSort column_sort_;
};

}  // namespace ovindra
