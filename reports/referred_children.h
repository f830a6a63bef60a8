// The list of the children who received a chosen treatment, by default the referral to the OS camp, with
// their diagnoses. The rows are gathered in a work grid, one kind for spectacles and one for all else, and
// copied to the sheet.
#pragma once

#include "base/controls/grid.h"
#include "reports/camp_report.h"

namespace ovindra {

class frmreferallist : public CampReportForm {
 public:
  explicit frmreferallist(Module1& module);

 private:
  Button Command1{*this, "Command1", "&Get"};
  ComboBox Combo3{*this, "Combo3", "", DropDownCombo, Hidden};
  Button Command2{*this, "Command2", "&Print", Disabled};
  Button Command4{*this, "Command4", "&Export To Excel", Hidden};
  Button Command3{*this, "Command3", "&Close"};
  ReportSheet F1Book1{*this, "F1Book1"};
  Grid MSFlexGrid1{
      *this,
      "MSFlexGrid1",
      {"Enroll No", "Child Name", "F/M Name", "Age", "Gender", "Class", "Diagnosis", "Sankul", "School"}};
  Grid MSFlexGrid2{*this,
                   "MSFlexGrid2",
                   {"Enroll No", "Child Name", "F/M Name", "Age", "Gender", "Class", "Remark", "Diagnosis"}};

  void OnLoad();
  void PressKey(KeyName key);
  void Get();
  void Print();
  void Export();

  void BuildList() override;
  void ChooseReferral();
  void JoinDiagnoses(const CampCoverage& coverage, Grid& grid, int column);
};

}  // namespace ovindra
