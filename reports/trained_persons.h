// The list of the people trained to screen: those of one school or anganwadi center, of one block or of one
// programme.
#pragma once

#include "base/controls/shown.h"
#include "reports/report_form.h"

namespace ovindra {

struct PersonSource;

class frmtrainedPerlist : public ReportForm {
 public:
  explicit frmtrainedPerlist(Module1& module);

 private:
  ComboBox Combo2{*this, "Combo2", "Person Type", DropDownList};
  ComboBox Combo1{*this, "Combo1", "Select Center Name ", DropDownList};
  Button Command1{*this, "Command1", "&Get"};
  DatePicker DTPicker1{*this, "DTPicker1", "From : "};
  DatePicker DTPicker2{*this, "DTPicker2", "To : "};
  ComboBox Combo4{*this, "Combo4", "Programme", DropDownCombo};
  Button Command7{*this, "Command7", "Show"};
  Label Label6{*this, "Label6", "Block Name", Hidden};
  ComboBox Combo3{*this, "Combo3", "", DropDownCombo, Hidden};
  Button Command5{*this, "Command5", "Show", Hidden};
  Button Command2{*this, "Command2", "&Print", Disabled};
  Button Command4{*this, "Command4", "&Export To Excel", Hidden};
  Button Command3{*this, "Command3", "&Close"};
  ReportSheet F1Book1{*this, "F1Book1"};

  void OnLoad();
  void PressKey(KeyName key);
  void FillCenters();
  void Get();
  void ShowBlock();
  void ShowProgramme();
  void Print();
  void Export();

  /// The list of one block or one programme, by the chosen type; a type of no such list builds nothing.
  void ShowPersons(const PersonSource& source, const ComboBox& place);
  /// Writes the title block and names the sheet; tells an empty list, and is then false.
  bool BeginList(const Recordset& persons, const ComboBox& place);
  void EndList(int last_row, int columns);
  /// The code of the chosen type; nothing for none.
  std::string GetTypeCode();
  /// The code of the chosen school or anganwadi center; nothing for none.
  std::string GetCenterCode();
  std::string CodeOrNothing(const SqlText& statement, std::string_view field);
};

}  // namespace ovindra
