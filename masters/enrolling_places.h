// The places at which children are enrolled: schools, vision centers, anganwadi centers. Their keys are text
// codes made from a counter, read before the question and advanced after the insert, with nothing that locks
// it: of two who save at the same moment the second gets the error of the table's key.
#pragma once

#include <string>

#include "masters/under_parent.h"

namespace ovindra {

class frmscmaster : public MasterForm {
 public:
  explicit frmscmaster(Module1& module);

 private:
  TextBox Text1{*this, "Text1", "School ID", Disabled};
  TextBox Text2{*this, "Text2", "School Name", Capitals, Disabled};
  ComboBox Combo1{*this, "Combo1", "Block Name", DropDownList, Disabled};
  TextBox Text3{*this, "Text3", "No of Trained Teacher", NumbersOnly};
  ComboBox Combo2{*this, "Combo2", "Programme", DropDownList, Disabled};
  ComboBox Combo3{*this, "Combo3", "Screening Center", DropDownList, Disabled};
  MasterButtons buttons_{*this};
  Grid MSFlexGrid1{*this, "MSFlexGrid1", {"School ID", " School   Name", "Block", "No of Trained Teacher"}};

  void ShowRowWithTeachers();
  void FillLists() override;
  void FillCenters();
  SqlText Insert() override;
};

class frmvcmaster : public UnderParent {
 public:
  explicit frmvcmaster(Module1& module);

 private:
  void FillLists() override;
  SqlText Insert() override;
};

class frmawmaster : public MasterForm {
 public:
  explicit frmawmaster(Module1& module);

 private:
  TextBox Text1{*this, "Text1", "Anganwadi Center ID", Disabled};
  TextBox Text2{*this, "Text2", "Anganwadi Center Name", Capitals, Disabled};
  ComboBox Combo1{*this, "Combo1", "Block Name", DropDownList, Disabled};
  TextBox Text3{*this, "Text3", "No of Trained Aww", NumbersOnly};
  MasterButtons buttons_{*this};
  Grid MSFlexGrid1{*this, "MSFlexGrid1", {"Center ID", "  Center    Name", "Block", "Trained Aww"}};

  void ClickRow();
  void FillLists() override;
  SqlText Insert() override;
};

}  // namespace ovindra
