// The sankul-wise report: the screening register of one sankul, line by line, and beside it the schools of
// the sankul for which no child was ever enrolled.
#pragma once

#include <string>

#include "reports/listing.h"
#include "reports/report_form.h"

namespace ovindra {

class frmsankulwiserpt : public ReportForm {
 public:
  explicit frmsankulwiserpt(Module1& module);

 private:
  ComboBox Combo2{*this, "Combo2", "Block", DropDownCombo};
  ComboBox Combo1{*this, "Combo1", "Sankul Name", DropDownCombo};
  Button Command1{*this, "Command1", "&Get"};
  Button Command5{*this, "Command5", "NiL. Sc. List"};
  PictureButton Command4{*this, "Command4", "Print", Hidden};
  PictureButton Command3{*this, "Command3", "Export in Excel", Hidden};
  Button Command2{*this, "Command2", "&Close"};
  ReportSheet F1Book1{*this, "F1Book1"};
  StagingGrid MSFlexGrid1{*this,
                          "MSFlexGrid1",
                          {"RNO", "School Name", "Center Name", "Screening Date", "Boys", "Girls",
                           "Trained Teacher", "Screened Boys", "Screened Girls", "Teacher Name", "Defected"}};

  void OnLoad();
  void PressKey(KeyName key);
  void GetSankul();
  void Get();
  void NilList();
  void Print();
  void Export();

  bool CheckSankul();
  std::string SankulCode();
  void GetRpt();
  void BuildNilList();

  /// Gathers the register lines in the grid; the end of the statement tells which and in what order.
  void ReadRegister(const std::string& sankul, Fragment end);
  void JoinTeachers(const std::string& sankul);
  void CountDefected(const std::string& sankul);

  /// Writes the gathered lines: whole, or without the two columns of the defected.
  void WriteSheet(int last_column);
  void WriteLine(Sheet& cells, int row, int grid_row, int last_column);
};

}  // namespace ovindra
