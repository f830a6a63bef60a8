// The report of the children whose examination found an eye defect, with their diagnoses and treatments
// joined into one cell each; the list of the grant's programme; the list by category that goes to the
// spreadsheet application; and a compile of one block's children into a table of the database.
#pragma once

#include <string>

#include "reports/defected_lists.h"
#include "reports/listing.h"
#include "reports/report_form.h"

namespace ovindra {

class frmdefected : public ReportForm {
 public:
  explicit frmdefected(Module1& module);

 private:
  ComboBox Combo1{*this, "Combo1", "Select Screening Center", DropDownCombo};
  DatePicker DTPicker1{*this, "DTPicker1", "From : "};
  DatePicker DTPicker2{*this, "DTPicker2", "To : "};
  OptionButton Option1{*this, "Option1", "OA", On};
  OptionButton Option2{*this, "Option2", "OS"};
  Button Command1{*this, "Command1", "&Get"};
  Button Command7{*this, "Command7", "&GRANT"};
  Button Command6{*this, "Command6", "Command6"};
  Button Command5{*this, "Command5", "&Show", Hidden};
  Button Command2{*this, "Command2", "&Print", Disabled};
  Button Command4{*this, "Command4", "&Export To Excel", Hidden};
  Button Command3{*this, "Command3", "&Close"};
  ReportSheet F1Book1{*this, "F1Book1"};
  StagingGrid MSFlexGrid1{
      *this,
      "MSFlexGrid1",
      {"Enroll No", "Child Name", "F/M Name", "Age", "Gender", "Class", "Diagnosis", "Treatment"}};
  StagingGrid MSFlexGrid2{
      *this, "MSFlexGrid2", {"Enroll No", "Child Name", "F/M Name", "Age", "Gender", "Class", "Category"}};
  StagingGrid MSFlexGrid3{*this, "MSFlexGrid3", {"Enroll_no", "Diagnosis", "Treatment", "Remark"}};
  StagingGrid MSFlexGrid4{
      *this, "MSFlexGrid4", {"Enroll_Detail", "Screened_Date", "Exam_Date", "Enroll No", "Child Name",
                             "F/M Name",      "Age",           "Gender",    "Class",     "Diagnosis",
                             "Treatment",     "Center",        "School",    "Block",     "User",
                             "RE_Sph",        "RE_Cyl",        "RE_Axis",   "RE_VA",     "LE_Sph",
                             "LE_Cyl",        "LE_Axis",       "LE_VA",     "Eye"}};

  void OnLoad();
  void PressKey(KeyName key);
  void Get();
  void GetProgramme();
  void Show();
  void CompileRpt();
  void CloseReport();
  void Print();
  void Export();

  bool CheckCenterType();
  /// After the report has been written: Print can be used, the sheet has its name.
  void FinishReport();
  void GetRpt();
  void WriteProgrammeList();
  Examiner ChosenExaminer() const;

  bool has_spreadsheet_ = false;
};

}  // namespace ovindra
