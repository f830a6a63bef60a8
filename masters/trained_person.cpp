#include "masters/trained_person.h"

#include "core/entry/lists.h"
#include "core/entry/places.h"
#include "masters/lookups.h"

namespace ovindra {
namespace {

constexpr Lookup kTypeCode{"Select Type_Code from Tperson_Type_Master where Description=", Match::kExact,
                           "Type_Code"};
constexpr Lookup kAnganwadiCenter{"Select AW_ID from Anganwadi_Center where AW_Name=", Match::kExact,
                                  "AW_ID"};
constexpr Lookup kSchool{"Select SC_ID from School_Master where SC_Name=", Match::kExact, "SC_ID"};
constexpr Lookup kAnganwadiName{"Select AW_Name from Anganwadi_Center where AW_Id=", Match::kExact,
                                "AW_Name"};
constexpr Lookup kSchoolName{"Select Sc_Name from School_Master where Sc_Id=", Match::kExact, "Sc_Name"};

constexpr std::string_view kTeacher = "TEACHER";
constexpr std::string_view kAnganwadiWorker = "AWW";

}  // namespace

frmPerson::frmPerson(Module1& module) : MasterForm(module, "frmPerson", "Trained Person Master") {
  const std::vector<Control*> ended{&Text2, &Combo1, &Combo2, &Combo3, &Frame3};
  Use({&Text1, &Text2, &MSFlexGrid1, buttons_.ByStep()},
      {.more_boxes = {&Text3},
       .combos = {&Combo1, &Combo2, &Combo3},
       .entry = {.add = {&Text2, &Combo1, &Combo2, &Combo3, &Combo4, &Frame3},
                 .cancel = ended,
                 .view = {&Text2, &Combo1},
                 .row = ended},
       .rows = "sELECT Person_ID,Person_Name,Center_ID,Description from TPerson_Master "
               "a,TPerson_Type_Master b where a.Person_Type=b.Type_Code",
       .fields = {"Person_ID", "Person_Name", "Center_ID", "Description"},
       .same_name = "select * from TPerson_Master where Person_Name=",
       .checks = {{&Text2, "Enter Person Name"}, {&Combo1, "Select Center Name"}}});
  Plain(load, &frmPerson::OnLoad);
  Plain(Text2.lost_focus, &frmPerson::TrimNameToCapitals);
  Plain(Combo2.click, &frmPerson::ChooseType);
  Guarded(MSFlexGrid1.click, &frmPerson::ShowPerson);
  Guarded(MSFlexGrid1.cell_moved, &frmPerson::ShowPerson);
}

void frmPerson::FillLists() {
  FillList(database(), sql("Select Description from Tperson_Type_Master order by Description"), "Description",
           Combo2);
  FillList(database(), sql("Select Block_Name from Block_Master order by Block_Name"), "Block_Name", Combo3);
  FillProgrammes(database(), Combo4);
}

void frmPerson::ChooseType() {
  if (!Combo2.enabled()) return;
  if (GetTypeCode() == kAnganwadiWorker)
    FillList(database(), sql("Select AW_Name from Anganwadi_Center order by AW_Name"), "AW_Name", Combo1);
  if (GetTypeCode() == kTeacher) FillSchools(database(), Combo1);
}

SqlText frmPerson::SameRecords() {
  return sql(MasterForm::SameRecords(), " and Center_ID=", quoted(GetCenterCode()));
}

SqlText frmPerson::Insert() {
  // Without a gender there is no statement, which fails once the question is answered.
  if (!Option1.on() && !Option2.on()) return {};
  const std::string center = GetCenterCode();
  const std::string type = GetTypeCode();
  const std::string block = CodeOf(database(), master_lookup::kBlock, Combo3);
  const std::string programme = CodeOr("", master_lookup::kProgramme, Combo4);
  return sql(
      "insert into TPerson_Master (Person_Name,Center_ID,Person_Type,Gender,Block,Mobile,Programme_Code) "
      "Values (",
      quoted(Text2), ",", quoted(center), ",", quoted(type), ",", quoted(Option1.on() ? "M" : "F"), ",",
      bare(block), ",", quoted(Text3), ",", quoted(programme), ")");
}

void frmPerson::ShowPerson() {
  const std::string center = GetGridCenterName();
  GetPersonDetails();
  Text1.SetText(RowText(0));
  Text2.SetText(RowText(1));
  ShowOnly(Combo1, center);
  // A type that is shown fills no list of centers.
  Combo2.SetEnabled(false);
  ShowOnly(Combo2, RowText(3));
  ShowOnly(Combo3, block_);
  if (gender_ == "M") Option1.SetOn(true);
  if (gender_ == "F") Option2.SetOn(true);
  EndShownRow();
}

std::string frmPerson::GetGridCenterName() {
  const std::string_view type = RowText(3);
  if (type == kTeacher) return CodeOf(database(), kSchoolName, RowText(2));
  if (type == "ANGANWADI WORKER") return CodeOf(database(), kAnganwadiName, RowText(2));
  return {};
}

void frmPerson::GetPersonDetails() {
  const Recordset person = database().Execute(
      sql("Select Gender,b.Block_name as Block from TPerson_Master a,Block_Master b where Person_ID=",
          bare(RowText(0)), " and a.Block=b.Block_Code"));
  gender_ = Trim(person["Gender"]);
  block_ = Trim(person["Block"]);
}

std::string frmPerson::GetTypeCode() {
  return CodeOr("", kTypeCode, Combo2);
}

std::string frmPerson::GetCenterCode() {
  std::string center;
  if (GetTypeCode() == kAnganwadiWorker) center = CodeOr("", kAnganwadiCenter, Combo1);
  if (GetTypeCode() == kTeacher) center = CodeOf(database(), kSchool, Combo1);
  return center;
}

}  // namespace ovindra
