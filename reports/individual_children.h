// The report of the individual children of a block and a period, each followed through the whole chain: the
// teacher's screening, the assistant's examination, the turn-up at the hospital and the hospital's own
// diagnoses, which come from the hospital records database.
#pragma once

#include <string>

#include "base/controls/shown.h"
#include "reports/listing.h"
#include "reports/report_form.h"

namespace ovindra {

class Form3 : public ReportForm {
 public:
  explicit Form3(Module1& module);

 private:
  ComboBox Combo1{*this, "Combo1", "Slect Block", DropDownCombo};
  DatePicker DTPicker1{*this, "DTPicker1", "From : "};
  DatePicker DTPicker2{*this, "DTPicker2", "To : "};
  Label Label7{*this, "Label7", "Processing.........", Hidden};
  Animation Animation1{*this, "Animation1", Hidden};
  Button Command1{*this, "Command1", "&Get"};
  PictureButton Command2{*this, "Command2", "Print the Report"};
  PictureButton Command4{*this, "Command4", "Export to Excel"};
  Button Command3{*this, "Command3", "&Close"};
  ReportSheet F1Book1{*this, "F1Book1"};

  void OnLoad();
  void Get();

  void ShowProgress();
  void HideProgress();
  void BuildReport();

  /// Writes a row for each child and gives the last row.
  int ListChildren(const SqlText& of_block);
  void WriteExaminations(const SheetIndex& rows, const SqlText& of_block);
  void MarkAbsent(int last_row);
  /// Joins a text of each record into the column of its child's row.
  void JoinInto(int column, const SheetIndex& rows, const SqlText& statement, std::string_view field);
  void AskHospital(int last_row);
  void Format(int last_row);
};

}  // namespace ovindra
