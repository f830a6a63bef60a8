#include "masters/enrolling_places.h"

#include "core/entry/lists.h"
#include "core/entry/places.h"
#include "masters/lookups.h"

namespace ovindra {
namespace {

constexpr UnderParentWords kVisionCenter{"frmvcmaster",      "Vision Center Master",
                                         "Vision Center ID", "Vision Center Name",
                                         "Block Name",       {"Center ID", "  Center    Name", "Block"}};

constexpr Lookup kCenterOfSchool{"Select Center_ID from Center_Master1 where Center_Name=", Match::kExact,
                                 "Center_ID"};

}  // namespace

frmscmaster::frmscmaster(Module1& module) : MasterForm(module, "frmscmaster", "School Master") {
  // Programme and center keep their state when an entry ends, unlike the block.
  const std::vector<Control*> ended{&Text2, &Combo1};
  Use({&Text1, &Text2, &MSFlexGrid1, buttons_.ByStep()},
      {.parent = &Combo1,
       .more_boxes = {&Text3},
       .combos = {&Combo1, &Combo2, &Combo3},
       .entry = {.add = {&Text2, &Combo1, &Combo2, &Combo3}, .cancel = ended, .view = ended, .row = ended},
       .rows = "Select SC_ID,SC_Name,Block_Name,No_of_TTeacher from School_Master a,Block_Master b where "
               "b.Block_Code=a.Block_Code",
       .fields = {"SC_ID", "SC_Name", "Block_Name", "No_of_TTeacher"},
       .same_name = "select * from School_Master where SC_Name=",
       .checks = {{&Text2, "Enter School Name"}, {&Combo1, "Select Block Name"}},
       .counter = &running_number::kSchoolId});
  Plain(Text2.lost_focus, &frmscmaster::TrimNameToCapitals);
  Plain(Combo2.click, &frmscmaster::FillCenters);
  Plain(MSFlexGrid1.click, &frmscmaster::ShowRowWithTeachers);
  Plain(MSFlexGrid1.cell_moved, &frmscmaster::ShowRowWithTeachers);
}

void frmscmaster::ShowRowWithTeachers() {
  ShowRow();
  Text3.SetText(RowText(3));
}

void frmscmaster::FillLists() {
  FillProgrammes(database(), Combo2);
  FillBlocks(database(), Combo1);
}

void frmscmaster::FillCenters() {
  FillList(database(),
           sql("Select Center_Name from Center_Master1 a,Programme_Master b where b.Programme_Name=",
               quoted(Combo2), " and a.Programme_Code=b.Programme_code order by Center_Name"),
           "Center_Name", Combo3);
}

SqlText frmscmaster::Insert() {
  const std::string code = Read(database(), running_number::kSchoolId);
  const std::string block = CodeOf(database(), master_lookup::kBlock, Combo1);
  const std::string programme = CodeOr("", master_lookup::kProgramme, Combo2);
  const std::string center = CodeOr("", kCenterOfSchool, Combo3);
  return sql(
      "insert into School_Master (SC_ID,SC_Name,Block_Code,No_of_TTeacher,Programme_Code,Center_ID) Values (",
      quoted(code), ",", quoted(Text2), ",", bare(block), ",", quoted(Text3), ",", quoted(programme), ",",
      bare(center), ")");
}

frmvcmaster::frmvcmaster(Module1& module) : UnderParent(module, kVisionCenter) {
  Use({.rows = "Select VC_ID,VC_Name,Block_Name from Vision_Center a,Block_Master b where "
               "b.Block_Code=a.Block_Code",
       .fields = {"VC_ID", "VC_Name", "Block_Name"},
       .same_name = "select * from Vision_Center where VC_Name=",
       .checks = {{&Text2, "Enter Vision Center Name"}, {&Combo1, "Select Block Name"}},
       .counter = &running_number::kVisionCenterId});
  Plain(Text2.lost_focus, &frmvcmaster::TrimName);
}

void frmvcmaster::FillLists() {
  FillBlocks(database(), Combo1);
}

SqlText frmvcmaster::Insert() {
  const std::string code = Read(database(), running_number::kVisionCenterId);
  const std::string block = CodeOf(database(), master_lookup::kBlock, Combo1);
  return sql("insert into Vision_Center (VC_ID,VC_Name,Block_Code) Values (", quoted(code), ",",
             quoted(Text2), ",", bare(block), ")");
}

frmawmaster::frmawmaster(Module1& module) : MasterForm(module, "frmawmaster", "Anganwadi Center Master") {
  Use({&Text1, &Text2, &MSFlexGrid1, buttons_.ByStep()},
      {.parent = &Combo1,
       .more_boxes = {&Text3},
       .combos = {&Combo1},
       .entry = Entry::Alike({&Text2, &Combo1}),
       .rows = "Select AW_ID,AW_Name,Block_Name,No_of_TAww from Anganwadi_Center a,Block_Master b where "
               "b.Block_Code=a.Block_Code",
       .fields = {"AW_ID", "AW_Name", "Block_Name", "No_of_TAww"},
       .same_name = "select * from Anganwadi_Center where AW_Name=",
       .checks = {{&Text2, "Enter Center Name"}, {&Combo1, "Select Block Name"}},
       .counter = &running_number::kAnganwadiCenterId});
  Plain(Text2.lost_focus, &frmawmaster::TrimName);
  // A move by keyboard leaves the trained count as it was.
  Plain(MSFlexGrid1.click, &frmawmaster::ClickRow);
}

void frmawmaster::ClickRow() {
  ShowRow();
  Text3.SetText(RowText(3));
}

void frmawmaster::FillLists() {
  FillBlocks(database(), Combo1);
}

SqlText frmawmaster::Insert() {
  const std::string code = Read(database(), running_number::kAnganwadiCenterId);
  const std::string block = CodeOf(database(), master_lookup::kBlock, Combo1);
  return sql("insert into Anganwadi_Center (AW_ID,AW_Name,Block_Code,No_of_TAww) Values (", quoted(code), ",",
             quoted(Text2), ",", bare(block), ",", quoted(Text3), ")");
}

}  // namespace ovindra
