#include "reports/spectacle_power.h"

#include "core/entry/lists.h"
#include "core/entry/lookups.h"
#include "core/entry/places.h"
#include "core/text/text.h"
#include "reports/listing.h"

namespace ovindra {

/// Where the eyes stand on the sheet: the right one first or the left one.
struct PowerLayout {
  struct Eye {
    int column;
    std::string_view title;
  };
  Eye first;
  Eye second;
  std::initializer_list<std::string_view> headings;
  std::initializer_list<std::string_view> fields;
};

namespace {

constexpr int kBandRow = 6;
constexpr int kHeadingRow = 7;
constexpr int kGenderColumn = 6;  // of the block layout

const PowerLayout kLocationLayout{{7, "                           Left Eye                       "},
                                  {11, "                          Right Eye                      "},
                                  {"Sr.", "Child Name", "F/M Name", "Age", "Gender", "Class", "Sph.", "Cyl.",
                                   "Axis.", "VA", "Sph.", "Cyl.", "Axis.", "VA"},
                                  {"Child_Name", "FName", "age", "Gender", "Class", "LE_Sph", "LE_Cyl",
                                   "LE_Axis", "LE_VA", "RE_Sph", "RE_Cyl", "RE_Axis", "RE_VA"}};

const PowerLayout kBlockLayout{{8, "                           Right Eye                       "},
                               {12, "                             Left Eye                      "},
                               {"Sr.", "Child Name", "F/M Name", "School Name", "Age", "Gender", "Class",
                                "Sph.", "Cyl.", "Axis.", "VA", "Sph.", "Cyl.", "Axis.", "VA"},
                               {"Child_Name", "FName", "Sc_Name", "age", "Gender", "Class", "RE_Sph",
                                "RE_Cyl", "RE_Axis", "RE_VA", "LE_Sph", "LE_Cyl", "LE_Axis", "LE_VA"}};

const PowerLayout kProgrammeLayout{{7, "                           Right Eye                       "},
                                   {11, "                          Left Eye                      "},
                                   kLocationLayout.headings,
                                   {"Child_Name", "FName", "age", "Gender", "Class", "RE_Sph", "RE_Cyl",
                                    "RE_Axis", "RE_VA", "LE_Sph", "LE_Cyl", "LE_Axis", "LE_VA"}};

constexpr Fragment kPowers =
    "LE_Sph,LE_Cyl,LE_Axis,LE_VA,RE_Sph,RE_Cyl,RE_Axis,RE_VA,b.Child_Name,b.fname,b.age, case b.Gender When "
    "'M' then 'MALE' When 'F' then 'FEMALE' end as Gender  ,b.Class";

SqlText InPeriod(const Period& period) {
  return sql(" where  a.Record_date between ", quoted(period.from), " and ", quoted(period.to));
}

/// The defected children whom the test narrows further.
SqlText Defected(const Period& period, const SqlText& test) {
  return sql("Select a.Enroll_no,", kPowers, " from Child_Record a,Enroll_Master b", InPeriod(period), test,
             " and  a.Enroll_no=b.Enroll_no and a.Eye_Condition='D' order by b.Child_Name");
}

SqlText DefectedOfBlock(const Period& period, const std::string& location, const std::string& block) {
  return sql(
      "Select Distinct ", kPowers,
      ",d.Sc_Name from Child_Record a,Enroll_Master b,Child_Treatment c,School_Master d", InPeriod(period),
      " and b.Enroll_No like ", quoted(location, "%"),
      " and  a.Enroll_no=b.Enroll_no and a.Eye_Condition='D' and b.School_ID=d.Sc_ID and b.Block_Code=",
      quoted(block), " and a.Child_RecordNo=c.Child_RecordNo and c.Treatment_Code='2' order by b.Child_Name");
}

}  // namespace

frmspectaclepwr::frmspectaclepwr(Module1& module_values)
    : ReportForm(module_values, "frmspectaclepwr", "Power of Spectacle", F1Book1) {
  UsePeriod(DTPicker1, DTPicker2);
  Guarded(load, &frmspectaclepwr::OnLoad);
  Plain(key_down, &frmspectaclepwr::PressKey);
  Plain(Combo1.click, &frmspectaclepwr::FillCenters);
  Guarded(Command1.click, &frmspectaclepwr::Get);
  Guarded(Command2.click, &frmspectaclepwr::Print);
  Plain(Command3.click, &frmspectaclepwr::Close);
  Guarded(Command4.click, &frmspectaclepwr::Export);
  Plain(Command5.click, &frmspectaclepwr::CountBySex);
  Plain(sexes_.Command6.click, &frmspectaclepwr::HideCount);
  Guarded(Command9.click, &frmspectaclepwr::ProgrammeWise);
}

void frmspectaclepwr::OnLoad() {
  SetPeriodToToday();
  FillProgrammes(database(), Combo4);
  FillLocations(database(), Combo1);
  FillBlocks(database(), Combo3);
}

void frmspectaclepwr::PressKey(KeyName key) {
  if (key == KeyName::kF8 && Command2.enabled()) Toggle({&Command4});
}

std::string frmspectaclepwr::GetBlockCode() {
  return CodeOf(database(), lookup::kBlockByPrefix, Combo3);
}

void frmspectaclepwr::FillCenters() {
  // The type is looked up anew for each test.
  if (LocationCode(Combo1) == "V") {
    FillList(database(), sql("Select VC_Name from Vision_Center order by VC_Name"), "VC_Name", Combo2);
  } else if (LocationCode(Combo1) == "A") {
    FillList(database(), sql("Select AW_Name from Anganwadi_Center order by AW_Name"), "AW_Name", Combo2);
  } else if (LocationCode(Combo1) == "H") {
    FillList(database(), sql("Select H_Name from Hospital order by H_Name"), "H_Name", Combo2);
  }
}

void frmspectaclepwr::Get() {
  ShowHourglass();
  printtitleinsheet(Combo2.text());
  if (Combo3.trimmed().empty()) {
    GetRpt();
  } else {
    GetRpt12();
  }
  Command5.SetEnabled(true);
  Command2.SetEnabled(true);
  ShowDefaultPointer();
}

void frmspectaclepwr::ProgrammeWise() {
  ShowHourglass();
  printtitleinsheet(Combo2.text());
  if (!Combo4.trimmed().empty()) GetProgrammeRpt();
  ShowDefaultPointer();
}

void frmspectaclepwr::GetRpt() {
  const SqlText test = sql(" and b.Enroll_No like ", quoted(LocationCode(Combo1), "%"));
  Recordset records = database().Execute(Defected(ReadPeriod(), test));
  WriteLayout(kLocationLayout, records);
}

void frmspectaclepwr::GetProgrammeRpt() {
  const SqlText test = sql(" and b.Programme_Code=", quoted(CodeOf(database(), lookup::kProgramme, Combo4)));
  Recordset records = database().Execute(Defected(ReadPeriod(), test));
  WriteLayout(kProgrammeLayout, records);
}

void frmspectaclepwr::GetRpt12() {
  const std::string location = LocationCode(Combo1);
  Recordset records = database().Execute(DefectedOfBlock(ReadPeriod(), location, GetBlockCode()));
  LastRow = WriteLayout(kBlockLayout, records);
}

int frmspectaclepwr::WriteLayout(const PowerLayout& layout, Recordset& records) {
  Sheet report = sheet();
  const int columns = static_cast<int>(layout.headings.size());
  report.SetCellText(kBandRow, layout.first.column, layout.first.title);
  report.SetCellText(kBandRow, layout.second.column, layout.second.title);
  WriteHeadings(report, kHeadingRow, layout.headings);
  StyleBlock(report, {kBandRow, 1, kHeadingRow, columns}, HeaderStyle());
  const int last = WriteRecords(report, kHeadingRow + 1, records, layout.fields);
  if (last > kHeadingRow) StyleBlock(report, {kHeadingRow + 1, 1, last, columns}, BodyStyle());
  // The titles of the eyes are made for columns of their full width.
  report.FitColumns(kHeadingRow, 1, last, layout.first.column - 1);
  return last + 1;
}

void frmspectaclepwr::CountBySex() {
  sexes_.Frame3.SetVisible(true);
  int males = 0;
  int females = 0;
  for (int row = kHeadingRow; row < LastRow; ++row) {
    const std::string_view gender = Trim(sheet().GetCellText(row, kGenderColumn));
    males += gender == "MALE" ? 1 : 0;
    females += gender == "FEMALE" ? 1 : 0;
  }
  sexes_.Text1.SetText(NumberText(males));
  sexes_.Text2.SetText(NumberText(females));
  sexes_.Text3.SetText(NumberText(males + females));
}

void frmspectaclepwr::Print() {
  PrintSheet({});
}

void frmspectaclepwr::Export() {
  ExportSheet();
}

}  // namespace ovindra
