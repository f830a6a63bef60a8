#include "reports/sankul_report.h"

#include "core/entry/lists.h"
#include "core/entry/lookups.h"
#include "core/entry/places.h"
#include "core/entry/standard_dialogs.h"
#include "core/text/text.h"
#include "reports/percent.h"

namespace ovindra {
namespace {

constexpr Lookup kSankulOfRegister{"Select Sankul_ID from Sankul_Master where Sankul_Name=", Match::kExact,
                                   "Sankul_ID"};

constexpr std::string_view kDitto = "\"";
constexpr int kGroupRow = 4;
constexpr int kHeadingRow = 5;
constexpr int kFirstRow = 6;

constexpr int kWholeWidth = 13;
constexpr int kNilWidth = 11;

/// The columns of the grid.
enum Gathered {
  kNumber,
  kSchool,
  kCenter,
  kDate,
  kBoys,
  kGirls,
  kTrainedTeachers,
  kScreenedBoys,
  kScreenedGirls,
  kTeachers,
  kDefected
};

void WriteHeadingRows(Sheet& cells, int last_column) {
  cells.SetCellText(kGroupRow, 6, "Total No. of Child");
  cells.SetCellText(kGroupRow, 9, "Total Screened Child");
  WriteHeadings(cells, kHeadingRow,
                {"Sr.", "Screening Date", "Screening Center", "School Name", "Teacher Name", "Boys", "Girls",
                 "Total", "Boys", "Girls", "Total"});
  if (last_column == kWholeWidth) {
    cells.SetCellText(kHeadingRow, 12, "Def.");
    cells.SetCellText(kHeadingRow, 13, "%age");
  }
  cells.SelectCells(kHeadingRow, 1, kHeadingRow, last_column);
  cells.SetSelectionFont(HeaderStyle());
}

void Format(Sheet& cells, int last_row, int last_column) {
  cells.SelectCells(kFirstRow, 1, last_row, last_column);
  cells.SetSelectionFont(BodyStyle());
  cells.SetColumnWidth(1, 1000);
  cells.SetColumnWidth(2, 3500);
  for (int column = 3; column <= 5; ++column) cells.SetColumnWidth(column, 6000);
  for (int column = 6; column <= last_column; ++column) cells.SetColumnWidth(column, 1500);
  cells.SelectCells(kGroupRow, 6, kGroupRow, 9);
  cells.SetSelectionFont(HeaderStyle());
  cells.SelectCells(kFirstRow, 3, last_row, 5);
  cells.SetSelectionAlignment(HorizontalAlign::kGeneral, Wrap::kOn);
  cells.FitRows(kFirstRow, 3, last_row, 5);
  cells.SelectCells(kHeadingRow, 1, last_row, last_column);
  cells.SetSelectionBorder();
  cells.SelectCells(kGroupRow, 6, kGroupRow, 11);
  cells.SetSelectionBorder();
}

}  // namespace

frmsankulwiserpt::frmsankulwiserpt(Module1& module_values)
    : ReportForm(module_values, "frmsankulwiserpt", "Sankul Wise School Screening Report", F1Book1) {
  Guarded(load, &frmsankulwiserpt::OnLoad);
  Plain(key_down, &frmsankulwiserpt::PressKey);
  Plain(Combo2.click, &frmsankulwiserpt::GetSankul);
  Plain(Command1.click, &frmsankulwiserpt::Get);
  Guarded(Command5.click, &frmsankulwiserpt::NilList);
  Plain(Command2.click, &frmsankulwiserpt::Close);
  Guarded(Command3.click, &frmsankulwiserpt::Export);
  Guarded(Command4.click, &frmsankulwiserpt::Print);
}

void frmsankulwiserpt::OnLoad() {
  FillBlocks(database(), Combo2);
}

void frmsankulwiserpt::PressKey(KeyName key) {
  if (key == KeyName::kF8) Toggle({&Command3, &Command4});
}

void frmsankulwiserpt::GetSankul() {
  FillList(database(),
           sql("Select b.Sankul_Name from Block_Master a,Sankul_Master b where a.Block_Code=b.Block_Code and "
               "a.Block_Name=",
               quoted(Combo2)),
           "Sankul_Name", Combo1);
}

void frmsankulwiserpt::Get() {
  if (!CheckSankul()) return;
  ShowHourglass();
  printtitleinsheet({}, Combo1.trimmed());
  GetRpt();
  ShowDefaultPointer();
}

void frmsankulwiserpt::NilList() {
  if (!CheckSankul()) return;
  ShowHourglass();
  printtitleinsheet({}, Combo1.trimmed());
  BuildNilList();
  ShowDefaultPointer();
}

bool frmsankulwiserpt::CheckSankul() {
  return CheckSelections({{Combo1, {"Select Sankul Name !!!", "OVD", MessageIcon::kCritical}, Combo1}});
}

std::string frmsankulwiserpt::SankulCode() {
  return CodeOf(database(), kSankulOfRegister, Combo1);
}

void frmsankulwiserpt::GetRpt() {
  const std::string sankul = SankulCode();
  ReadRegister(sankul, " order by Center_Name");
  JoinTeachers(sankul);
  CountDefected(sankul);
  WriteSheet(kWholeWidth);
}

void frmsankulwiserpt::BuildNilList() {
  const std::string sankul = SankulCode();
  ReadRegister(sankul, " and b.Sc_ID not in(select School_ID from Enroll_Master) order by Center_Name");
  if (MSFlexGrid1.rows() == MSFlexGrid1.fixed_rows()) {
    Tell(machine(), {"No. Any Nill School", "OVD"});
    return;
  }
  JoinTeachers(sankul);
  WriteSheet(kNilWidth);
}

void frmsankulwiserpt::ReadRegister(const std::string& sankul, Fragment end) {
  MSFlexGrid1.Empty();
  FillGrid(database(),
           sql("select RNO,sc_name,center_name,Screening_date,A.tno_of_boys,A.tno_of_girls,A.no_oft_teacher,"
               "A.Screened_Boys,A.Screened_Girls from Screened_School a,school_master b,Center_Master1 c "
               "Where a.School_ID = b.Sc_ID And a.Center_ID = c.Center_ID And a.Sankul_ID =",
               bare(sankul), end),
           {"RNO", "Sc_Name", "Center_Name", "Screening_date", "tno_of_boys", "tno_of_girls",
            "no_oft_teacher", "Screened_Boys", "Screened_Girls"},
           MSFlexGrid1);
}

void frmsankulwiserpt::JoinTeachers(const std::string& sankul) {
  Recordset teachers = database().Execute(
      sql("select RNO,Person_Name from Screened_School a,TPerson_Master b Where a.School_ID = b.Center_ID "
          "And Sankul_ID =",
          bare(sankul)));
  JoinRecords(MSFlexGrid1, GridIndex(MSFlexGrid1, kNumber), kTeachers, teachers, "RNO", "Person_Name");
}

void frmsankulwiserpt::CountDefected(const std::string& sankul) {
  Recordset counts = database().Execute(
      sql("select RNO,sc_name,count(d.Enroll_No) as defected from Screened_School a,school_master b,"
          "Center_Master1 c,Enroll_Master d Where a.School_ID = b.Sc_ID And a.Center_ID = c.Center_ID And "
          "a.Sankul_ID =",
          bare(sankul), " and a.School_ID=d.School_ID and d.condition='D' group by RNO,sc_name,d.School_ID"));
  const GridIndex lines(MSFlexGrid1, kNumber);
  for (; !counts.Eof(); counts.MoveNext()) {
    for (const int row : lines.RowsOf(Trim(counts["RNO"])))
      MSFlexGrid1.SetCell(row, kDefected, Trim(counts["Defected"]));
  }
}

void frmsankulwiserpt::WriteSheet(int last_column) {
  Sheet cells = sheet();
  WriteHeadingRows(cells, last_column);
  int row = kHeadingRow;
  for (int line = MSFlexGrid1.fixed_rows(); line < MSFlexGrid1.rows(); ++line)
    WriteLine(cells, ++row, line, last_column);
  Format(cells, row, last_column);
}

void frmsankulwiserpt::WriteLine(Sheet& cells, int row, int line, int last_column) {
  const auto text = [&](int column) { return Trim(MSFlexGrid1.Cell(line, column)); };
  const auto text_or_ditto = [&](int column) {
    const bool is_first = line == MSFlexGrid1.fixed_rows();
    return is_first || text(column) != Trim(MSFlexGrid1.Cell(line - 1, column)) ? text(column) : kDitto;
  };
  cells.SetCellText(row, 1, row - kHeadingRow);
  cells.SetCellText(row, 2, text_or_ditto(kDate));
  cells.SetCellText(row, 3, text_or_ditto(kCenter));
  cells.SetCellText(row, 4, text(kSchool));
  cells.SetCellText(row, 5, text(kTeachers));
  cells.SetCellText(row, 6, text(kBoys));
  cells.SetCellText(row, 7, text(kGirls));
  cells.SetCellText(row, 8, Val(text(kBoys)) + Val(text(kGirls)));
  cells.SetCellText(row, 9, text(kScreenedBoys));
  cells.SetCellText(row, 10, text(kScreenedGirls));
  const double screened = Val(text(kScreenedBoys)) + Val(text(kScreenedGirls));
  cells.SetCellText(row, 11, screened);
  if (last_column < kWholeWidth) return;
  cells.SetCellText(row, 12, text(kDefected));
  cells.SetCellText(row, 13, Percent(Val(text(kDefected)), screened));
}

void frmsankulwiserpt::Print() {
  PrintSheet({.without_side_margins = true});
}

void frmsankulwiserpt::Export() {
  ExportSheet();
}

}  // namespace ovindra
