#include "reports/referred_children.h"

#include <span>

#include "core/entry/lists.h"
#include "core/entry/lookups.h"
#include "reports/listing.h"

namespace ovindra {
namespace {

constexpr std::string_view kSpectacles = "2";
constexpr std::string_view kReferral = "REFER TO OS CAMP";
constexpr int kHeadingRow = 5;

constexpr Lookup kTreatment{"Select Treatment_Code from Treatment_Master where Description=", Match::kExact,
                            "Treatment_Code"};

/// One of the lists: the columns of its work grid as fields of its statement, and the headings above them on
/// the sheet, where the enroll number stands behind the child's name.
struct ReferralList {
  std::initializer_list<std::string_view> fields;
  std::initializer_list<std::string_view> headings;
  int diagnosis_column;
};

const ReferralList kSpectacleList{
    {"Enroll_No", "Child_Name", "FName", "age", "Gender", "Class", "remark", kEmptyCell},
    {"Sr.", "Child Name", "F/M Name", "Age", "Gender", "Class", "Remark", "Diagnosis"},
    7};
const ReferralList kBlockList{
    {"Enroll_No", "Child_Name", "FName", "age", "Gender", "Class", kEmptyCell, "Sankul_Name", "Sc_Name"},
    {"Sr.", "Child Name", "F/M Name", "Age", "Gender", "Class", "Diagnosis", "Sankul Name", "School Name"},
    6};
const ReferralList kStateList{
    {"Enroll_No", "Child_Name", "FName", "age", "Gender", "Class", kEmptyCell, kEmptyCell, kEmptyCell},
    {"Sr.", "Child Name", "F/M Name", "Age", "Gender", "Class", "Diagnosis"},
    6};

/// The statement of a treatment other than spectacles.
struct PlainStatement {
  Area area;
  Camp camp;
  Fragment beginning;
  Fragment joins;
};

/// In a block the list of the OS camp selects no school though its grid holds one: reading it fails, as the
/// camp is offered there for spectacles alone.
constexpr PlainStatement kPlainStatements[] = {
    {Area::kBlock, Camp::kAssistant,
     "Select Distinct a.Enroll_no,Child_Name,Fname,Age,Gender,Class ,f.Sankul_Name ,d.Sc_Name from "
     "Enroll_Master a,Child_Record b,Child_Treatment c,School_Master d,Screened_School e,sankul_master f",
     "and a.School_ID=d.Sc_ID and d.Sc_ID=e.School_ID and e.sankul_ID=f.sankul_ID and "
     "b.Child_RecordNo=c.Child_RecordNo and c.Treatment_Code="},
    {Area::kState, Camp::kAssistant,
     "Select Distinct a.Enroll_no,Child_Name,Fname,Age,Gender,Class from Enroll_Master a,Child_Record "
     "b,Child_Treatment c",
     " and b.Child_RecordNo=c.Child_RecordNo and c.Treatment_Code="},
    {Area::kBlock, Camp::kSurgeon,
     "Select Distinct a.Enroll_no,Child_Name,Fname,Age,Gender,Class from Enroll_Master a,Child_RecordOS "
     "b,Child_TreatmentOS c",
     "and b.Child_RecordNo=c.Child_RecordNo and c.Treatment_Code="},
    {Area::kState, Camp::kSurgeon,
     "Select Distinct a.Enroll_no,Child_Name,Fname,Age,Gender,Class from Enroll_Master a,Child_RecordOS "
     "b,Child_TreatmentOS c",
     "and b.Child_RecordNo=c.Child_RecordNo and c.Treatment_Code="},
};

Fragment OrderOf(Area area) {
  return area == Area::kBlock ? Fragment(" Order By Child_Name") : Fragment(" order by Child_Name");
}

SqlText ChildrenTreated(const CampCoverage& coverage, const std::string& treatment) {
  if (treatment == kSpectacles) {
    return sql(
        SpectacleColumns("Select Distinct a.Enroll_no,Child_Name,Fname,Age,Gender,Class", coverage.camp),
        RecordsOf(coverage, BlockSpelling::kSmall),
        " and b.Child_RecordNo=c.Child_RecordNo and c.Treatment_Code=", bare(treatment),
        OrderOf(coverage.area));
  }
  for (const PlainStatement& row : kPlainStatements) {
    if (row.area != coverage.area || row.camp != coverage.camp) continue;
    return sql(row.beginning, RecordsOf(coverage, BlockSpelling::kCapital), row.joins, bare(treatment),
               OrderOf(coverage.area));
  }
  return {};
}

SqlText DiagnosesOf(const CampCoverage& coverage) {
  return sql("Select  b.Enroll_no,c.diagnosis_name from ",
             coverage.camp == Camp::kAssistant
                 ? Fragment("child_diagnosis a,Child_Record b,diagnosis_master c")
                 : Fragment("child_diagnosisOS a,Child_RecordOS b,diagnosis_master c"),
             " where b.Record_date between ", quoted(coverage.period.from), "and", quoted(coverage.period.to),
             " and b.Enroll_no like ", quoted(coverage.location, "%"),
             "and b.Child_RecordNo=a.Child_RecordNo and a.Diagnosis_Code = c.Diagnosis_Code");
}

const ReferralList& ListOf(bool of_spectacles, Area area) {
  if (of_spectacles) return kSpectacleList;
  return area == Area::kBlock ? kBlockList : kStateList;
}

/// The rows of the grid with the enroll number moved behind the child's name.
int WriteRows(Sheet& sheet, const Grid& grid) {
  int row = kHeadingRow;
  for (int grid_row = grid.fixed_rows(); grid_row < grid.rows(); ++grid_row) {
    ++row;
    sheet.SetCellText(row, 1, row - kHeadingRow);
    sheet.SetCellText(row, 2, grid.Cell(grid_row, 1) + "(" + grid.Cell(grid_row, 0) + ")");
    for (int column = 2; column < grid.columns(); ++column)
      sheet.SetCellText(row, column + 1, Trim(grid.Cell(grid_row, column)));
  }
  return row;
}

}  // namespace

frmreferallist::frmreferallist(Module1& module_values)
    : CampReportForm(module_values, "frmreferallist", "List of Referal Child", F1Book1,
                     {"OA Camp", "OS Camp"}) {
  MSFlexGrid1.SetVisible(false);
  MSFlexGrid2.SetVisible(false);
  Guarded(load, &frmreferallist::OnLoad);
  Plain(key_down, &frmreferallist::PressKey);
  Plain(Command1.click, &frmreferallist::Get);
  Guarded(Command2.click, &frmreferallist::Print);
  Plain(Command3.click, &frmreferallist::Close);
  Guarded(Command4.click, &frmreferallist::Export);
}

void frmreferallist::OnLoad() {
  OpenSelections();
  FillList(database(), sql("Select Description from Treatment_Master order by Description"), "Description",
           Combo3);
  ChooseReferral();
}

void frmreferallist::ChooseReferral() {
  for (int index = 0; index < Combo3.items().count(); ++index) {
    if (!Combo3.items().At(index).text.starts_with(kReferral)) continue;
    Combo3.SetListIndex(index);
    return;
  }
}

void frmreferallist::PressKey(KeyName key) {
  if (key == KeyName::kF8 && Command2.enabled()) Toggle({&Command4, &Combo3});
}

void frmreferallist::Get() {
  BuildReport(Combo3.text(), Command2);
}

void frmreferallist::BuildList() {
  const std::string treatment = CodeOf(database(), kTreatment, Combo3);
  const CampCoverage coverage = ReadCoverage();
  Recordset children = database().Execute(ChildrenTreated(coverage, treatment));
  if (children.Eof()) {
    TellNoChildren();
    return;
  }
  const bool of_spectacles = treatment == kSpectacles;
  const ReferralList& list = ListOf(of_spectacles, coverage.area);
  Grid& grid = of_spectacles ? MSFlexGrid2 : MSFlexGrid1;
  FillGrid(children, {list.fields.begin(), list.fields.size()}, grid);
  JoinDiagnoses(coverage, grid, list.diagnosis_column);
  Sheet report = sheet();
  WriteHeadings(report, kHeadingRow, list.headings);
  const int last = WriteRows(report, grid);
  StyleList(report, kHeadingRow, last, static_cast<int>(list.headings.size()));
}

void frmreferallist::JoinDiagnoses(const CampCoverage& coverage, Grid& grid, int column) {
  Recordset diagnoses = database().Execute(DiagnosesOf(coverage));
  JoinRecords(grid, GridIndex(grid, 0), column, diagnoses, "Enroll_no", "Diagnosis_Name");
}

void frmreferallist::Print() {
  PrintWithCopy("C:\\Child.xls");
}

void frmreferallist::Export() {
  ExportSheet();
}

}  // namespace ovindra
