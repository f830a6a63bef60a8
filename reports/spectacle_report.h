// The list of the children who were prescribed spectacles, whether these were paid for or free, and their
// count by sex.
#pragma once

#include "reports/camp_report.h"
#include "reports/sex_count.h"

namespace ovindra {

class frmspectacle : public CampReportForm {
 public:
  explicit frmspectacle(Module1& module);

 private:
  Button Command1{*this, "Command1", "&Get"};
  Button Command5{*this, "Command5", "&Sex"};
  SexCount sexes_{*this};
  Button Command2{*this, "Command2", "&Print", Disabled};
  Button Command4{*this, "Command4", "&Export to Excel", Hidden};
  Button Command3{*this, "Command3", "&Close"};
  ReportSheet F1Book1{*this, "F1Book1"};

  void OnLoad() { OpenSelections(); }
  void PressKey(KeyName key);
  void Get();
  void CountBySex();
  void HideCount() { sexes_.Frame3.SetVisible(false); }
  void Print();
  void Export();

  void BuildList() override;
};

}  // namespace ovindra
