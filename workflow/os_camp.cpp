#include "workflow/os_camp.h"

#include "core/entry/lists.h"
#include "core/entry/lookups.h"
#include "core/entry/places.h"

namespace ovindra {
namespace {

constexpr ExaminationKind kSurgeonsRecord{
    "Form2",
    "OS Camp",
    PlaceChoice::kWithoutProgramme,
    "Sankul Name",
    running_number::kChildRecordNoOs,
    "insert into child_diagnosisOS values(",
    "insert into child_TreatmentOS values(",
    "insert into child_TreatmentOS(Child_RecordNo,Treatment_Code) values(",
    "No Any Child",
};

}  // namespace

Form2::Form2(Module1& module_values) : ExaminationForm(module_values, kSurgeonsRecord) {
  Plain(Combo1.click, &Form2::GetScName);
  Plain(Command9.click, &Form2::Close);
}

void Form2::FillPlaces() {
  FillList(database(), sql("select Sankul_Name from Sankul_Master order by Sankul_Name"), "Sankul_Name",
           Combo1);
  FillSchools(database(), Combo13);
  FillLocations(database(), Combo12);
}

void Form2::AfterSave() {
  Command6.SetEnabled(true);
  Command7.SetEnabled(true);
  Command8.SetEnabled(false);
  Command6.SetFocus();
}

SqlText Form2::WaitingChildren() {
  const std::string school = CodeOf(database(), lookup::kSchoolInCapitals, Combo13);
  return sql("select Enroll_No from Enroll_Master where", " School_ID=", quoted(school),
             "and Enroll_no not in(Select Enroll_no from Child_RecordOS)");
}

SqlText Form2::RecordInsert() {
  const std::string sankul = GetSankulCode();
  const std::string school = GetSchoolCode();
  return sql(
      "insert into "
      "Child_RecordOS(Child_RecordNo,Enroll_No,Sankul_ID,School_ID,LE_Sph,LE_Cyl,LE_Axis,LE_VA,RE_Sph,"
      "RE_Cyl,RE_Axis,RE_VA,Record_Date,Eye_Condition) values(",
      quoted(RecordNo()), ",", quoted(Combo2), ",", quoted(sankul), ",", quoted(school), ",",
      RefractionValues(), ",", quoted(MonthFirst(DTPicker1.value())), ",", quoted(EyeCondition()), ")");
}

void Form2::EmptyBox() {
  ExaminationForm::EmptyBox();
  for (ComboBox* place : {&Combo1, &Combo12, &Combo13}) place->Clear();
}

void Form2::GetScName() {
  const std::string sankul = GetSankulCode();
  FillList(database(),
           sql("select sc_name from Screened_School a,School_Master b", " Where a.Sankul_ID =", bare(sankul),
               "And a.school_ID = b.Sc_ID", " order by sc_name"),
           "Sc_Name", Combo13);
}

std::string Form2::GetSankulCode() {
  return CodeOf(database(), lookup::kSankul, Combo1);
}

std::string Form2::GetSchoolCode() {
  return CodeOf(database(), lookup::kSchoolOfCamp, Combo13);
}

}  // namespace ovindra
