// The children of one school who were screened but never examined by the ophthalmic assistant, on the sheet
// and as a document of the word processor.
#pragma once

#include "reports/report_form.h"

namespace ovindra {

class Form1 : public ReportForm {
 public:
  explicit Form1(Module1& module);

 private:
  ComboBox Combo3{*this, "Combo3", "Select School", DropDownCombo};
  Button Command1{*this, "Command1", "&Get"};
  Button Command5{*this, "Command5", "Show"};
  Button Command2{*this, "Command2", "&Print"};
  Button Command4{*this, "Command4", "&Export in Excel", Hidden};
  Button Command3{*this, "Command3", "&Close"};
  ReportSheet F1Book1{*this, "F1Book1"};

  void GetSchool();
  void PressKey(KeyName key);
  void Get();
  void Insert2Word1();
  void Export();

  void BuildList();
  std::string GetScode();
  Recordset MissedChildren();
};

}  // namespace ovindra
