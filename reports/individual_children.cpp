#include "reports/individual_children.h"

#include <algorithm>

#include "core/entry/lookups.h"
#include "core/entry/places.h"

namespace ovindra {
namespace {

constexpr const char* kAnimationFile = "\\FINDFILE.avi";

constexpr int kHeadingRow = 5;
constexpr int kFirstRow = 6;
constexpr int kEnrollNo = 2;
constexpr int kScreening = 9;
constexpr int kExamination = 10;
constexpr int kFirstEye = 11;
constexpr int kLastEye = 18;
constexpr int kDiagnosis = 19;
constexpr int kTreatment = 20;
constexpr int kTurnUp = 21;
constexpr int kHospitalDiagnosis = 22;
constexpr int kLastColumn = kHospitalDiagnosis;

/// Behind a comma where something stands already.
void JoinIntoCell(Sheet& cells, int row, int column, std::string_view text) {
  std::string joined(cells.GetCellText(row, column));
  if (!joined.empty()) joined += ",";
  cells.SetCellText(row, column, joined += text);
}

}  // namespace

Form3::Form3(Module1& module_values) : ReportForm(module_values, "Form3", "Form3", F1Book1) {
  UsePeriod(DTPicker1, DTPicker2);
  Guarded(load, &Form3::OnLoad);
  Guarded(Command1.click, &Form3::Get);
  Plain(Command3.click, &Form3::Close);
}

void Form3::OnLoad() {
  SetPeriodToToday();
  FillBlocks(database(), Combo1);
}

void Form3::Get() {
  ShowHourglass();
  ShowProgress();
  printtitleinsheet();
  BuildReport();
  ShowDefaultPointer();
  HideProgress();
}

void Form3::ShowProgress() {
  Animation1.Open(kAnimationFile);
  Animation1.SetVisible(true);
  Label7.SetVisible(true);
  Animation1.Play();
}

void Form3::HideProgress() {
  Animation1.Stop();
  Animation1.SetVisible(false);
  Label7.SetVisible(false);
}

void Form3::BuildReport() {
  const Period period = ReadPeriod();
  const std::string block = CodeOf(database(), lookup::kBlockExactlySpaced, Combo1);
  const SqlText of_block = sql(" where  Enroll_Date between ", quoted(period.from), " and ",
                               quoted(period.to), " and a.Block_Code=", bare(block));
  const int last_row = ListChildren(of_block);
  const SheetIndex rows(sheet(), kFirstRow, last_row, kEnrollNo);
  WriteExaminations(rows, of_block);
  MarkAbsent(last_row);
  JoinInto(kDiagnosis, rows,
           sql("select a.Enroll_no,d.Diagnosis_Name from Enroll_Master a,Child_Record b,Child_Diagnosis c,"
               "Diagnosis_Master d",
               of_block,
               " and a.Enroll_no=b.Enroll_no and b.child_recordno=c.child_recordno and "
               "c.Diagnosis_Code=d.Diagnosis_Code order by a.Enroll_no"),
           "Diagnosis_Name");
  JoinInto(kTreatment, rows,
           sql("select a.Enroll_no,d.Description from Enroll_Master a,Child_Record b,Child_Treatment c,"
               "Treatment_Master d",
               of_block,
               " and a.Enroll_no=b.Enroll_no and b.child_recordno=c.child_recordno and "
               "c.Treatment_Code=d.Treatment_Code order by a.Enroll_no"),
           "Description");
  AskHospital(last_row);
  Sheet cells = sheet();
  WriteHeadings(cells, kHeadingRow,
                {"Sr.",     "Enroll No",    "Child Name",   "F/M Name",     "Age",     "Gender",
                 "Class",   "School",       "Screening_TT", "Screening_OA", "RE_Sph",  "RE_Cyl",
                 "RE_Axis", "RE_VA",        "LE_Sph",       "LE_Cyl",       "LE_Axis", "LE_VA",
                 "Diag_OA", "Treatment_OA", "Turnup",       "Diag_Hospital"});
  Format(last_row);
}

int Form3::ListChildren(const SqlText& of_block) {
  Recordset children = database().Execute(
      sql("Select Enroll_no,Child_Name,fname,Age,Gender,Class,b.SC_Name,Condition,Mr_No from Enroll_Master "
          "a,School_Master b",
          of_block, " and a.School_ID=b.SC_ID order by Enroll_no"));
  Sheet cells = sheet();
  int row = kFirstRow - 1;
  for (; !children.Eof(); children.MoveNext()) {
    ++row;
    int column = 1;
    cells.SetCellText(row, column, row - kFirstRow + 1);
    for (const char* field : {"Enroll_No", "Child_Name", "FName", "age", "Gender", "Class", "Sc_Name"})
      cells.SetCellText(row, ++column, Trim(children[field]));
    if (Trim(children["Condition"]) == "D") cells.SetCellText(row, kScreening, "Defected");
    if (!children["Mr_No"].IsNull()) cells.SetCellText(row, kTurnUp, Trim(children["Mr_No"]));
  }
  return row;
}

void Form3::WriteExaminations(const SheetIndex& rows, const SqlText& of_block) {
  Recordset examinations = database().Execute(
      sql("Select a.Enroll_No,b.Eye_Condition,RE_Sph,RE_Cyl,RE_Axis,RE_VA,LE_Sph,LE_Cyl,LE_Axis,LE_VA from "
          "Enroll_Master a,Child_Record b",
          of_block, " and a.Enroll_no= b.Enroll_no order by a.Enroll_no"));
  Sheet cells = sheet();
  // Both results come in the order of the enroll numbers: the row only moves down.
  int row = kFirstRow;
  for (; !examinations.Eof(); examinations.MoveNext()) {
    const auto of_child = rows.RowsOf(Trim(examinations["Enroll_No"]));
    const auto next = std::lower_bound(of_child.begin(), of_child.end(), row);
    if (next == of_child.end()) continue;
    row = *next;
    const bool is_defected = Trim(examinations["Eye_Condition"]) == "D";
    cells.SetCellText(row, kExamination, is_defected ? "Defected" : "Normal");
    int column = kFirstEye;
    for (const char* field : {"RE_Sph", "RE_Cyl", "RE_Axis", "RE_VA", "LE_Sph", "LE_Cyl", "LE_Axis", "LE_VA"})
      cells.SetCellText(row, column++, Trim(examinations[field]));
  }
}

void Form3::MarkAbsent(int last_row) {
  Sheet cells = sheet();
  for (int row = kFirstRow; row <= last_row; ++row) {
    if (cells.GetCellText(row, kExamination).empty()) cells.SetCellText(row, kExamination, "Absent");
  }
}

void Form3::JoinInto(int column, const SheetIndex& rows, const SqlText& statement, std::string_view field) {
  Recordset records = database().Execute(statement);
  Sheet cells = sheet();
  for (; !records.Eof(); records.MoveNext()) {
    const std::string text = Trim(records[field]);
    for (const int row : rows.RowsOf(Trim(records["Enroll_No"]))) JoinIntoCell(cells, row, column, text);
  }
}

void Form3::AskHospital(int last_row) {
  Sheet cells = sheet();
  for (int row = kFirstRow; row <= last_row; ++row) {
    const std::string_view number = cells.GetCellText(row, kTurnUp);
    if (number.empty()) continue;
    Recordset diagnoses = hospital().Execute(sql(
        "select distinct i.icd_description from medical_record_dtl m,icd_code_master i Where m.icd_code = "
        "I.icd_code and m.mr_no=",
        quoted(number)));
    for (; !diagnoses.Eof(); diagnoses.MoveNext())
      JoinIntoCell(cells, row, kHospitalDiagnosis, Trim(diagnoses["icd_description"]));
  }
}

void Form3::Format(int last_row) {
  Sheet cells = sheet();
  cells.SelectCells(kHeadingRow, 1, kHeadingRow, kLastColumn);
  cells.SetSelectionFont(HeaderStyle());
  cells.SelectCells(kFirstRow, 1, last_row, kLastColumn);
  cells.SetSelectionFont(BodyStyle());
  cells.SelectCells(kHeadingRow, 1, last_row, kLastColumn);
  cells.SetSelectionBorder();
  cells.FitColumns(kHeadingRow, 1, last_row, kLastColumn);
  cells.SetColumnWidth(1, 1500);
  cells.SetColumnWidth(5, 1000);
  for (int column = kFirstEye; column <= kLastEye; ++column) cells.SetColumnWidth(column, 1800);
}

}  // namespace ovindra
