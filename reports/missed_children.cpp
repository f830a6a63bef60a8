#include "reports/missed_children.h"

#include "core/entry/lists.h"
#include "core/entry/lookups.h"
#include "core/entry/standard_dialogs.h"
#include "reports/listing.h"

namespace ovindra {
namespace {

constexpr int kHeadingRow = 5;
constexpr int kColumns = 7;
constexpr std::string_view kLineEnd = "\r\n";

std::string TextOf(const Field& field) {
  return field.IsNull() ? std::string() : field.AsText();
}

/// One line with all that is known of the first child, then a line for each child.
Document DocumentOf(Recordset& children) {
  constexpr struct {
    std::string_view label;
    std::string_view field;
  } kDetails[] = {{"Enroll_no :-", "Enroll_no"}, {"Child_Name :-", "Child_Name"},
                  {"Fname :-", "Fname"},         {"Age :-", "Age"},
                  {"Gender :- ", "Gender"},      {"Class :-", "Class"}};
  const std::string ten_blanks(10, ' ');
  Document document;
  for (const auto& detail : kDetails) {
    document.text += detail.label;
    document.text += TextOf(children[detail.field]);
  }
  document.text += kLineEnd;
  for (; !children.Eof(); children.MoveNext()) {
    for (const std::size_t ordinal : {0U, 1U}) document.text += ten_blanks + TextOf(children.At(ordinal));
    document.text += kLineEnd;
  }
  return document;
}

}  // namespace

Form1::Form1(Module1& module_values) : ReportForm(module_values, "Form1", "Missed Child", F1Book1) {
  Guarded(load, &Form1::GetSchool);
  Plain(key_down, &Form1::PressKey);
  Guarded(Command1.click, &Form1::Get);
  Plain(Command3.click, &Form1::Close);
  Guarded(Command4.click, &Form1::Export);
  Plain(Command5.click, &Form1::Insert2Word1);
}

void Form1::GetSchool() {
  FillList(database(), sql("select SC_Name from School_Master order by Sc_Name"), "SC_Name", Combo3);
}

void Form1::PressKey(KeyName key) {
  if (key == KeyName::kF8 && Command2.enabled()) Toggle({&Command4});
}

std::string Form1::GetScode() {
  return CodeOf(database(), lookup::kSchoolInCapitals, Combo3);
}

Recordset Form1::MissedChildren() {
  return database().Execute(
      sql("Select Enroll_no,Child_Name,Fname,Age,Gender,Class from Enroll_Master where School_ID=",
          quoted(GetScode()),
          " and Screened='Y' and Enroll_No not in(Select Enroll_No from Child_Record) order by Child_Name"));
}

void Form1::Get() {
  ShowHourglass();
  printtitleinsheet();
  BuildList();
  ShowDefaultPointer();
}

void Form1::BuildList() {
  Sheet report = sheet();
  WriteHeadings(report, kHeadingRow,
                {"Sr.", "Enroll No.", "Child Name", "F/M Name", "Age", "Gender", "Class"});
  report.SelectCells(kHeadingRow, 1, kHeadingRow, kColumns);
  report.SetSelectionFont(HeaderStyle());
  Recordset children = MissedChildren();
  if (children.Eof()) {
    Tell(machine(), {"No Any Missed Child", "OVD", MessageIcon::kInformation});
    return;
  }
  const int last = WriteRecords(report, kHeadingRow + 1, children,
                                {"Enroll_No", "Child_Name", "FName", "age", "Gender", "Class"});
  report.FitColumns(kHeadingRow, 1, last, 4);
  report.SelectCells(kHeadingRow + 1, 1, last, kColumns);
  report.SetSelectionFont(BodyStyle());
  report.SelectCells(kHeadingRow, 1, last, kColumns);
  report.SetSelectionBorder();
  report.SelectCells(kHeadingRow, 5, last, 5);
  report.SetSelectionAlignment(HorizontalAlign::kGeneral, Wrap::kOff);
  report.SetColumnWidth(5, 1000);
  report.SetColumnWidth(6, 1600);
  report.SetColumnWidth(7, 1500);
}

void Form1::Insert2Word1() {
  Recordset children = MissedChildren();
  if (children.Eof()) {
    Tell(machine(), {"No Record Exists,First Insert a Record", "Message"});
    return;
  }
  machine().word_processor.StartWordProcessor();
  machine().word_processor.SaveDocument(DocumentOf(children), "c:\\worddata.doc");
  Tell(machine(), {"Question Paper Report Saved\nMay Need Formatting in Document", "Successfully Saved"});
}

void Form1::Export() {
  ExportSheet();
}

}  // namespace ovindra
