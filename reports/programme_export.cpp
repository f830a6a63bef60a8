#include "reports/programme_export.h"

#include "core/entry/standard_dialogs.h"

namespace ovindra {
namespace {

struct ExportColumn {
  const char* heading;
  const char* field;
};

/// The column "vc" shows the screener's name again: that is what its readers know it as.
constexpr ExportColumn kColumns[] = {
    {"Center_Name", "Center_Name"},
    {"SC_Name", "SC_Name"},
    {"Screened_By", "Screened_By"},
    {"ScreenedBy_Name", "ScreenedBy_Name"},
    {"Block_Name", "Block_Name"},
    {"Enroll_Date", "Enroll_Date"},
    {"Enroll_No", "Enroll_No"},
    {"Child_Name", "Child_Name"},
    {"Fname", "Fname"},
    {"Age", "Age"},
    {"Month", "Month"},
    {"Days", "Days"},
    {"Gender", "Gender"},
    {"Class", "Class"},
    {"Screened", "Screened"},
    {"Condition", "Condition"},
    {"Screened_Date", "Screened_Date"},
    {"School_Going", "School_Going"},
    {"Mobile", "Mobile"},
    {"Attend", "Attend"},
    {"PreExam", "PreExam"},
    {"FOccupation", "FOccupation"},
    {"Card", "Card"},
    {"vc", "ScreenedBy_Name"},
    {"ReferTo", "ReferTo"},
    {"EnrollEntry", "EnrollEntry"},
    {"ScreenEntry", "ScreenEntry"},
};
constexpr int kColumnCount = static_cast<int>(std::size(kColumns)) + 1;
constexpr int kHeadingRow = 5;

void RebuildTable(Connection& database, const Period& period) {
  database.Execute(sql("IF EXISTS(SELECT * FROM   dbo.GRANT2016) DROP TABLE dbo.GRANT2016"));
  database.Execute(sql(
      "Select "
      "b.Center_Name,c.SC_Name,Screened_By,ScreenedBy_Name,d.Block_Name,a.Enroll_Date,a.Enroll_No,Child_Name,"
      "Fname,Age,Month,Days,Gender,Class,Screened,Condition,Screened_Date,School_Going,Mobile,Attend,PreExam,"
      "FOccupation,Card,VC,ReferTo,EnrollEntry,ScreenEntry"
      " into GRANT2016 from Enroll_Master a,Center_Master1 b,School_Master c,Block_Master d"
      " where a.Enroll_Date between ",
      quoted(period.from, " "), " and ", quoted(period.to),
      " and a.Programme_Code='GRANT2016' and a.Center_ID=b.Center_ID and a.School_ID=c.SC_ID"
      " and a.Block_Code= d.Block_Code"));
  database.Execute(
      sql("Update GRANT2016 Set GRANT2016.EnrollEntry = t1.User_Name from (Select distinct * from "
          "User_Master) as T1 "
          "Where GRANT2016.EnrollEntry = t1.User_Code"));
  database.Execute(
      sql("Update GRANT2016 Set GRANT2016.ScreenEntry = t1.User_Name from (Select distinct * from "
          "User_Master) as T1 "
          "Where GRANT2016.ScreenEntry = t1.User_Code"));
}

}  // namespace

void ExportProgramme(Machine& machine, Connection& database, const Period& period, Sheet sheet) {
  RebuildTable(database, period);
  Recordset children = database.Execute(sql("Select * from GRANT2016"));
  if (children.Eof()) {
    TellNoDetails(machine);
    return;
  }
  sheet.SetCellText(kHeadingRow, 1, "Sr.");
  std::vector<std::size_t> ordinals;
  for (int column = 2; column <= kColumnCount; ++column) {
    const ExportColumn& exported = kColumns[column - 2];
    sheet.SetCellText(kHeadingRow, column, exported.heading);
    ordinals.push_back(children.Ordinal(exported.field));
  }
  int row = kHeadingRow;
  for (; !children.Eof(); children.MoveNext()) {
    ++row;
    sheet.SetCellText(row, 1, row - kHeadingRow);
    for (int column = 2; column <= kColumnCount; ++column) {
      const Field field = children.At(ordinals[static_cast<std::size_t>(column) - 2]);
      if (!field.IsNull()) sheet.SetCellText(row, column, Trim(field));
    }
  }
  sheet.SelectCells(kHeadingRow, 1, kHeadingRow, kColumnCount);
  sheet.SetSelectionFont(HeaderStyle());
  sheet.SelectCells(kHeadingRow + 1, 1, row, kColumnCount);
  sheet.SetSelectionFontSize(10);
}

void TellNoDetails(Machine& machine) {
  Tell(machine, {" No Any Details", "OVD", MessageIcon::kCritical});
}

}  // namespace ovindra
