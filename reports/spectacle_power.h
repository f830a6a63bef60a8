// The list of the children with eye defects and the powers that were found in their examination, for a kind
// of location, a block or a programme.
#pragma once

#include "reports/report_form.h"
#include "reports/sex_count.h"

namespace ovindra {

struct PowerLayout;

class frmspectaclepwr : public ReportForm {
 public:
  explicit frmspectaclepwr(Module1& module);

 private:
  ComboBox Combo1{*this, "Combo1", "Select Type", DropDownList};
  ComboBox Combo2{*this, "Combo2", "Select Center", DropDownList};
  ComboBox Combo3{*this, "Combo3", "Block", DropDownCombo};
  ComboBox Combo4{*this, "Combo4", "Programme", DropDownCombo};
  DatePicker DTPicker1{*this, "DTPicker1", "From"};
  DatePicker DTPicker2{*this, "DTPicker2", "To : "};
  Button Command1{*this, "Command1", "&Get"};
  Button Command9{*this, "Command9", "Programme Wise"};
  Button Command5{*this, "Command5", "&Sex", Disabled};
  SexCount sexes_{*this};
  Button Command2{*this, "Command2", "&Print", Disabled};
  Button Command4{*this, "Command4", "&Export To Excel"};
  Button Command3{*this, "Command3", "&Close"};
  ReportSheet F1Book1{*this, "F1Book1"};

  void OnLoad();
  void PressKey(KeyName key);
  void FillCenters();
  void Get();
  void ProgrammeWise();
  void CountBySex();
  void HideCount() { sexes_.Frame3.SetVisible(false); }
  void Print();
  void Export();

  void GetRpt();
  void GetRpt12();
  void GetProgrammeRpt();
  /// Writes the layout with the records below; gives the row after the last one.
  int WriteLayout(const PowerLayout& layout, Recordset& records);
  std::string GetBlockCode();

  /// The first row after the data of the last block layout.
  int LastRow = 0;
};

}  // namespace ovindra
