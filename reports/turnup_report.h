// The list of the children who were referred to the hospital and came: their screening diagnoses beside those
// that the hospital's own records hold. The rows are gathered in the grid and copied to the sheet.
#pragma once

#include "base/controls/grid.h"
#include "reports/report_form.h"

namespace ovindra {

class frmturnup : public ReportForm {
 public:
  explicit frmturnup(Module1& module);

 private:
  ComboBox Combo1{*this, "Combo1", "Select Type", DropDownCombo};
  ComboBox Combo2{*this, "Combo2", "Select Block", DropDownCombo};
  DatePicker DTPicker1{*this, "DTPicker1", "From : "};
  DatePicker DTPicker2{*this, "DTPicker2", "To : "};
  Button Command1{*this, "Command1", "&Get"};
  Button Command2{*this, "Command2", "&Print", Disabled};
  Button Command4{*this, "Command4", "&Export to Excel"};
  Button Command3{*this, "Command3", "&Close"};
  ReportSheet F1Book1{*this, "F1Book1"};
  Grid MSFlexGrid1{*this,
                   "MSFlexGrid1",
                   {"Enroll No", "Child Name", "F/M Name", "Age", "Gender", "Class", "Diagnosis", "School",
                    "Sankul", "Mr_No", "H_Diagnosis"}};

  void OnLoad();
  void PressKey(KeyName key);
  void Get();
  void Print();
  void Export();

  void GetRpt();
  std::string GetBlockCode();
  void JoinHospitalDiagnoses();
};

}  // namespace ovindra
