#include "masters/centers.h"

#include "core/entry/lists.h"
#include "core/entry/places.h"
#include "masters/lookups.h"

namespace ovindra {
namespace {

constexpr UnderParentWords kSankul{"frmsankulmaster", "Sankul Master", "Sankul ID",
                                   "Sankul Name",     "Block Name",    {"Sankul ID", "Sankul Name", "Block"}};

}  // namespace

frmsankulmaster::frmsankulmaster(Module1& module) : UnderParent(module, kSankul) {
  Use({.rows = "Select Sankul_ID,Sankul_Name,Block_Name from Sankul_Master a,Block_Master b where "
               "b.Block_Code=a.Block_Code",
       .fields = {"Sankul_ID", "Sankul_Name", "Block_Name"}});
  Plain(Text2.lost_focus, &frmsankulmaster::TrimNameToCapitals);
}

void frmsankulmaster::FillLists() {
  FillBlocks(database(), Combo1);
}

SqlText frmsankulmaster::Insert() {
  const std::string block = CodeOf(database(), master_lookup::kBlock, Combo1);
  return sql("insert into Sankul_Master (Sankul_Name,Block_Code) Values (", quoted(Text2), ",", bare(block),
             ")");
}

frmscreeningcenter::frmscreeningcenter(Module1& module)
    : MasterForm(module, "frmscreeningcenter", "Screening Center Master") {
  const std::vector<Control*> fields{&Text2, &Text3, &Combo1, &Combo2};
  Use({&Text1, &Text2, &MSFlexGrid1, buttons_.ByStep()},
      {.parent = &Combo1,
       .more_boxes = {&Text3},
       .combos = {&Combo1, &Combo2},
       .entry = {.add = fields, .cancel = fields, .view = fields, .row = {&Text2, &Text3, &Combo1}},
       .rows = "select Center_ID,Center_Name,Sankul_Name from Center_Master1 a,Sankul_Master b where "
               "a.Sankul_ID=b.Sankul_ID order by Sankul_Name",
       .fields = {"Center_ID", "Center_Name", "Sankul_Name"},
       .same_name = "select * from Center_Master1 where Center_Name=",
       .checks = {{&Text2, "Enter Center Name"}, {&Combo1, "Select Block"}}});
  Plain(load, &frmscreeningcenter::OnLoad);
  Plain(Text2.lost_focus, &frmscreeningcenter::TrimNameToCapitals);
  Plain(MSFlexGrid1.click, &frmscreeningcenter::ClickRow);
}

void frmscreeningcenter::ClickRow() {
  Combo2.Clear();
  ShowRow();
}

void frmscreeningcenter::FillLists() {
  FillProgrammes(database(), Combo2);
  FillList(database(), sql("select Sankul_Name from Sankul_Master order by Sankul_Name"), "Sankul_Name",
           Combo1);
}

SqlText frmscreeningcenter::SameRecords() {
  return sql(MasterForm::SameRecords(), " and Sankul_ID=", bare(GetSankulCode()));
}

SqlText frmscreeningcenter::Insert() {
  const std::string sankul = GetSankulCode();
  const std::string programme = CodeOr("", master_lookup::kProgramme, Combo2);
  return sql("insert into Center_Master1 (Center_Name,Sankul_ID,Programme_Code) Values (", quoted(Text2), ",",
             bare(sankul), ",", quoted(programme), ")");
}

std::string frmscreeningcenter::GetSankulCode() {
  return CodeOr(kFalse, lookup::kSankul, Combo1);
}

}  // namespace ovindra
