// The enroll report: how many children of a kind of location were enrolled in a period and how many of them
// screened, by age and gender.
#pragma once

#include <string>

#include "reports/report_form.h"

namespace ovindra {

class frmenrollrpt : public ReportForm {
 public:
  explicit frmenrollrpt(Module1& module);

 private:
  ComboBox Combo1{*this, "Combo1", "Select Type", DropDownCombo};
  DatePicker DTPicker1{*this, "DTPicker1", "From : "};
  DatePicker DTPicker2{*this, "DTPicker2", "To : "};
  Button Command1{*this, "Command1", "&Get"};
  Button Command2{*this, "Command2", "&Print", Disabled};
  Button Command4{*this, "Command4", "&Export in Excel", Hidden};
  Button Command3{*this, "Command3", "&Close"};
  ReportSheet F1Book1{*this, "F1Book1"};

  void OnLoad();
  void PressKey(KeyName key);
  void Get();
  void GetRpt();
  void Print();
  void Export();

  /// Counts the children of each age group into the two columns from that one on, boys before girls.
  void CountByAge(const std::string& location, const Period& period, Fragment condition, int boys_column);
};

}  // namespace ovindra
