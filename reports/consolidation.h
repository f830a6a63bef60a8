// The consolidation report: the whole programme's figures for a period and a kind of location, of all, of one
// sankul, block or programme; beside them the programme's export table and the list of children referred to
// the hospital.
#pragma once

#include <string>

#include "base/controls/shown.h"
#include "reports/consolidation_tables.h"
#include "reports/report_form.h"

namespace ovindra {

class frmconsolidation : public ReportForm {
 public:
  explicit frmconsolidation(Module1& module);

 private:
  Label Label7{*this, "Label7", "Programme"};
  ComboBox Combo4{*this, "Combo4", "", DropDownCombo};
  ComboBox Combo1{*this, "Combo1", "Select Type", DropDownCombo};
  Label Label5{*this, "Label5", "Sankul Name"};
  ComboBox Combo2{*this, "Combo2", "", DropDownCombo};
  Label Label6{*this, "Label6", "Block Name"};
  ComboBox Combo3{*this, "Combo3", "", DropDownCombo};
  DatePicker DTPicker1{*this, "DTPicker1", "From : "};
  DatePicker DTPicker2{*this, "DTPicker2", "To : "};
  CheckBox Check1{*this, "Check1", "Check1"};
  Button Command1{*this, "Command1", "&Get"};
  Button Command6{*this, "Command6", "Sankul Wise(Cons.)"};
  Button Command7{*this, "Command7", "Block Wise(Cons.)"};
  Button Command8{*this, "Command8", "Direct By OA"};
  Button Command9{*this, "Command9", "Programme Wise"};
  Button Command5{*this, "Command5", "Sankul Wise(Refer List)"};
  Button Command2{*this, "Command2", "&Print", Disabled};
  Button Command4{*this, "Command4", "&Export To Excel"};
  Button Command3{*this, "Command3", "&Close"};
  ReportSheet F1Book1{*this, "F1Book1"};

  void OnLoad();
  void PressKey(KeyName key);
  void Get();
  void SankulWise();
  void BlockWise();
  void DirectByOA();
  void ProgrammeWise();
  void ReferList();
  void ShowProgrammeExport();
  void Print();
  void Export();

  /// Which table stands for a location; none writes the title block alone.
  struct TableOfLocation {
    std::string_view location;
    const ConsolidationTable* table;
  };
  /// Writes the title block and the table of the chosen location, and gives the location.
  std::string BuildReport(std::initializer_list<TableOfLocation> tables);
  bool CheckType();
  /// The chosen sankul's code; nothing when none is chosen.
  std::string SankulCode();
  std::string GetBlockCode();
  std::string ScopeValue(Scope scope);
  SqlText ReferredChildren(const std::string& location);
};

}  // namespace ovindra
