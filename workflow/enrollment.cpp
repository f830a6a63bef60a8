#include "workflow/enrollment.h"

#include "base/text/blanks.h"
#include "core/entry/calendar.h"
#include "core/entry/lists.h"
#include "core/entry/places.h"
#include "core/entry/running_number.h"
#include "core/entry/standard_dialogs.h"
#include "core/text/text.h"

namespace ovindra {
namespace {

constexpr double kOldestAge = 20;
constexpr double kHighestClass = 12;
constexpr double kTwoDigits = 99;

/// What the name of a type decides: which table gives the center's code, and whether the statement stores
/// months, days, mobile, programme and the entering user besides.
enum class Stores { kPlaceAlone, kEverything };
struct EnrollmentType {
  std::string_view pattern;
  const Lookup& center;
  Stores stores;
};
constexpr EnrollmentType kTypes[] = {
    {"ANGANWADI*", lookup::kScreeningCenter, Stores::kEverything},
    {"VISION*", lookup::kVisionCenter, Stores::kPlaceAlone},
    {"HOSPITAL*", lookup::kHospital, Stores::kPlaceAlone},
};

}  // namespace

frmenroll::frmenroll(Module1& module) : Form(module.machine, "frmenroll", "Enroll Child"), module_(module) {
  Plain(load, &frmenroll::OnLoad);
  Plain(Command1.click, &frmenroll::Add);
  Guarded(Command2.click, &frmenroll::Save);
  Plain(Command5.click, &frmenroll::Cancel);
  Plain(Command3.click, &frmenroll::Close);
  Plain(Combo6.click, &frmenroll::PickType);
  Plain(Combo7.click, &frmenroll::PickCenter);
  Plain(Combo1.click, &frmenroll::PickSchool);
  Plain(Combo2.click, &frmenroll::PickBlock);
  Plain(Combo6.validate, &frmenroll::LeaveType);
  Plain(Combo7.validate, &frmenroll::LeaveCenter);
  Plain(Combo2.validate, &frmenroll::LeaveBlock);
  Plain(Text3.validate, &frmenroll::CheckAge);
  Plain(Text3.lost_focus, &frmenroll::LeaveAge);
  Plain(Text4.validate, &frmenroll::CheckClass);
  Plain(Text4.lost_focus, &frmenroll::LeaveClass);
  Plain(Option3.click, &frmenroll::ShowSchoolFields);
  Plain(Command4.click, &frmenroll::OpenCalendar);
  Plain(MonthView1.date_click, &frmenroll::ClickDay);
  Plain(MonthView1.key_press, &frmenroll::PressInCalendar);
  Guarded(MSFlexGrid1.click, &frmenroll::DeleteChild);
  Plain(MSFlexGrid1.double_click, &frmenroll::SortColumn);
}

void frmenroll::OnLoad() {
  EmptyBox();
  DTPicker1.SetValue(machine().clock.Today());
  MonthView1.SetValue(machine().clock.Today());
  ShowDateOfList();
  MSFlexGrid1.SetRows(2);
}

void frmenroll::Add() {
  EmptyBox();
  Frame1.SetEnabled(true);
  FillProgrammes(database(), Combo8);
  FillSchools(database(), Combo1);
  FillLocations(database(), Combo6);
  GetBlockName();
  Command5.SetEnabled(true);
  Command2.SetEnabled(true);
  Command1.SetEnabled(false);
  Combo8.SetFocus();
}

void frmenroll::Save() {
  if (!Validation()) return;
  if (!AskToSave(machine())) return;
  LoadEntry();
  IncreamentEnroll();
  View();
  EmptyBox();
  Command5.SetEnabled(true);
  Command1.SetEnabled(false);
  TellSaved(machine());
  GetBlockName();
  Text1.SetFocus();
}

void frmenroll::Cancel() {
  Command1.SetEnabled(true);
  Command5.SetEnabled(false);
  Command2.SetEnabled(false);
  Frame1.SetEnabled(false);
  EmptyBox();
}

void frmenroll::PickType() {
  FillCentersOfType(database(), Combo6, Combo8, Combo7, Combo1);
}

void frmenroll::PickCenter() {
  FillSchoolsOfCenter(database(), Combo7, Combo1);
}

void frmenroll::PickSchool() {
  if (!Combo1.trimmed().empty()) View();
}

void frmenroll::PickBlock() {
  const Recordset address = database().Execute(
      sql("Select b.District_Name,c.State_Name,d.Country_Name from Block_Master a,District_Master "
          "b,State_Master c,Country_Master d",
          " where a.Block_Name=", quoted(Combo2),
          " and a.District_Code=b.District_Code and b.State_Code=c.State_Code and "
          "c.Country_Code=d.Country_Code"));
  if (address.Eof()) return;
  Combo3.SetText(Trim(address["District_Name"]));
  Combo4.SetText(Trim(address["State_Name"]));
  Combo5.SetText(Trim(address["Country_Name"]));
}

void frmenroll::LeaveCenter(bool& keep) {
  keep = Combo7.text().empty();
}

void frmenroll::LeaveBlock(bool& keep) {
  if (!Combo2.text().empty()) return;
  Tell(machine(), {"Please Select Block !!!", "This Field Must be Necessary", MessageIcon::kCritical});
  keep = true;
}

void frmenroll::LeaveType(bool& keep) {
  if (!Combo6.text().empty()) return;
  Tell(machine(), {"Select Type !!!", "This Field Must be Necessary", MessageIcon::kCritical});
  keep = true;
}

void frmenroll::CheckAge(bool& keep) {
  if (Val(Text3.text()) <= kOldestAge) return;
  Tell(machine(), {"Please Check Age", "OVD", MessageIcon::kExclamation});
  keep = true;
}

void frmenroll::CheckClass(bool& keep) {
  if (Val(Text4.text()) <= kHighestClass) return;
  Tell(machine(), {"Please Check Class", "OVD", MessageIcon::kExclamation});
  keep = true;
}

void frmenroll::LeaveAge() {
  if (Text3.text().empty() || Val(Text3.text()) <= kTwoDigits) return;
  Tell(machine(), {"Enter Valid Age", "OVD", MessageIcon::kCritical});
  Text3.SetFocus();
}

void frmenroll::LeaveClass() {
  if (Text4.text().empty() || Val(Text4.text()) <= kTwoDigits) return;
  Tell(machine(), {"Enter Valid Class", "OVD", MessageIcon::kCritical});
  Text4.SetFocus();
}

void frmenroll::ShowSchoolFields() {
  Label6.SetVisible(true);
  Label5.SetVisible(true);
  Text4.SetVisible(true);
  Combo1.SetVisible(true);
}

void frmenroll::OpenCalendar() {
  ShowCalendar(MonthView1);
}

void frmenroll::ClickDay() {
  DTPicker1.SetValue(MonthView1.value());
  ShowDateOfList();
  MonthView1.SetVisible(false);
  View();
}

void frmenroll::PressInCalendar(KeyPress& press) {
  if (press.character == kEnterKey) TakeDay(MonthView1, DTPicker1);
}

void frmenroll::DeleteChild() {
  if (MSFlexGrid1.row() == MSFlexGrid1.fixed_rows()) return;
  if (!AskToDelete(machine())) return;
  const std::string& enroll_no = MSFlexGrid1.Cell(MSFlexGrid1.row(), 0);
  database().Execute(sql("Delete from Enroll_Master where Enroll_No=", quoted(Trim(enroll_no))));
  TellDeleted(machine());
  if (!Combo1.trimmed().empty()) View();
}

void frmenroll::SortColumn() {
  column_sort_.DoubleClick(MSFlexGrid1);
}

bool frmenroll::Validation() {
  const auto is_blank = [](const TextControl& control) { return control.trimmed().empty(); };
  const auto refuse = [this](std::string text, Control& control) {
    Tell(machine(), {std::move(text), "Blank Entry Not Allowed", MessageIcon::kCritical});
    control.SetFocus();
    return false;
  };
  if (is_blank(Text1)) return refuse("Please Enter Child Name", Text1);
  if (is_blank(Text2)) return refuse("Please Enter Father/Mother Name", Text2);
  if (is_blank(Text3)) return refuse("Please Enter Age", Text3);
  if (Text4.text().empty() && Option3.on()) return refuse("Please Enter Class", Text4);
  if (Combo1.text().empty() && Option3.on()) return refuse("Please Select School/Center Name", Combo1);
  if (Combo6.text().empty()) return refuse("Please Select type", Combo6);
  return true;
}

std::string frmenroll::GetEnrollNO() {
  enroll_no_ = CodeOf(database(), lookup::kLocation, Combo6) + Read(database(), running_number::kEnrollNo);
  return enroll_no_;
}

void frmenroll::LoadEntry() {
  SqlText insert;
  for (const EnrollmentType& type : kTypes) {
    if (!Matches(Combo6.trimmed(), type.pattern)) continue;
    insert =
        type.stores == Stores::kEverything ? InsertEverything(type.center) : InsertPlaceAlone(type.center);
  }
  database().Execute(insert);
}

SqlText frmenroll::InsertEverything(const Lookup& center) {
  const PlaceCodes place = ReadPlace(center);
  const std::string school = CodeOf(database(), lookup::kSchool, Combo1);
  const std::string location = CodeOf(database(), lookup::kLocation, Combo6);
  const std::string programme = GetProgrammeCode();
  const std::string user = module_.GetUserCode();
  return sql(
      "insert into Enroll_Master(Enroll_No,Child_Name,Fname,Age,Gender,"
      "Class,Center_ID,Block_Code,District_Code,State_Code,Country_Code,Enroll_Date,School_ID,School_Going,"
      "Location_ID,Month,Days,Mobile,Programme_Code,EnrollEntry) values(",
      ChildValues(place), ",", quoted(school, " "), ",", quoted(SchoolGoing()), ",", quoted(location), ",",
      quoted(Text5), ",", quoted(Text6), ",", quoted(Text7), ",", quoted(programme), ",", quoted(user), ")");
}

SqlText frmenroll::InsertPlaceAlone(const Lookup& center) {
  const PlaceCodes place = ReadPlace(center);
  const std::string location = CodeOf(database(), lookup::kLocation, Combo6);
  if (Option3.on()) {
    const std::string school = CodeOf(database(), lookup::kSchool, Combo1);
    return sql(
        "insert into Enroll_Master(Enroll_No,Child_Name,Fname,Age,Gender,"
        "Class,Center_ID,Block_Code,District_Code,State_Code,Country_Code,Enroll_Date,School_ID,School_Going,"
        "Location_ID) values(",
        ChildValues(place), ",", quoted(school, " "), ",", quoted(SchoolGoing()), ",", quoted(location), ")");
  }
  return sql(
      "insert into Enroll_Master(Enroll_No,Child_Name,Fname,Age,Gender,"
      "Class,Center_ID,Block_Code,District_Code,State_Code,Country_Code,Enroll_Date,School_Going,"
      "Location_ID) values(",
      ChildValues(place), ",", quoted(SchoolGoing()), ",", quoted(location), ")");
}

frmenroll::PlaceCodes frmenroll::ReadPlace(const Lookup& center) {
  PlaceCodes place;
  place.center = CodeOf(database(), center, Combo7);
  place.block = CodeOf(database(), lookup::kBlockByPrefix, Combo2);
  place.district = CodeOf(database(), lookup::kDistrictByPrefix, Combo3);
  place.state = CodeOf(database(), lookup::kStateByPrefix, Combo4);
  place.country = CodeOf(database(), lookup::kCountryByPrefix, Combo5);
  return place;
}

SqlText frmenroll::ChildValues(const PlaceCodes& place) {
  return sql(quoted(GetEnrollNO()), ",", quoted(Text1), ",", quoted(Text2), ",", quoted(Text3), ",",
             quoted(Option1.on() ? "M" : "F"), ",", quoted(Text4), ",", quoted(place.center), ",",
             bare(place.block), ",", bare(place.district), ",", bare(place.state), ",", bare(place.country),
             ",", quoted(MonthFirst(DTPicker1.value())));
}

std::string_view frmenroll::SchoolGoing() const {
  return Option3.on() ? "Y" : "N";
}

void frmenroll::IncreamentEnroll() {
  Increment(database(), running_number::kEnrollNo);
}

void frmenroll::View() {
  FillGrid(database(),
           sql("select * from Enroll_Master a,School_Master b",
               " where a.School_ID=b.Sc_ID and b.Sc_Name=", quoted(Combo1), " order by Enroll_no"),
           {"Enroll_No", "Child_Name", "FName", "age", "Gender"}, MSFlexGrid1);
}

void frmenroll::EmptyBox() {
  for (TextBox* box : {&Text1, &Text2, &Text3, &Text4, &Text5, &Text6, &Text7}) box->SetText("");
  for (ComboBox* list : {&Combo2, &Combo3, &Combo4, &Combo5}) list->Clear();
  Option1.SetOn(true);
  Option3.SetOn(true);
}

void frmenroll::GetBlockName() {
  FillBlocks(database(), Combo2);
}

std::string frmenroll::GetProgrammeCode() {
  const Recordset programme = database().Execute(
      sql("Select Programme_Code from Programme_Master where Programme_Name=", quoted(Combo8)));
  return programme.Eof() ? std::string() : Trim(programme["Programme_Code"]);
}

void frmenroll::ShowDateOfList() {
  Frame4.SetCaption("List of Enroll Child On " + ShortDate(DTPicker1.value()));
}

}  // namespace ovindra
