#include "reports/spectacle_report.h"

#include "core/text/text.h"
#include "reports/listing.h"

namespace ovindra {
namespace {

constexpr int kHeadingRow = 5;
constexpr int kColumns = 7;

SqlText Prescribed(const CampCoverage& coverage) {
  return sql(RecordsOf(coverage, BlockSpelling::kSmall),
             " and b.Child_RecordNo=c.Child_RecordNo and c.Treatment_Code=2");
}

/// Counts treatments, where the list shows different children.
SqlText TreatmentsBySex(const CampCoverage& coverage) {
  return sql(
      coverage.camp == Camp::kAssistant
          ? Fragment("Select gender,count(*) as tot  from Enroll_Master a,Child_Record b,Child_Treatment c")
          : Fragment(
                "Select gender,count(*) as tot from Enroll_Master a,Child_RecordOS b,Child_TreatmentOS c"),
      Prescribed(coverage), " group by Gender");
}

}  // namespace

frmspectacle::frmspectacle(Module1& module_values)
    : CampReportForm(module_values, "frmspectacle", "List of Children Prescribed Spectacles", F1Book1,
                     {"OA", "OS"}) {
  Guarded(load, &frmspectacle::OnLoad);
  Plain(key_down, &frmspectacle::PressKey);
  Plain(Command1.click, &frmspectacle::Get);
  Guarded(Command2.click, &frmspectacle::Print);
  Plain(Command3.click, &frmspectacle::Close);
  Guarded(Command4.click, &frmspectacle::Export);
  Plain(Command5.click, &frmspectacle::CountBySex);
  Plain(sexes_.Command6.click, &frmspectacle::HideCount);
}

void frmspectacle::PressKey(KeyName key) {
  if (key == KeyName::kF8 && Command2.enabled()) Toggle({&Command4});
}

void frmspectacle::Get() {
  BuildReport({}, Command2);
}

void frmspectacle::BuildList() {
  const CampCoverage coverage = ReadCoverage();
  Recordset children = database().Execute(
      sql(SpectacleColumns("Select Distinct Child_Name,Fname,Age,Gender,Class", coverage.camp),
          Prescribed(coverage)));
  if (children.Eof()) {
    TellNoChildren();
    return;
  }
  Sheet report = sheet();
  const int last = WriteRecords(report, kHeadingRow + 1, children,
                                {"Child_Name", "FName", "age", "Gender", "Class", "remark"});
  WriteHeadings(report, kHeadingRow, {"Sr.", "Child Name", "F/M Name", "Age", "Gender", "Class", "Remark"});
  StyleList(report, kHeadingRow, last, kColumns);
}

void frmspectacle::CountBySex() {
  Recordset counts = database().Execute(TreatmentsBySex(ReadCoverage()));
  for (; !counts.Eof(); counts.MoveNext()) {
    const std::string gender = Trim(counts["Gender"]);
    if (gender == "F") sexes_.Text2.SetText(Trim(counts["tot"]));
    if (gender == "M") sexes_.Text1.SetText(Trim(counts["tot"]));
  }
  sexes_.Text3.SetText(NumberText(Val(sexes_.Text1.text()) + Val(sexes_.Text2.text())));
  sexes_.Frame3.SetVisible(true);
}

void frmspectacle::Print() {
  PrintWithCopy("C:\\Child.xls");
}

void frmspectacle::Export() {
  ExportSheet();
}

}  // namespace ovindra
