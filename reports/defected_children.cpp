#include "reports/defected_children.h"

#include "core/entry/lists.h"
#include "core/entry/places.h"
#include "core/entry/standard_dialogs.h"
#include "reports/defected_compile.h"
#include "reports/programme_export.h"
#include "reports/spreadsheet_list.h"

namespace ovindra {
namespace {

constexpr std::string_view kCopyPath = "C:\\Defected.xls";
constexpr int kHeadingRow = 5;
constexpr int kFirstRow = 6;
constexpr int kTextColumnWidth = 6000;

/// Where a list's joined texts stand: columns of its grid.
struct JoinedColumns {
  int enroll_no;
  int diagnosis;
  int treatment;
};
constexpr JoinedColumns kOfReport{0, 6, 7};
constexpr JoinedColumns kOfProgramme{3, 9, 10};
constexpr int kUserOfProgramme = 14;
constexpr int kCategory = 6;

/// The written list: its diagnoses and treatments, which are long, in wide columns of wrapped text, all else
/// as wide as it needs to be.
void Format(Sheet& cells, int last_row, int diagnosis_column, int last_column) {
  cells.SelectCells(kFirstRow, 1, last_row, last_column);
  cells.SetSelectionFont(BodyStyle());
  cells.SelectCells(kHeadingRow, 1, kHeadingRow, last_column);
  cells.SetSelectionFont(HeaderStyle());
  const int treatment_column = diagnosis_column + 1;
  cells.FitColumns(kHeadingRow, 1, last_row, diagnosis_column - 1);
  cells.FitColumns(kHeadingRow, treatment_column + 1, last_row, last_column);
  cells.SelectCells(kHeadingRow, diagnosis_column, last_row, treatment_column);
  cells.SetSelectionAlignment(HorizontalAlign::kGeneral, Wrap::kOn);
  for (const int column : {diagnosis_column, treatment_column})
    cells.SetColumnWidth(column, kTextColumnWidth);
  cells.FitRows(kHeadingRow, diagnosis_column, last_row, treatment_column);
  cells.SelectCells(kHeadingRow, 1, last_row, last_column);
  cells.SetSelectionBorder();
}

}  // namespace

frmdefected::frmdefected(Module1& module_values)
    : ReportForm(module_values, "frmdefected", "List of Children Found with Eye Defects", F1Book1) {
  UsePeriod(DTPicker1, DTPicker2);
  Guarded(load, &frmdefected::OnLoad);
  Plain(key_down, &frmdefected::PressKey);
  Guarded(Command1.click, &frmdefected::Get);
  Guarded(Command2.click, &frmdefected::Print);
  Plain(Command3.click, &frmdefected::CloseReport);
  Guarded(Command4.click, &frmdefected::Export);
  Plain(Command5.click, &frmdefected::Show);
  Guarded(Command6.click, &frmdefected::CompileRpt);
  Plain(Command7.click, &frmdefected::GetProgramme);
}

void frmdefected::OnLoad() {
  SetPeriodToToday();
  FillLocations(database(), Combo1);
}

void frmdefected::PressKey(KeyName key) {
  if (key == KeyName::kF8 && Command2.enabled()) Toggle({&Command4, &Command5});
}

bool frmdefected::CheckCenterType() {
  return CheckSelections({{Combo1, {"Select Center Type !!!", "OVD", MessageIcon::kCritical}, Combo1}});
}

void frmdefected::Get() {
  if (!CheckCenterType()) return;
  ShowHourglass();
  printtitleinsheet();
  MSFlexGrid1.Empty();
  GetRpt();
  FinishReport();
}

void frmdefected::GetProgramme() {
  if (!CheckCenterType()) return;
  ShowHourglass();
  printtitleinsheet();
  MSFlexGrid4.Empty();
  WriteProgrammeList();
  FinishReport();
}

void frmdefected::FinishReport() {
  Command2.SetEnabled(true);
  sheet().NameSheet(std::string(Combo1.trimmed()) + " REPORT");
  ShowDefaultPointer();
}

Examiner frmdefected::ChosenExaminer() const {
  return Option1.on() ? Examiner::kAssistant : Examiner::kSurgeon;
}

void frmdefected::GetRpt() {
  const Period period = ReadPeriod();
  const std::string location = LocationCode(Combo1);
  FillGrid(database(), DefectedChildren(ChosenExaminer(), period, location),
           {"Enroll_No", "Child_Name", "FName", "age", "Gender", "Class"}, MSFlexGrid1);
  const GridIndex children(MSFlexGrid1, kOfReport.enroll_no);
  Recordset diagnoses = database().Execute(DiagnosesOfPeriod(ChosenExaminer(), period, location));
  JoinRecords(MSFlexGrid1, children, kOfReport.diagnosis, diagnoses, "Enroll_No", "Diagnosis_Name");
  Recordset treatments = database().Execute(TreatmentsOfPeriod(period, location));
  JoinTreatments(MSFlexGrid1, children, kOfReport.treatment, treatments);
  Sheet cells = sheet();
  WriteHeadings(cells, kHeadingRow,
                {"Sr.", "Child Name", "F/M Name", "Age", "Gender", "Class", "Diagnosis", "Treatment"});
  const int last_row = WriteGridRows(cells, kFirstRow, MSFlexGrid1, {1, 2, 3, 4, 5, 6, 7});
  Format(cells, last_row, 7, 8);
}

void frmdefected::WriteProgrammeList() {
  const std::string location = LocationCode(Combo1);
  FillGrid(database(), ProgrammeChildren(location),
           {"Enroll_Date", "Screened_Date", "Record_date", "Enroll_No", "Child_Name", "FName",
            "age",         "Gender",        "Class",       kEmptyCell,  kEmptyCell,   "Center_Name",
            "SC_Name",     "Block_Name",    "CodedBy",     "RE_Sph",    "RE_Cyl",     "RE_Axis",
            "RE_VA",       "LE_Sph",        "LE_Cyl",      "LE_Axis",   "LE_VA",      "Eye_Condition"},
           MSFlexGrid4);
  const GridIndex children(MSFlexGrid4, kOfProgramme.enroll_no);
  Recordset diagnoses = database().Execute(ProgrammeDiagnoses(location));
  JoinRecords(MSFlexGrid4, children, kOfProgramme.diagnosis, diagnoses, "Enroll_No", "Diagnosis_Name");
  Recordset treatments = database().Execute(ProgrammeTreatments(location));
  JoinTreatments(MSFlexGrid4, children, kOfProgramme.treatment, treatments);
  Recordset users = database().Execute(sql("Select * from User_Master order by User_Code"));
  NameUsers(MSFlexGrid4, kUserOfProgramme, users);
  Sheet cells = sheet();
  WriteHeadings(cells, kHeadingRow,
                {"Sr.",    "Enroll_Date", "Screened_Date", "Exam_Date", "Enroll_no", "Child Name", "F/M Name",
                 "Age",    "Gender",      "Class",         "Diagnosis", "Treatment", "Center",     "School",
                 "Block",  "User",        "RE_SPH",        "RE_CYL",    "RE_AXIS",   "RE_VA",      "LE_SPH",
                 "LE_CYL", "LE_AXIS",     "LE_VA",         "Eye"});
  const int last_row =
      WriteGridRows(cells, kFirstRow, MSFlexGrid4,
                    {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23});
  Format(cells, last_row, 11, 25);
}

void frmdefected::Show() {
  const Period period = ReadPeriod();
  const std::string location = LocationCode(Combo1);
  FillGrid(database(), ChildrenWithCategory(ChosenExaminer(), period, location),
           {"Enroll_No", "Child_Name", "FName", "age", "Gender", "Class"}, MSFlexGrid2);
  if (MSFlexGrid2.rows() == MSFlexGrid2.fixed_rows()) {
    TellNoDetails(machine());
    return;
  }
  Recordset categories = database().Execute(CategoriesOfChildren(ChosenExaminer(), period, location));
  const int doubles = JoinCategories(MSFlexGrid2, GridIndex(MSFlexGrid2, 0), kCategory, categories);
  if (Combo1.trimmed().empty()) return;
  ShowHourglass();
  machine().spreadsheet.StartSpreadsheet();
  has_spreadsheet_ = true;
  SpreadsheetList list;
  list.lines = {{3, "List of children found with eye defects From : " + ShortDate(DTPicker1.value()) +
                        " To :" + ShortDate(DTPicker2.value())}};
  list.heading_row = kHeadingRow;
  list.headings = {"Sr.", "Child Name(Enroll No.)", "F/M Name", "Age", "Gender", "Class", "Category"};
  for (int row = MSFlexGrid2.fixed_rows(); row < MSFlexGrid2.rows(); ++row) {
    const auto text = [&](int column) { return std::string(Trim(MSFlexGrid2.Cell(row, column))); };
    list.rows.push_back({text(1) + "(" + text(0) + ")", text(2), text(3), text(4), text(5), text(kCategory)});
  }
  list.closing_line = "Double-" + std::to_string(doubles);
  machine().spreadsheet.ShowWorkbook(MakeSpreadsheet(list));
  ShowDefaultPointer();
}

void frmdefected::CompileRpt() {
  ShowHourglass();
  CompileDefected(database(), MSFlexGrid3);
  Tell(machine(), {" OK", ""});
  ShowDefaultPointer();
}

void frmdefected::CloseReport() {
  if (Command5.visible()) {
    if (!has_spreadsheet_) throw ObjectNotSet();
    machine().spreadsheet.CloseWorkbooks();
    has_spreadsheet_ = false;
  }
  Close();
}

void frmdefected::Print() {
  PrintWithCopy(kCopyPath);
}

void frmdefected::Export() {
  ExportSheet();
}

}  // namespace ovindra
