#include "reports/trained_persons.h"

#include "core/entry/lists.h"
#include "core/entry/places.h"
#include "core/entry/standard_dialogs.h"
#include "reports/listing.h"

namespace ovindra {
namespace {

constexpr int kHeadingRow = 5;
constexpr int kBorderedColumns = 5;

/// Where the people of a list work.
struct Workplace {
  Fragment field;
  Fragment table;
  Fragment key;
};

constexpr Workplace kSchool{"Sc_Name", "School_Master c", "Sc_ID"};
constexpr Workplace kAnganwadi{"AW_Name", "Anganwadi_Center c", "AW_ID"};

/// The list that a person type asks for. The heading above the teachers' schools is what it has always been.
struct PersonList {
  std::string_view type;
  const Workplace& workplace;
  std::string_view heading;
};

constexpr PersonList kLists[] = {
    {"", kSchool, "School Name"},
    {"ANGANWADI WORKER", kAnganwadi, "Anganwadi Center"},
    {"TEACHER", kSchool, "Anganwadi Center"},
};

}  // namespace

/// What a list is narrowed to.
struct PersonSource {
  Fragment table;
  Fragment name_test;
  Fragment join;
};

namespace {

constexpr PersonSource kBlock{"Block_Master b,", " where b.block_name=", " and a.Block=b.block_Code"};
constexpr PersonSource kProgramme{"Programme_Master b,",
                                  " where b.Programme_Name=", " and a.Programme_Code=b.Programme_Code"};

SqlText Persons(const PersonSource& source, const Workplace& workplace, const ComboBox& place) {
  return sql("select Person_Name,Gender,", workplace.field, ",Mobile from TPerson_Master a,", source.table,
             workplace.table, source.name_test, quoted(place), source.join, " and a.Center_ID=c.",
             workplace.key, " order by Person_Name");
}

}  // namespace

frmtrainedPerlist::frmtrainedPerlist(Module1& module_values)
    : ReportForm(module_values, "frmtrainedPerlist", "List of Trained Person", F1Book1) {
  UsePeriod(DTPicker1, DTPicker2);
  Guarded(load, &frmtrainedPerlist::OnLoad);
  Plain(key_down, &frmtrainedPerlist::PressKey);
  Guarded(Combo2.click, &frmtrainedPerlist::FillCenters);
  Guarded(Command1.click, &frmtrainedPerlist::Get);
  Guarded(Command2.click, &frmtrainedPerlist::Print);
  Plain(Command3.click, &frmtrainedPerlist::Close);
  Guarded(Command4.click, &frmtrainedPerlist::Export);
  Guarded(Command5.click, &frmtrainedPerlist::ShowBlock);
  Guarded(Command7.click, &frmtrainedPerlist::ShowProgramme);
}

void frmtrainedPerlist::OnLoad() {
  SetPeriodToToday();
  FillList(database(), sql("Select Description from Tperson_Type_Master order by Description"), "Description",
           Combo2);
  FillBlocks(database(), Combo3);
  FillList(database(), sql("Select Programme_Name from Programme_Master order by Programme_Name"),
           "Programme_Name", Combo4);
}

void frmtrainedPerlist::PressKey(KeyName key) {
  if (key == KeyName::kF8 && Command2.enabled()) Toggle({&Command4, &Label6, &Combo3, &Command5});
}

void frmtrainedPerlist::FillCenters() {
  if (!Combo2.enabled()) return;
  if (GetTypeCode() == "AWW")
    FillList(database(), sql("Select AW_Name from Anganwadi_Center order by AW_Name"), "AW_Name", Combo1);
  if (GetTypeCode() == "TEACHER") FillSchools(database(), Combo1);
}

std::string frmtrainedPerlist::CodeOrNothing(const SqlText& statement, std::string_view field) {
  const Recordset rows = database().Execute(statement);
  return rows.Eof() ? std::string() : Trim(rows[field]);
}

std::string frmtrainedPerlist::GetTypeCode() {
  return CodeOrNothing(sql("Select Type_Code from Tperson_Type_Master where Description=", quoted(Combo2)),
                       "Type_Code");
}

std::string frmtrainedPerlist::GetCenterCode() {
  if (GetTypeCode() == "TEACHER")
    return CodeOrNothing(sql("Select Sc_ID from School_Master where Sc_Name =", quoted(Combo1)), "Sc_ID");
  if (GetTypeCode() == "AWW")
    return CodeOrNothing(sql("Select AW_ID from Anganwadi_Center where AW_Name =", quoted(Combo1)), "AW_ID");
  return {};
}

void frmtrainedPerlist::Get() {
  Recordset persons = database().Execute(
      sql("Select Person_Name,Gender,b.Block_name as Block from TPerson_Master a,Block_Master b where "
          "Center_ID=",
          quoted(GetCenterCode()), " and a.Block=b.Block_Code"));
  if (!BeginList(persons, Combo1)) return;
  Sheet report = sheet();
  const int last = WriteRecords(report, kHeadingRow + 1, persons, {"Person_Name", "Gender", "Block"});
  WriteHeadings(report, kHeadingRow, {"Sr.", "Name", "Gender", "Block"});
  EndList(last, 4);
}

void frmtrainedPerlist::ShowBlock() {
  ShowPersons(kBlock, Combo3);
}

void frmtrainedPerlist::ShowProgramme() {
  ShowPersons(kProgramme, Combo4);
}

void frmtrainedPerlist::ShowPersons(const PersonSource& source, const ComboBox& place) {
  for (const PersonList& list : kLists) {
    if (Combo2.trimmed() != list.type) continue;
    Recordset persons = database().Execute(Persons(source, list.workplace, place));
    if (!BeginList(persons, place)) return;
    Sheet report = sheet();
    const int last = WriteRecords(report, kHeadingRow + 1, persons,
                                  {"Person_Name", "Gender", list.workplace.field.text(), "Mobile"});
    WriteHeadings(report, kHeadingRow, {"Sr.", "Name", "Gender", list.heading, "Mobile No."});
    EndList(last, kBorderedColumns);
  }
}

bool frmtrainedPerlist::BeginList(const Recordset& persons, const ComboBox& place) {
  ShowHourglass();
  printtitleinsheet(Combo2.text(), place.text());
  sheet().NameSheet("TRAINED " + std::string(Combo2.trimmed()));
  if (!persons.Eof()) return true;
  ShowDefaultPointer();
  Tell(machine(), {"No Any Person List", "OVD", MessageIcon::kQuestion});
  return false;
}

void frmtrainedPerlist::EndList(int last_row, int columns) {
  Sheet report = sheet();
  report.SelectCells(kHeadingRow, 1, kHeadingRow, columns);
  report.SetSelectionFont(HeaderStyle());
  report.SelectCells(kHeadingRow + 1, 1, last_row, columns);
  report.SetSelectionFont(BodyStyle());
  report.FitColumns(kHeadingRow, 2, last_row, 2);
  report.SelectCells(kHeadingRow, 1, last_row, kBorderedColumns);
  report.SetSelectionBorder();
  ShowDefaultPointer();
  Command2.SetEnabled(true);
}

void frmtrainedPerlist::Print() {
  PrintWithCopy("C:\\Person.xls");
}

void frmtrainedPerlist::Export() {
  ExportSheet();
}

}  // namespace ovindra
