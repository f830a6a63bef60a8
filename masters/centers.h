// Sankuls, each a named group within a block, and the screening centers that belong to a sankul and a
// programme. The older table of centers is not known here.
#pragma once

#include <string>

#include "masters/under_parent.h"

namespace ovindra {

/// The one master without any check: a name may be stored twice, and empty. What guards its save is that a
/// block must have been picked.
class frmsankulmaster : public UnderParent {
 public:
  explicit frmsankulmaster(Module1& module);

 private:
  void FillLists() override;
  SqlText Insert() override;
};

class frmscreeningcenter : public MasterForm {
 public:
  explicit frmscreeningcenter(Module1& module);

 private:
  TextBox Text1{*this, "Text1", "Center ID", Disabled};
  TextBox Text2{*this, "Text2", "Center Name", Capitals, Disabled};
  ComboBox Combo1{*this, "Combo1", "Sankul Name", DropDownList, Disabled};
  ComboBox Combo2{*this, "Combo2", "Programme", DropDownList, Disabled};
  // Never shown and never stored.
  TextBox Text3{*this, "Text3", "No. of Trained Teacher", NumbersOnly, Disabled, Hidden};
  MasterButtons buttons_{*this};
  Grid MSFlexGrid1{*this, "MSFlexGrid1", {"Center ID", "Center   Name", "Sankul Name"}};

  void ClickRow();
  void FillLists() override;
  SqlText SameRecords() override;
  SqlText Insert() override;
  std::string GetSankulCode();
};

}  // namespace ovindra
