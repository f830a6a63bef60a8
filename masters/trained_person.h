// The teachers and anganwadi workers who were trained to screen children. A person's center is a code of one
// of two tables, and the person's type alone says of which.
#pragma once

#include <string>

#include "base/controls/frame.h"
#include "masters/master_form.h"

namespace ovindra {

class frmPerson : public MasterForm {
 public:
  explicit frmPerson(Module1& module);

 private:
  TextBox Text1{*this, "Text1", "Person ID", Disabled};
  TextBox Text2{*this, "Text2", "Person Name", Capitals, Disabled};
  ComboBox Combo2{*this, "Combo2", "Type", DropDownList};
  ComboBox Combo1{*this, "Combo1", "Center Name", DropDownList, Disabled};
  Frame Frame3{*this, "Frame3", "Gender"};
  OptionButton Option1{Frame3, "Option1", "&Male"};
  OptionButton Option2{Frame3, "Option2", "&Female"};
  ComboBox Combo3{*this, "Combo3", "Block", DropDownList, Disabled};
  TextBox Text3{*this, "Text3", "Mob. No.", MaxLength{10}};
  ComboBox Combo4{*this, "Combo4", "Programme", DropDownList, Disabled};
  MasterButtons buttons_{*this};
  Grid MSFlexGrid1{*this, "MSFlexGrid1", {"Person ID", "Person Name", "Center Name", "Type"}};

  void FillLists() override;
  void ChooseType();
  SqlText SameRecords() override;
  SqlText Insert() override;

  void ShowPerson();
  std::string GetGridCenterName();
  void GetPersonDetails();

  std::string GetTypeCode();
  std::string GetCenterCode();

  std::string gender_;
  std::string block_;
};

}  // namespace ovindra
