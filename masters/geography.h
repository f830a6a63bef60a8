// The geography that all else refers to: countries, their states, the states' districts, the districts'
// blocks. A level stores the code of the level above it. State and district differ in words alone.
#pragma once

#include <string>

#include "masters/under_parent.h"

namespace ovindra {

class frmcountrymaster : public MasterForm {
 public:
  explicit frmcountrymaster(Module1& module);

 private:
  TextBox Text1{*this, "Text1", "Country Code", Disabled};
  TextBox Text2{*this, "Text2", "Country Name", Capitals, Disabled};
  Button Command1{*this, "Command1", "&Add"};
  Button Command2{*this, "Command2", "&Save", Disabled};
  Button Command5{*this, "Command5", "Ca&ncel", Disabled};
  Button Command3{*this, "Command3", "&View"};
  Button Command4{*this, "Command4", "&Close"};
  Grid MSFlexGrid1{*this, "MSFlexGrid1", {"Country Code", "Country Name"}};

  SqlText Insert() override;
};

/// The words and statements of a level whose parent is picked by its name.
struct GeographyWords {
  UnderParentWords form;
  std::string_view name_missing;
  std::string_view parent_missing;
  Fragment parents;
  std::string_view parent_field;
  Lookup parent_code;
  Fragment same_name;
  Fragment same_parent;
  Fragment insert;
  Fragment list;
  std::array<std::string_view, 3> list_fields;
};

class GeographyLevel : public UnderParent {
 protected:
  GeographyLevel(Module1& module, const GeographyWords& words);

 private:
  void FillLists() override;
  SqlText SameRecords() override;
  SqlText Insert() override;
  std::string GetParentCode();

  const GeographyWords& level_;
};

class frmstatemaster : public GeographyLevel {
 public:
  explicit frmstatemaster(Module1& module);
};

class frmdistrictmaster : public GeographyLevel {
 public:
  explicit frmdistrictmaster(Module1& module);
};

class FRMBLOCKMASTER : public MasterForm {
 public:
  explicit FRMBLOCKMASTER(Module1& module);

 private:
  TextBox Text1{*this, "Text1", "Block Code", Disabled};
  TextBox Text2{*this, "Text2", "Block Name", Capitals, Disabled};
  ComboBox Combo1{*this, "Combo1", "State Name", DropDownList, Disabled};
  ComboBox Combo2{*this, "Combo2", "District Name", DropDownList, Disabled};
  MasterButtons buttons_{*this};
  Grid MSFlexGrid1{*this, "MSFlexGrid1", {"Block Code", "Block Name", "District  Name"}};

  void FillLists() override;
  void GetDistrictName();
  SqlText SameRecords() override;
  SqlText Insert() override;
  std::string GetDistrictCode();
};

}  // namespace ovindra
