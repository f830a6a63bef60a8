#include "masters/geography.h"

#include "core/entry/lists.h"

namespace ovindra {
namespace {

constexpr GeographyWords kState{
    {"frmstatemaster",
     "STATE MASTER",
     "State Code",
     "State Name",
     "Country Name",
     {"State Code", "State Name", "Country Name"}},
    "Enter State Name",
    "Select Country Name",
    "select Country_Name from Country_Master order by Country_Name",
    "Country_Name",
    lookup::kCountryExactly,
    "select * from STATE_MASTER where STATE_NAME=",
    " and country_Code=",
    "insert into STATE_MASTER (STATE_NAME,COUNTRY_CODE) Values (",
    "select * from State_Master a,Country_Master b where a.Country_Code=b.Country_Code order by State_Name",
    {"State_Code", "State_Name", "Country_Name"}};

constexpr Fragment kStateNames{"select State_Name from State_Master order by State_Name"};

constexpr GeographyWords kDistrict{
    {"frmdistrictmaster",
     "DISTRICT MASTER",
     "District Code",
     "District Name",
     "State Name",
     {"District Code", "District Name", "State Name"}},
    "Enter District Name",
    "Select State Name",
    kStateNames,
    "State_Name",
    lookup::kStateExactly,
    "select * from DISTRICT_MASTER where DISTRICT_NAME=",
    " and State_Code=",
    "insert into DISTRICT_MASTER (DISTRICT_NAME,STATE_CODE) Values (",
    "select * from District_Master a,State_Master b where a.State_Code=b.State_Code order by District_Name",
    {"District_Code", "District_Name", "State_Name"}};

/// Where one state's name begins with another's, whichever row the server gives first wins.
constexpr Lookup kStateOfBlock{"select State_Code from State_Master where State_Name LIKE ", Match::kPrefix,
                               "State_Code"};

}  // namespace

frmcountrymaster::frmcountrymaster(Module1& module)
    : MasterForm(module, "frmcountrymaster", "Country Master") {
  Use({&Text1, &Text2, &MSFlexGrid1, {&Command1, &Command2, &Command5, &Command3, &Command4}},
      {.entry = Entry::Alike({&Text2}),
       .rows = "select * from Country_Master order by Country_Name",
       .fields = {"Country_Code", "Country_Name"},
       .same_name = "select * from COUNTRY_MASTER where COUNTRY_NAME=",
       .checks = {{&Text2, "Enter Country Name"}}});
  Plain(load, &frmcountrymaster::OnLoad);
  Plain(Text2.lost_focus, &frmcountrymaster::TrimName);
}

SqlText frmcountrymaster::Insert() {
  return sql("insert into COUNTRY_MASTER (COUNTRY_NAME) Values (", quoted(Text2), ")");
}

GeographyLevel::GeographyLevel(Module1& module, const GeographyWords& words)
    : UnderParent(module, words.form), level_(words) {
  Use({.rows = words.list,
       .fields = {words.list_fields.begin(), words.list_fields.end()},
       .same_name = words.same_name,
       .checks = {{&Text2, words.name_missing}, {&Combo1, words.parent_missing}}});
  Plain(load, &GeographyLevel::OnLoad);
  Plain(Text2.lost_focus, &GeographyLevel::TrimName);
}

void GeographyLevel::FillLists() {
  FillList(database(), sql(level_.parents), level_.parent_field, Combo1);
}

SqlText GeographyLevel::SameRecords() {
  return sql(MasterForm::SameRecords(), level_.same_parent, bare(GetParentCode()));
}

SqlText GeographyLevel::Insert() {
  return sql(level_.insert, quoted(Text2), ",", bare(GetParentCode()), ")");
}

std::string GeographyLevel::GetParentCode() {
  return CodeOr(kFalse, level_.parent_code, Combo1);
}

frmstatemaster::frmstatemaster(Module1& module) : GeographyLevel(module, kState) {}

frmdistrictmaster::frmdistrictmaster(Module1& module) : GeographyLevel(module, kDistrict) {}

FRMBLOCKMASTER::FRMBLOCKMASTER(Module1& module) : MasterForm(module, "FRMBLOCKMASTER", "BLOCK MASTER") {
  Use({&Text1, &Text2, &MSFlexGrid1, buttons_.ByStep()},
      {.parent = &Combo2,
       .combos = {&Combo1, &Combo2},
       .entry = Entry::Alike({&Text2, &Combo1, &Combo2}),
       .rows = "select * from Block_Master a,District_Master b where a.District_Code=b.District_Code order "
               "by Block_Name",
       .fields = {"Block_Code", "Block_Name", "District_Name"},
       .same_name = "select * from BLOCK_MASTER where BLOCK_NAME=",
       .checks = {
           {&Text2, "Enter Block Name"}, {&Combo1, "Select State Name"}, {&Combo2, "Select District Name"}}});
  Plain(load, &FRMBLOCKMASTER::OnLoad);
  Plain(Combo1.click, &FRMBLOCKMASTER::GetDistrictName);
}

void FRMBLOCKMASTER::FillLists() {
  FillList(database(), sql(kStateNames), "State_Name", Combo1);
}

void FRMBLOCKMASTER::GetDistrictName() {
  const std::string state = CodeOf(database(), kStateOfBlock, Combo1);
  FillList(database(), sql("select District_Name from District_Master where State_Code=", bare(state)),
           "District_Name", Combo2);
}

SqlText FRMBLOCKMASTER::SameRecords() {
  return sql(MasterForm::SameRecords(), " and DISTRICT_CODE=", bare(GetDistrictCode()));
}

SqlText FRMBLOCKMASTER::Insert() {
  return sql("insert into BLOCK_MASTER (BLOCK_NAME,DISTRICT_CODE) Values (", quoted(Text2), ",",
             bare(GetDistrictCode()), ")");
}

std::string FRMBLOCKMASTER::GetDistrictCode() {
  return CodeOr(kFalse, lookup::kDistrictExactly, Combo2);
}

}  // namespace ovindra
