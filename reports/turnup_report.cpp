#include "reports/turnup_report.h"

#include "core/entry/lists.h"
#include "core/entry/lookups.h"
#include "core/entry/places.h"
#include "reports/listing.h"

namespace ovindra {
namespace {

constexpr int kHeadingRow = 5;
constexpr int kColumns = 11;

/// Columns of the grid.
enum : int {
  kEnrollNo,
  kChildName,
  kFatherName,
  kAge,
  kGender,
  kClass,
  kDiagnosis,
  kSchool,
  kSankul,
  kMrNo,
  kHospitalDiagnosis,
};

struct TurnupCoverage {
  Period period;
  std::string location;
  std::string block;
};

/// The referred children of the period who came; the period is that of their enrollment.
SqlText WhoCame(const TurnupCoverage& coverage) {
  return sql(" where a.Enroll_Date between ", quoted(coverage.period.from), " and ",
             quoted(coverage.period.to), " and a.Enroll_No like ", quoted(coverage.location, "%"),
             " and a.Enroll_No=b.Enroll_No and b.Child_RecordNo=c.Child_RecordNo and Attend='Y' and "
             "c.Treatment_Code=4 and a.Block_Code=",
             bare(coverage.block));
}

SqlText Children(const TurnupCoverage& coverage) {
  return sql(
      "Select distinct "
      "a.enroll_no,a.child_name,a.fname,a.age,a.gender,a.class,d.Sc_Name,f.sankul_Name,a.mr_no from "
      "Enroll_Master a,Child_Record b, Child_Treatment c,school_master d,screened_school e,sankul_master f",
      WhoCame(coverage),
      " and a.school_ID=d.SC_ID and a.school_ID=e.school_ID and e.sankul_ID=f.Sankul_ID order by "
      "a.enroll_no");
}

SqlText Diagnoses(const TurnupCoverage& coverage) {
  return sql(
      "Select a.enroll_no,e.diagnosis_name from Enroll_Master a,Child_Record b, Child_Treatment "
      "c,child_diagnosis d,diagnosis_master e",
      WhoCame(coverage),
      " and b.child_recordno=d.child_recordno and d.diagnosis_code=e.diagnosis_code order by a.enroll_no");
}

SqlText HospitalDiagnoses(const std::string& mr_no) {
  return sql(
      "select distinct i.icd_description from medical_record_dtl m,icd_code_master i Where m.icd_code = "
      "I.icd_code and m.mr_no=",
      quoted(mr_no));
}

}  // namespace

frmturnup::frmturnup(Module1& module_values)
    : ReportForm(module_values, "frmturnup", "Turnup Child List", F1Book1) {
  UsePeriod(DTPicker1, DTPicker2);
  Guarded(load, &frmturnup::OnLoad);
  Plain(key_down, &frmturnup::PressKey);
  Plain(Command1.click, &frmturnup::Get);
  Guarded(Command2.click, &frmturnup::Print);
  Plain(Command3.click, &frmturnup::Close);
  Guarded(Command4.click, &frmturnup::Export);
}

void frmturnup::OnLoad() {
  SetPeriodToToday();
  FillLocations(database(), Combo1);
  FillBlocks(database(), Combo2);
}

void frmturnup::PressKey(KeyName key) {
  if (key == KeyName::kF8 && Command2.enabled()) Toggle({&Command4});
}

void frmturnup::Get() {
  // The focus goes to the type also where the block is missing.
  if (!CheckSelections({{Combo1, {"Select  Type !!!", "OVD", MessageIcon::kCritical}, Combo1},
                        {Combo2, {"Select Block !!!", "OVD", MessageIcon::kCritical}, Combo1}}))
    return;
  ShowHourglass();
  printtitleinsheet();
  MSFlexGrid1.SetRows(MSFlexGrid1.fixed_rows());
  GetRpt();
  Command2.SetEnabled(true);
  sheet().NameSheet(std::string(Combo2.trimmed()) + " REPORT");
  ShowDefaultPointer();
}

std::string frmturnup::GetBlockCode() {
  return CodeOf(database(), lookup::kBlockExactlySpaced, Combo2);
}

void frmturnup::GetRpt() {
  const Period period = ReadPeriod();
  const std::string location = LocationCode(Combo1);
  const TurnupCoverage coverage{period, location, GetBlockCode()};
  FillGrid(database(), Children(coverage),
           {"Enroll_No", "Child_Name", "FName", "age", "Gender", "Class", kEmptyCell, "Sc_Name",
            "Sankul_Name", "Mr_No", kEmptyCell},
           MSFlexGrid1);
  Recordset diagnoses = database().Execute(Diagnoses(coverage));
  JoinRecords(MSFlexGrid1, GridIndex(MSFlexGrid1, kEnrollNo), kDiagnosis, diagnoses, "Enroll_No",
              "Diagnosis_Name");
  JoinHospitalDiagnoses();
  Sheet report = sheet();
  WriteHeadings(report, kHeadingRow,
                {"Sr.", "Mr_No", "Child Name", "F/M Name", "Age", "Gender", "Class", "School", "Sankul",
                 "Diagnosis", "H. Diagnosis"});
  const int last = WriteGridRows(report, kHeadingRow + 1, MSFlexGrid1,
                                 {kMrNo, kChildName, kFatherName, kAge, kGender, kClass, kSchool, kSankul,
                                  kDiagnosis, kHospitalDiagnosis});
  StyleList(report, kHeadingRow, last, kColumns);
}

void frmturnup::JoinHospitalDiagnoses() {
  const GridIndex rows_of_patient(MSFlexGrid1, kMrNo);
  for (int row = MSFlexGrid1.fixed_rows(); row < MSFlexGrid1.rows(); ++row) {
    const std::string mr_no(Trim(MSFlexGrid1.Cell(row, kMrNo)));
    // Asked for each row, so children of one number each get its diagnoses as often as there are such rows.
    Recordset records = hospital().Execute(HospitalDiagnoses(mr_no));
    for (; !records.Eof(); records.MoveNext()) {
      const std::string description = Trim(records["icd_description"]);
      for (const int patient : rows_of_patient.RowsOf(mr_no))
        JoinText(MSFlexGrid1, patient, kHospitalDiagnosis, description);
    }
  }
}

void frmturnup::Print() {
  PrintSheet({});
}

void frmturnup::Export() {
  ExportSheet();
}

}  // namespace ovindra
