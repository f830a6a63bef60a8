#include "reports/enroll_report.h"

#include "core/entry/places.h"
#include "core/text/text.h"
#include "reports/listing.h"

namespace ovindra {
namespace {

constexpr std::string_view kCopyPath = "C:\\Enroll.xls";
/// Counts stand behind four blanks.
constexpr std::string_view kPad = "    ";

struct AgeGroup {
  std::string_view label;
  Fragment ages;
};
constexpr AgeGroup kAgeGroups[] = {{"   0-5 Yrs", " and Age between 0 and 5 and Enroll_Date between "},
                                   {"   6-10 Yrs", " and Age between 6 and 10 and Enroll_Date between "},
                                   {"  11-15 Yrs", " and Age between 11 and 15 and Enroll_Date between "},
                                   {"  16-18 Yrs", " and Age between 16 and 18 and Enroll_Date between "}};

constexpr int kHeadingRow = 5;
constexpr int kGenderRow = 6;
constexpr int kFirstGroupRow = 7;
constexpr int kLastGroupRow = 10;
constexpr int kTotalRow = 11;
constexpr int kAgeColumn = 3;
constexpr int kEnrolledColumn = 4;
constexpr int kScreenedColumn = 6;
constexpr int kLastColumn = 7;
constexpr int kCountColumnWidth = 1500;

constexpr int kAnalysisRow = 13;
constexpr int kEnrolledRow = 14;
constexpr int kScreenedRow = 15;
constexpr int kAbsentRow = 16;
constexpr int kAnalysisColumn = 2;

std::string Padded(std::string_view count) {
  return std::string(kPad) += count;
}

void WriteFixedCells(Sheet& sheet) {
  sheet.SetCellText(kHeadingRow, kEnrolledColumn, "    Enrolled  ");
  sheet.SetCellText(kHeadingRow, kScreenedColumn, "    Screened  ");
  int column = kAgeColumn;
  for (const char* heading : {"   Age Group      ", "    M", "    F", "    M  ", "    F  "})
    sheet.SetCellText(kGenderRow, column++, heading);
  int row = kFirstGroupRow;
  for (const AgeGroup& group : kAgeGroups) sheet.SetCellText(row++, kAgeColumn, group.label);
  for (row = kFirstGroupRow; row <= kTotalRow; ++row) {
    for (column = kEnrolledColumn; column <= kLastColumn; ++column)
      sheet.SetCellText(row, column, Padded("0"));
  }
  sheet.SetCellText(kAnalysisRow, 1, "Analysis:-");
  sheet.SetCellText(kEnrolledRow, 1, "Total Enrolled Student");
  sheet.SetCellText(kScreenedRow, 1, "Total Screened Student");
  sheet.SetCellText(kAbsentRow, 1, "Absent Student");
  for (column = kAgeColumn; column <= kLastColumn; ++column) sheet.SetColumnWidth(column, kCountColumnWidth);
}

void WriteTotals(Sheet& sheet) {
  sheet.SetCellText(kTotalRow, kAgeColumn, "   Total");
  for (int column = kEnrolledColumn; column <= kLastColumn; ++column) {
    double sum = 0;
    for (int row = kFirstGroupRow; row <= kLastGroupRow; ++row) sum += Val(sheet.GetCellText(row, column));
    sheet.SetCellText(kTotalRow, column, Padded(NumberText(sum)));
  }
}

void FormatMatrix(Sheet& sheet) {
  StyleBlock(sheet, {kHeadingRow, kEnrolledColumn, kGenderRow, kLastColumn}, HeaderStyle());
  StyleBlock(sheet, {kGenderRow, kAgeColumn, kGenderRow, kAgeColumn}, HeaderStyle());
  sheet.FitColumns(kGenderRow, kAgeColumn, kGenderRow, kAgeColumn);
  StyleBlock(sheet, {kFirstGroupRow, kAgeColumn, kLastGroupRow, kLastColumn}, BodyStyle());
  StyleBlock(sheet, {kTotalRow, kAgeColumn, kTotalRow, kLastColumn}, HeaderStyle());
}

void WriteAnalysis(Sheet& sheet) {
  sheet.SelectCells(kAnalysisRow, 1, kAbsentRow, 3);
  sheet.SetSelectionFont(BodyStyle());
  const auto total = [&](int boys_column) {
    return Val(sheet.GetCellText(kTotalRow, boys_column)) +
           Val(sheet.GetCellText(kTotalRow, boys_column + 1));
  };
  sheet.SetCellText(kEnrolledRow, kAnalysisColumn, total(kEnrolledColumn));
  sheet.SetCellText(kScreenedRow, kAnalysisColumn, total(kScreenedColumn));
  sheet.SetCellText(kAbsentRow, kAnalysisColumn, total(kEnrolledColumn) - total(kScreenedColumn));
  sheet.FitColumns(kEnrolledRow, 1, kAbsentRow, kAnalysisColumn);
}

}  // namespace

frmenrollrpt::frmenrollrpt(Module1& module_values)
    : ReportForm(module_values, "frmenrollrpt", "Center Wise Enroll Report", F1Book1) {
  UsePeriod(DTPicker1, DTPicker2);
  Guarded(load, &frmenrollrpt::OnLoad);
  Plain(key_down, &frmenrollrpt::PressKey);
  Guarded(Command1.click, &frmenrollrpt::Get);
  Guarded(Command2.click, &frmenrollrpt::Print);
  Plain(Command3.click, &frmenrollrpt::Close);
  Guarded(Command4.click, &frmenrollrpt::Export);
}

void frmenrollrpt::OnLoad() {
  SetPeriodToToday();
  FillLocations(database(), Combo1);
}

void frmenrollrpt::PressKey(KeyName key) {
  if (key == KeyName::kF8 && Command2.enabled()) Toggle({&Command4});
}

void frmenrollrpt::Get() {
  if (!CheckSelections({{Combo1, {"Select Center Type !!!", "OVD", MessageIcon::kCritical}, Combo1}})) return;
  ShowHourglass();
  printtitleinsheet();
  GetRpt();
  Command2.SetEnabled(true);
  sheet().NameSheet(std::string(Combo1.trimmed()) + " REPORT");
  ShowDefaultPointer();
}

void frmenrollrpt::GetRpt() {
  const Period period = ReadPeriod();
  const std::string location = LocationCode(Combo1);
  Sheet cells = sheet();
  WriteFixedCells(cells);
  CountByAge(location, period, "", kEnrolledColumn);
  CountByAge(location, period, " and Screened='Y'", kScreenedColumn);
  WriteTotals(cells);
  FormatMatrix(cells);
  WriteAnalysis(cells);
}

void frmenrollrpt::CountByAge(const std::string& location, const Period& period, Fragment condition,
                              int boys_column) {
  Sheet cells = sheet();
  int row = kFirstGroupRow;
  for (const AgeGroup& group : kAgeGroups) {
    Recordset counts =
        database().Execute(sql("select count(*) as Total,Gender from Enroll_Master where Enroll_No like ",
                               quoted(location, "%"), group.ages, quoted(period.from), " and ",
                               quoted(period.to), condition, " group by Gender order by Gender"));
    for (; !counts.Eof(); counts.MoveNext()) {
      const std::string gender = Trim(counts["Gender"]);
      if (gender == "M") cells.SetCellText(row, boys_column, Padded(Trim(counts["total"])));
      if (gender == "F") cells.SetCellText(row, boys_column + 1, Padded(Trim(counts["total"])));
    }
    ++row;
  }
}

void frmenrollrpt::Print() {
  PrintWithCopy(kCopyPath);
}

void frmenrollrpt::Export() {
  ExportSheet();
}

}  // namespace ovindra
