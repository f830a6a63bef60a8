#include "reports/consolidation.h"

#include "base/text/utf8.h"
#include "core/entry/lists.h"
#include "core/entry/lookups.h"
#include "core/entry/places.h"
#include "core/entry/standard_dialogs.h"
#include "reports/consolidation_report.h"
#include "reports/programme_export.h"
#include "reports/spreadsheet_list.h"

namespace ovindra {
namespace {

constexpr std::string_view kAnganwadi = "A";
constexpr std::string_view kVision = "V";
constexpr std::string_view kHospital = "H";
constexpr std::string_view kSheetName = "Child Screening Report";

}  // namespace

frmconsolidation::frmconsolidation(Module1& module_values)
    : ReportForm(module_values, "frmconsolidation", "School Eye Screnning Program Consolidation Report",
                 F1Book1) {
  UsePeriod(DTPicker1, DTPicker2);
  Guarded(load, &frmconsolidation::OnLoad);
  Plain(key_down, &frmconsolidation::PressKey);
  Guarded(Command1.click, &frmconsolidation::Get);
  Guarded(Command2.click, &frmconsolidation::Print);
  Plain(Command3.click, &frmconsolidation::Close);
  Guarded(Command4.click, &frmconsolidation::Export);
  Guarded(Command5.click, &frmconsolidation::ReferList);
  Guarded(Command6.click, &frmconsolidation::SankulWise);
  Plain(Command7.click, &frmconsolidation::BlockWise);
  Guarded(Command8.click, &frmconsolidation::DirectByOA);
  Plain(Command9.click, &frmconsolidation::ProgrammeWise);
  Plain(Check1.click, &frmconsolidation::ShowProgrammeExport);
}

void frmconsolidation::OnLoad() {
  SetPeriodToToday();
  FillProgrammes(database(), Combo4);
  FillLocations(database(), Combo1);
  FillListWithData(database(), sql("Select * from Sankul_Master order by Sankul_Name"), "Sankul_Name",
                   "Sankul_ID", Combo2);
  FillBlocks(database(), Combo3);
}

void frmconsolidation::PressKey(KeyName key) {
  if (!Command2.enabled()) return;
  if (key == KeyName::kF8) Toggle({&Command4, &Label5, &Combo2, &Command5, &Command6});
  if (key == KeyName::kF9) Toggle({&Command4, &Label6, &Combo3, &Command5, &Command7});
}

void frmconsolidation::Get() {
  if (!CheckType()) return;
  BuildReport({{kAnganwadi, &AnganwadiReport}, {kVision, &VisionReport}, {kHospital, &SchoolReport}});
  Command2.SetEnabled(true);
  sheet().NameSheet(kSheetName);
  ShowDefaultPointer();
}

void frmconsolidation::SankulWise() {
  BuildReport({{kVision, &VisionSankulReport}, {kHospital, &SchoolSankulReport}});
  sheet().NameSheet(LowerCaseLatin(Combo2.trimmed()));
  ShowDefaultPointer();
}

void frmconsolidation::BlockWise() {
  // For vision centers this button tells of a sankul.
  const std::string location = BuildReport({{kVision, &VisionSankulReport}, {kHospital, &SchoolBlockReport}});
  if (location == kHospital) Command2.SetEnabled(true);
  sheet().NameSheet(LowerCaseLatin(Combo3.trimmed()));
  ShowDefaultPointer();
}

void frmconsolidation::DirectByOA() {
  const std::string location = BuildReport({{kHospital, &DirectByOAReport}});
  if (location == kHospital) Command2.SetEnabled(true);
  sheet().NameSheet(LowerCaseLatin(Combo3.trimmed()));
  ShowDefaultPointer();
}

void frmconsolidation::ProgrammeWise() {
  if (!CheckType()) return;
  BuildReport({{kAnganwadi, &ProgrammeReport}});
  Command2.SetEnabled(true);
  sheet().NameSheet(kSheetName);
  ShowDefaultPointer();
}

std::string frmconsolidation::BuildReport(std::initializer_list<TableOfLocation> tables) {
  ShowHourglass();
  printtitleinsheet();
  std::string location = LocationCode(Combo1);
  for (const TableOfLocation& row : tables) {
    if (row.location != location) continue;
    ConsolidationReport::WriteHeadings(sheet());
    const Coverage coverage{ReadPeriod(), location, row.table->scope, ScopeValue(row.table->scope)};
    ConsolidationReport(sheet(), database(), *row.table, coverage).Build();
  }
  return location;
}

bool frmconsolidation::CheckType() {
  return CheckSelections({{Combo1, {"Select Screenig By First", "OVD", MessageIcon::kQuestion}, Combo1}});
}

std::string frmconsolidation::SankulCode() {
  if (Combo2.trimmed().empty()) return {};
  return std::to_string(Combo2.items().At(Combo2.list_index()).data);
}

std::string frmconsolidation::GetBlockCode() {
  return CodeOf(database(), lookup::kBlockByPrefix, Combo3);
}

std::string frmconsolidation::ScopeValue(Scope scope) {
  switch (scope) {
    case Scope::kSankul:
      return SankulCode();
    case Scope::kBlock:
      return GetBlockCode();
    case Scope::kProgramme:
      return CodeOf(database(), lookup::kProgramme, Combo4);
    case Scope::kAll:
      break;
  }
  return {};
}

void frmconsolidation::ShowProgrammeExport() {
  if (Check1.on()) {
    ShowHourglass();
    printtitleinsheet();
    ExportProgramme(machine(), database(), ReadPeriod(), sheet());
  } else {
    sheet().ClearCells(1, 1, 10000, 100);
  }
  ShowDefaultPointer();
}

SqlText frmconsolidation::ReferredChildren(const std::string& location) {
  const Period period = ReadPeriod();
  const SqlText in_period = sql("AND C.ENROLL_DATE BETWEEN ", quoted(period.from, " "), "AND ",
                                quoted(period.to), " order by d.Sc_Name");
  if (location == kVision) {
    return sql(
        "select c.Child_Name+'('+a.Enroll_No+')' as Name,c.Fname,c.Age,c.Gender,c.Class,d.Sc_Name "
        " from Child_Record a,Child_Treatment b,Enroll_Master c,School_Master d,Screened_School e "
        " Where a.Child_RecordNo = B.Child_RecordNo And B.Treatment_Code = 4 "
        " and a.Enroll_No=c.Enroll_No and c.school_id=d.sc_id and d.Sc_ID=e.School_ID and e.Sankul_ID=",
        bare(SankulCode()), " ", in_period);
  }
  if (location == kHospital) {
    return sql(
        "select c.Child_Name+'('+a.Enroll_No+')' as Name,c.Fname,c.Age,c.Gender,c.Class,d.Sc_Name "
        " from Child_RecordOS a,Child_TreatmentOS b,Enroll_Master c,School_Master d,Screened_School e "
        " Where a.Child_RecordNo = b.Child_RecordNo And Treatment_Code = 4 "
        " and a.Enroll_No=c.Enroll_No and a.School_ID=d.Sc_ID and d.Sc_ID=e.School_ID and e.Sankul_ID=",
        bare(SankulCode()), in_period);
  }
  return {};
}

void frmconsolidation::ReferList() {
  const std::string location = LocationCode(Combo1);
  const SqlText statement = ReferredChildren(location);
  if (Combo2.trimmed().empty()) {
    Tell(machine(), {"Please select a code\nand then proceed", "Error !!!", MessageIcon::kInformation});
    ShowDefaultPointer();
    Combo2.SetFocus();
    return;
  }
  ShowHourglass();
  Recordset children = database().Execute(statement);
  if (children.Eof()) {
    TellNoDetails(machine());
  } else {
    machine().spreadsheet.StartSpreadsheet();
    const bool through_vision_center = location == kVision;
    SpreadsheetList list;
    list.lines = {{3, (through_vision_center ? "List of Children Refer To LEI Through Vision Center From : "
                                             : "List of Children Refer To LEI From : ") +
                          ShortDate(DTPicker1.value()) + " To " + ShortDate(DTPicker2.value())},
                  {5, (through_vision_center ? "Center Name:-" : "Sankul Name:-") + Combo2.text()}};
    list.heading_row = 7;
    list.headings = {"Sr.", "Child Name", "F/M Name", "Age", "Gender", "Class", "School Name"};
    for (; !children.Eof(); children.MoveNext()) {
      std::vector<std::string>& cells = list.rows.emplace_back();
      for (const char* field : {"Name", "Fname", "Age", "Gender", "Class", "Sc_Name"})
        cells.push_back(Trim(children[field]));
    }
    machine().spreadsheet.ShowWorkbook(MakeSpreadsheet(list));
  }
  ShowDefaultPointer();
}

void frmconsolidation::Print() {
  PrintSheet(
      {.without_headings = true, .without_any_margin = true, .centred = true, .footer = "&C & Page &P"});
}

void frmconsolidation::Export() {
  ExportSheet();
}

}  // namespace ovindra
