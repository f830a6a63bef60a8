#include "reports/child_lists.h"

#include "core/entry/lists.h"
#include "core/entry/places.h"
#include "core/entry/standard_dialogs.h"
#include "reports/listing.h"

namespace ovindra {
namespace {

constexpr std::string_view kVision = "V";
constexpr std::string_view kAnganwadi = "A";
constexpr std::string_view kHospital = "H";

constexpr int kHeadingRow = 5;
constexpr int kFirstRow = 6;
constexpr int kAgeColumn = 5;

void FillSchoolsByName(Connection& connection, ComboBox& schools) {
  FillList(connection, sql("select SC_Name from School_Master order by Sc_Name"), "SC_Name", schools);
}

}  // namespace

std::string ChildList::KnownLocation(const TextControl& type) {
  for (const std::string_view location : {kVision, kAnganwadi, kHospital}) {
    if (LocationCode(type) == location) return std::string(location);
  }
  return {};
}

std::string ChildList::CenterCode(const Kind& kind, std::string_view location, const TextControl& center) {
  if (location == kVision) return CodeOf(database(), lookup::kVisionCenter, center);
  if (location == kAnganwadi) return CodeOf(database(), kind.anganwadi, center);
  if (location == kHospital) return CodeOf(database(), lookup::kHospital, center);
  return {};
}

bool ChildList::ListChildren(const Kind& kind, const SqlText& statement) {
  Recordset children = database().Execute(statement);
  if (children.Eof()) {
    Tell(machine(), {std::string(kind.nobody), "OVD", MessageIcon::kCritical});
    return false;
  }
  Sheet cells = sheet();
  const int last_column = static_cast<int>(kind.headings.size());
  WriteHeadings(cells, kHeadingRow, kind.headings);
  cells.SelectCells(kHeadingRow, 1, kHeadingRow, last_column);
  cells.SetSelectionFont(HeaderStyle());
  const int last_row = WriteRecords(cells, kFirstRow, children, kind.fields);
  cells.FitColumns(kHeadingRow, 1, last_row, kind.fitted_columns);
  cells.SelectCells(kFirstRow, 1, last_row, last_column);
  cells.SetSelectionFont(BodyStyle());
  cells.SelectCells(kHeadingRow, 1, last_row, last_column);
  cells.SetSelectionBorder();
  cells.SelectCells(kHeadingRow, kAgeColumn, last_row, kAgeColumn);
  cells.SetSelectionAlignment(HorizontalAlign::kGeneral, Wrap::kOff);
  return true;
}

frmenrolllist::frmenrolllist(Module1& module_values)
    : ChildList(module_values, "frmenrolllist", "List of Enrolled Child", F1Book1) {
  UsePeriod(DTPicker1, DTPicker2);
  Guarded(load, &frmenrolllist::OnLoad);
  Plain(key_down, &frmenrolllist::PressKey);
  Plain(Combo1.click, &frmenrolllist::PickType);
  Plain(Combo1.validate, &frmenrolllist::LeaveType);
  Plain(Combo2.click, &frmenrolllist::PickCenter);
  Guarded(Command1.click, &frmenrolllist::Get);
  Plain(Command3.click, &frmenrolllist::Close);
  Guarded(Command4.click, &frmenrolllist::Export);
}

void frmenrolllist::OnLoad() {
  SetPeriodToToday();
  FillProgrammes(database(), Combo4);
  FillLocations(database(), Combo1);
  FillSchoolsByName(database(), Combo3);
}

void frmenrolllist::PressKey(KeyName key) {
  if (key == KeyName::kF8 && Command2.enabled()) Toggle({&Command4});
}

void frmenrolllist::PickType() {
  const std::string location = KnownLocation(Combo1);
  if (location == kVision) FillVisionCenters(database(), Combo2);
  if (location == kAnganwadi) FillCentersOfProgramme(database(), Combo4, Combo2, Combo3);
  if (location == kHospital) FillHospitals(database(), Combo2);
}

void frmenrolllist::LeaveType(bool& keep) {
  if (!Combo1.trimmed().empty()) return;
  Tell(machine(), {"Select Type !!!", "This Field Must be Necessary", MessageIcon::kCritical});
  keep = true;
}

void frmenrolllist::PickCenter() {
  FillSchoolsOfCenter(database(), Combo2, Combo3);
}

void frmenrolllist::Get() {
  static const Kind kEnrolled{lookup::kScreeningCenter,
                              {"Sr.", "Enroll No.", "Child Name", "F/M Name", "Age", "Gender", "Class"},
                              {"Enroll_No", "Child_Name", "FName", "age", "Gender", "Class"},
                              4,
                              " No Any Enrolled Child List"};
  ShowHourglass();
  printtitleinsheet();
  if (ListChildren(kEnrolled, EnrolledChildren(kEnrolled))) {
    sheet().SetColumnWidth(5, 1000);
    sheet().SetColumnWidth(6, 1600);
    sheet().SetColumnWidth(7, 1500);
  }
  ShowDefaultPointer();
}

SqlText frmenrolllist::EnrolledChildren(const Kind& kind) {
  const Period period = ReadPeriod();
  const std::string location = LocationCode(Combo1);
  const std::string center = CenterCode(kind, location, Combo2);
  const SqlText in_period =
      sql("Select Enroll_no,Child_Name,Fname,Age,Gender,Class from Enroll_Master where Enroll_no like ",
          quoted(location, "%"), " and Center_ID=", quoted(center), " and Enroll_Date between",
          quoted(period.from), " and ", quoted(period.to));
  if (!Combo3.trimmed().empty())
    return sql(in_period, " and School_ID=", quoted(CodeOf(database(), lookup::kSchoolInCapitals, Combo3)),
               "  order by Child_Name");
  if (location == kVision) return sql(in_period, " order by Child_Name");
  return sql(in_period, "  order by Child_Name");
}

void frmenrolllist::Export() {
  ExportSheet();
}

frmscreenedlist::frmscreenedlist(Module1& module_values)
    : ChildList(module_values, "frmscreenedlist", "Screened Child List", F1Book1) {
  UsePeriod(DTPicker1, DTPicker2);
  Guarded(load, &frmscreenedlist::OnLoad);
  Plain(key_down, &frmscreenedlist::PressKey);
  Plain(Combo1.click, &frmscreenedlist::PickType);
  Guarded(Command1.click, &frmscreenedlist::Get);
  Plain(Command3.click, &frmscreenedlist::Close);
  Guarded(Command4.click, &frmscreenedlist::Export);
}

void frmscreenedlist::OnLoad() {
  SetPeriodToToday();
  FillLocations(database(), Combo1);
  FillSchoolsByName(database(), Combo3);
}

void frmscreenedlist::PressKey(KeyName key) {
  if (key == KeyName::kF8 && Command2.enabled()) Toggle({&Command4});
}

void frmscreenedlist::PickType() {
  const std::string location = KnownLocation(Combo1);
  if (location == kVision) FillVisionCenters(database(), Combo2);
  if (location == kAnganwadi)
    FillList(database(), sql("Select AW_Name from Anganwadi_Center order by AW_Name"), "AW_Name", Combo2);
  if (location == kHospital) FillHospitals(database(), Combo2);
}

void frmscreenedlist::Get() {
  static const Kind kScreened{lookup::kAnganwadiCenter,
                              {"Sr.", "Enroll No.", "Child Name", "F/M Name", "Age", "Gender"},
                              {"Enroll_No", "Child_Name", "FName", "age", "Gender"},
                              6,
                              " No Any Screened Child List"};
  ShowHourglass();
  printtitleinsheet();
  ListChildren(kScreened, ScreenedChildren(kScreened));
  ShowDefaultPointer();
}

SqlText frmscreenedlist::ScreenedChildren(const Kind& kind) {
  const Period period = ReadPeriod();
  const std::string location = LocationCode(Combo1);
  const std::string center = CenterCode(kind, location, Combo2);
  const SqlText in_period =
      sql("Select Enroll_no,Child_Name,Fname,Age,Gender from Enroll_Master where Enroll_no like ",
          quoted(location, "%"), " and Center_ID=", quoted(center), " and Screened_Date between",
          quoted(period.from), " and ", quoted(period.to));
  const SqlText of_school =
      Combo3.trimmed().empty()
          ? in_period
          : sql(in_period, " and School_ID=", quoted(CodeOf(database(), lookup::kSchoolInCapitals, Combo3)));
  if (Option1.on()) return sql(of_school, " and Screened='Y'");
  if (Option2.on()) return sql(of_school, " and Screened='Y' and Condition='N'");
  if (Option3.on()) return sql(of_school, " and Screened='Y' and Condition='D'");
  return {};
}

void frmscreenedlist::Export() {
  ExportSheet();
}

}  // namespace ovindra
