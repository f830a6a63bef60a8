// The two lists of the children of one center in a period: those enrolled, and those screened with a choice
// of all, the normal or the defected. They differ in which date counts, what can be chosen and where an
// anganwadi's children are looked for: the enrolled by screening center, the screened by anganwadi center.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/controls/frame.h"
#include "core/entry/key_filters.h"
#include "core/entry/lookups.h"
#include "reports/report_form.h"

namespace ovindra {

/// What both lists do.
class ChildList : public ReportForm {
 protected:
  using ReportForm::ReportForm;

  /// How a list differs from the other.
  struct Kind {
    const Lookup& anganwadi;
    std::vector<std::string_view> headings;
    std::vector<std::string_view> fields;
    int fitted_columns;
    std::string_view nobody;
  };

  /// The letter of the type, asked for anew for each letter it may be; empty for another one.
  std::string KnownLocation(const TextControl& type);

  /// The code of the center, by the location's letter; empty for a location without centers.
  std::string CenterCode(const Kind& kind, std::string_view location, const TextControl& center);

  /// Writes the statement's children below the title, or tells that there are none. False when there are
  /// none.
  bool ListChildren(const Kind& kind, const SqlText& statement);
};

class frmenrolllist : public ChildList {
 public:
  explicit frmenrolllist(Module1& module);

 private:
  DatePicker DTPicker1{*this, "DTPicker1", "From"};
  DatePicker DTPicker2{*this, "DTPicker2", "To : "};
  ComboBox Combo4{*this, "Combo4", "Programme", DropDownList};
  ComboBox Combo1{*this, "Combo1", "Select Type", DropDownList};
  ComboBox Combo2{*this, "Combo2", "Select Center", DropDownList};
  ComboBox Combo3{*this, "Combo3", "Select School", DropDownCombo, NoTyping};
  Button Command1{*this, "Command1", "&Get"};
  Button Command2{*this, "Command2", "&Print"};
  Button Command4{*this, "Command4", "&Export in Excel", Hidden};
  Button Command3{*this, "Command3", "&Close"};
  ReportSheet F1Book1{*this, "F1Book1"};

  void OnLoad();
  void PressKey(KeyName key);
  void PickType();
  void LeaveType(bool& keep);
  void PickCenter();
  void Get();
  void Export();

  SqlText EnrolledChildren(const Kind& kind);
};

class frmscreenedlist : public ChildList {
 public:
  explicit frmscreenedlist(Module1& module);

 private:
  DatePicker DTPicker1{*this, "DTPicker1", "From"};
  DatePicker DTPicker2{*this, "DTPicker2", "To : "};
  ComboBox Combo1{*this, "Combo1", "Select Type", DropDownList};
  ComboBox Combo2{*this, "Combo2", "Select Center", DropDownList};
  ComboBox Combo3{*this, "Combo3", "Select School", DropDownCombo};
  Frame Frame3{*this, "Frame3", "Eye Condition"};
  OptionButton Option1{Frame3, "Option1", "All", On};
  OptionButton Option2{Frame3, "Option2", "Normal"};
  OptionButton Option3{Frame3, "Option3", "Defected"};
  Button Command1{*this, "Command1", "&Get"};
  Button Command2{*this, "Command2", "&Print"};
  Button Command4{*this, "Command4", "&Export in Excel"};
  Button Command3{*this, "Command3", "&Close"};
  ReportSheet F1Book1{*this, "F1Book1"};

  void OnLoad();
  void PressKey(KeyName key);
  void PickType();
  void Get();
  void Export();

  SqlText ScreenedChildren(const Kind& kind);
};

}  // namespace ovindra
