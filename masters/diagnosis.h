// The diagnoses that the examination record offers, each filed under a category. Every step of its buttons
// and its list carries the error tail.
#pragma once

#include "masters/master_form.h"

namespace ovindra {

class frmdiagmaster : public MasterForm {
 public:
  explicit frmdiagmaster(Module1& module);

 private:
  TextBox Text1{*this, "Text1", "Diagnosis Code", Disabled};
  ComboBox Combo1{*this, "Combo1", "Category", DropDownList, Disabled};
  TextBox Text2{*this, "Text2", "Diagnosis Name", Capitals, Disabled};
  MasterButtons buttons_{*this};
  Grid MSFlexGrid1{*this, "MSFlexGrid1", {"Diagnosis Code", "Diagnosis Name", "Category"}};

  void FillLists() override;
  SqlText Insert() override;
};

}  // namespace ovindra
