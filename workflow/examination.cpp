#include "workflow/examination.h"

#include "core/entry/calendar.h"
#include "core/entry/center_code.h"
#include "core/entry/child_details.h"
#include "core/entry/lookups.h"
#include "core/entry/places.h"
#include "core/entry/standard_dialogs.h"

namespace ovindra {
namespace {

constexpr ExaminationKind kAssistantsRecord{
    "frmchildrecord",
    "Child examination record",
    PlaceChoice::kWithProgramme,
    "Center Name",
    running_number::kChildRecordNo,
    "insert into child_diagnosis values(",
    "insert into child_Treatment values(",
    "insert into child_Treatment(Child_RecordNo,Treatment_Code) values(",
    "No Any Defected Child",
};

/// The entry that reads so becomes the current one; a name that the list does not hold is error 5.
void TakeCurrent(ListBox& from, std::string_view name, ListBox& to) {
  from.SetFocus();
  from.SetListIndex(from.items().IndexOf(name).value_or(ListItems::kNone));
  const int index = from.list_index();
  const std::string text = from.text();
  from.RemoveItem(index);
  to.AddItem(text);
}

}  // namespace

frmchildrecord::frmchildrecord(Module1& module_values) : ExaminationForm(module_values, kAssistantsRecord) {
  Plain(Combo12.click, &frmchildrecord::PickType);
  Plain(Combo1.click, &frmchildrecord::PickCenter);
  Plain(Command1.click, &frmchildrecord::OpenCalendarAtDate);
  Plain(Command13.click, &frmchildrecord::Edit);
  Plain(Text1.key_press, &frmchildrecord::PressInEnrollNo);
  Guarded(Command14.click, &frmchildrecord::Update);
  Plain(Command9.click, &frmchildrecord::Close);
}

void frmchildrecord::FillPlaces() {
  FillProgrammes(database(), *Combo14);
  FillSchools(database(), Combo13);
  FillLocations(database(), Combo12);
  FillOldCenters(database(), Combo1);
}

void frmchildrecord::AfterSave() {
  Command7.SetEnabled(true);
  Command12.SetFocus();
}

void frmchildrecord::PickType() {
  FillCentersOfType(database(), Combo12, *Combo14, Combo1, Combo13);
}

void frmchildrecord::PickCenter() {
  FillSchoolsOfCenter(database(), Combo1, Combo13);
}

void frmchildrecord::OpenCalendarAtDate() {
  MonthView1.SetValue(DTPicker1.value());
  ShowCalendar(MonthView1);
}

SqlText frmchildrecord::WaitingChildren() {
  const std::string location = CodeOf(database(), lookup::kLocation, Combo12);
  const auto center = CenterCodeOfType(database(), location, Combo1);
  if (!center) return {};
  const SqlText at_center =
      sql("select Enroll_No from Enroll_Master where Center_ID=", quoted(*center), " and screened='Y'");
  if (Combo13.trimmed().empty()) {
    return sql(at_center, "and condition='D' and Enroll_no not in(Select Enroll_no from Child_Record)");
  }
  const std::string school = CodeOf(database(), lookup::kSchoolInCapitals, Combo13);
  return sql(at_center, "and condition='D' and School_ID=", quoted(school),
             "and Enroll_no not in(Select Enroll_no from Child_Record)");
}

SqlText frmchildrecord::RecordInsert() {
  const std::string user = module().GetUserCode();
  return sql(
      "insert into "
      "Child_Record(Child_RecordNo,Enroll_No,LE_Sph,LE_Cyl,LE_Axis,LE_VA,RE_Sph,RE_Cyl,RE_Axis,RE_VA,"
      "Record_Date,Eye_Condition,CodedBy) values(",
      quoted(RecordNo()), ",", quoted(Combo2), ",", RefractionValues(), ",",
      quoted(MonthFirst(DTPicker1.value())), ",", quoted(EyeCondition()), ",", quoted(user), ")");
}

void frmchildrecord::Edit() {
  Text1.SetText("");
  Text1.SetFocus();
}

void frmchildrecord::PressInEnrollNo(KeyPress& press) {
  if (press.character != kEnterKey) return;
  EmptyBox();
  FillPlaces();
  FillValueLists();
  ResetSpectacleLabel();
  GetDetailsForUpdate();
  Command14.SetEnabled(true);
  Command1.SetFocus();
}

void frmchildrecord::GetDetailsForUpdate() {
  const std::string enroll_no(Text1.trimmed());
  const Recordset child = database().Execute(sql(
      "select Child_Name,fName,Age,Gender,Class,b.Block_Name,c.District_Name,d.State_Name,e.Country_Name,"
      "f.Child_RecordNo from Enroll_Master a,Block_Master b,District_Master c,State_Master d,Country_Master "
      "e,"
      "Child_Record f",
      " where a.Enroll_No=", quoted(enroll_no),
      " and a.Block_Code=b.Block_COde and a.District_Code=c.District_Code and a.State_Code=d.State_Code and "
      "a.Country_Code=e.Country_Code and a.Enroll_no=f.Enroll_no"));
  MSFlexGrid1.SetRows(MSFlexGrid1.fixed_rows());
  edit_record_no_.clear();
  if (child.Eof()) {
    Tell(machine(), {"Record not exist!", "Wrong input", MessageIcon::kInformation});
    EmptyBox();
    Command13.SetFocus();
    return;
  }
  WriteChildDetails(child, MSFlexGrid1);
  edit_record_no_ = Trim(child["Child_RecordNo"]);
  ShowRecord(enroll_no);
  ShowDiagnoses(enroll_no);
  ShowTreatments(enroll_no);
}

void frmchildrecord::ShowRecord(std::string_view enroll_no) {
  const Recordset record = database().Execute(
      sql("Select "
          "a.Record_Date,c.Center_Name,d.SC_Name,e.Block_Name,a.CodedBy,RE_Sph,RE_Cyl,RE_Axis,RE_VA,LE_Sph,"
          "LE_Cyl,LE_Axis,LE_VA,a.Eye_Condition,f.Programme_Name",
          " from Child_Record a,Enroll_Master b,Center_Master1 c,School_Master d,Block_Master "
          "e,programme_master f",
          " where  a.Enroll_No=", quoted(enroll_no),
          " and  a.Enroll_no=b.Enroll_no and b.Programme_Code='GRANT2016' and "
          "b.Programme_Code=f.Programme_Code and "
          "b.Center_ID=c.Center_ID and b.School_ID=d.SC_ID and b.Block_Code= e.Block_Code"));
  if (record.Eof()) return;
  DTPicker1.SetValue(DayOf(record["Record_Date"].AsMoment()));
  Combo14->SetText(Trim(record["Programme_Name"]));
  Combo12.SetText("SCHOOL");
  Combo1.SetText(Trim(record["Center_Name"]));
  Combo13.SetText(Trim(record["SC_Name"]));
  const bool is_defected = Trim(record["Eye_Condition"]) == "D";
  (is_defected ? Option4 : Option3).SetOn(true);
  edit_condition_ = is_defected ? "D" : "N";
  ShowRefraction(record);
}

void frmchildrecord::ShowRefraction(const Recordset& record) {
  const std::pair<ComboBox*, std::string_view> values[] = {
      {&Combo7, "RE_Sph"}, {&Combo8, "RE_Cyl"}, {&Combo9, "RE_Axis"}, {&Combo10, "RE_VA"},
      {&Combo3, "LE_Sph"}, {&Combo4, "LE_Cyl"}, {&Combo5, "LE_Axis"}, {&Combo6, "LE_VA"},
  };
  for (const auto& [combo, field] : values) {
    const std::string value = Trim(record[field]);
    if (!value.empty()) combo->SetText(value);
  }
}

void frmchildrecord::ShowDiagnoses(std::string_view enroll_no) {
  Recordset diagnoses = database().Execute(
      sql("Select b.Enroll_no ,c.Diagnosis_Name,d.category from Child_Diagnosis a,Child_Record "
          "b,Diagnosis_Master c,"
          "Category_Master d",
          " where b.Enroll_No=", quoted(enroll_no),
          "and b.Child_RecordNo = a.Child_RecordNo And a.Diagnosis_Code = c.Diagnosis_Code and "
          "c.category_code=d.category_code"));
  for (; !diagnoses.Eof(); diagnoses.MoveNext()) {
    Combo11.SetText(Trim(diagnoses["category"]));
    TakeCurrent(List3, Trim(diagnoses["Diagnosis_Name"]), List1);
  }
}

void frmchildrecord::ShowTreatments(std::string_view enroll_no) {
  Recordset treatments = database().Execute(
      sql("Select [Description],Remark from Child_Treatment a,Child_Record b,Treatment_Master c",
          " where b.Enroll_No=", quoted(enroll_no),
          " and b.Child_RecordNo = a.Child_RecordNo And a.Treatment_Code = c.Treatment_Code"));
  for (; !treatments.Eof(); treatments.MoveNext()) {
    TakeCurrent(List4, Trim(treatments["Description"]), List2);
    const std::string remark = Trim(treatments["Remark"]);
    if (remark == "P") {
      Option1.SetOn(true);
      AddToSpectacleLabel("Paid");
    } else if (remark == "F") {
      Option2.SetOn(true);
      AddToSpectacleLabel("Free");
    }
    Label19.SetVisible(true);
  }
}

void frmchildrecord::Update() {
  if (AskToEdit(machine())) {
    UpdateChildRecord();
    if (Option4.on()) SaveDiagnoses(edit_record_no_);
    for (int index = 0; index < List2.items().count(); ++index) {
      // A treatment that carries Paid or Free is the last thing that an update writes.
      if (SaveTreatment(edit_record_no_, index)) return;
    }
  }
  Tell(machine(), {"This Record Updated!", "Updated", MessageIcon::kInformation});
  EmptyBox();
  Command14.SetEnabled(false);
  Text1.SetText("");
  Text1.SetFocus();
}

void frmchildrecord::UpdateChildRecord() {
  edit_condition_ = EyeCondition();
  const std::string user = module().GetUserCode();
  database().Execute(sql("Update Child_Record set Record_Date=", quoted(MonthFirst(DTPicker1.value())),
                         ",LE_Sph=", quoted(Combo3), ",LE_Cyl=", quoted(Combo4), ",LE_Axis=", quoted(Combo5),
                         ",LE_VA=", quoted(Combo6), ",RE_Sph=", quoted(Combo7), ",RE_Cyl=", quoted(Combo8),
                         ",RE_Axis=", quoted(Combo9), ",RE_VA=", quoted(Combo10),
                         ",Eye_Condition=", quoted(edit_condition_), ",CodedBy=", quoted(user),
                         " where Child_RecordNo=", quoted(edit_record_no_)));
  database().Execute(sql("Delete from Child_Diagnosis where Child_RecordNo=", quoted(edit_record_no_)));
  database().Execute(sql("Delete from Child_Treatment where Child_RecordNo=", quoted(edit_record_no_)));
}

}  // namespace ovindra
