#include "workflow/screening.h"

#include <set>

#include "base/text/blanks.h"
#include "core/entry/calendar.h"
#include "core/entry/center_code.h"
#include "core/entry/child_details.h"
#include "core/entry/lists.h"
#include "core/entry/lookups.h"
#include "core/entry/places.h"
#include "core/entry/standard_dialogs.h"

namespace ovindra {
namespace {

enum BatchColumn {
  kEnrollNo,
  kScreenedBy = 6,
  kCondition,
  kPreDetails,
  kOccupation,
  kCard,
  kVisionCenterKnown,
  kScreenerName,
  kReferredTo,
};

constexpr int kCopiedDetails = 5;

}  // namespace

frmscreened::frmscreened(Module1& module)
    : Form(module.machine, "frmscreened", "Screened Child"), module_(module) {
  Plain(load, &frmscreened::OnLoad);
  Guarded(Command1.click, &frmscreened::Add);
  Guarded(Command7.click, &frmscreened::List);
  Guarded(Command4.click, &frmscreened::MarkScreened);
  Guarded(Command2.click, &frmscreened::Save);
  Guarded(Command5.click, &frmscreened::Cancel);
  Guarded(Command3.click, &frmscreened::Close);
  Guarded(Command6.click, &frmscreened::OpenCalendar);
  Guarded(MSFlexGrid2.click, &frmscreened::RemoveFromBatch);
  Plain(Combo4.click, &frmscreened::PickType);
  Plain(Combo4.validate, &frmscreened::LeaveType);
  Plain(Combo5.click, &frmscreened::PickCenter);
  Plain(Combo2.click, &frmscreened::PickChild);
  Plain(Option1.click, &frmscreened::ChooseNormal);
  Plain(Option2.click, &frmscreened::ChooseDefected);
  Plain(MonthView1.date_click, &frmscreened::ClickDay);
  Plain(MonthView1.key_press, &frmscreened::PressInCalendar);
}

void frmscreened::OnLoad() {
  DTPicker1.SetValue(machine().clock.Today());
  MonthView1.SetValue(machine().clock.Today());
  EmptyBox();
}

void frmscreened::Add() {
  FillSchools(database(), Combo1);
  FillLocations(database(), Combo4);
  FillProgrammes(database(), Combo8);
  GetScreenedBy();
  Command1.SetEnabled(false);
  Command4.SetEnabled(true);
  Command5.SetEnabled(true);
  for (TextBox* box : {&Text1, &Text2, &Text3, &Text4, &Text5}) box->SetText("");
  DTPicker1.SetValue(machine().clock.Today());
  Combo8.SetFocus();
}

void frmscreened::PickType() {
  FillCentersOfType(database(), Combo4, Combo8, Combo5, Combo1);
}

void frmscreened::LeaveType(bool& keep) {
  keep = Combo4.text().empty();
}

void frmscreened::PickCenter() {
  Command7.SetEnabled(true);
  FillSchoolsOfCenter(database(), Combo5, Combo1);
}

void frmscreened::List() {
  GetList();
  GetScreenedBy();
}

void frmscreened::PickChild() {
  GetDetails();
}

void frmscreened::ChooseNormal() {
  Text5.SetEnabled(false);
  Text5.SetText("");
}

void frmscreened::ChooseDefected() {
  Text5.SetEnabled(true);
  Text5.SetText("");
}

void frmscreened::MarkScreened() {
  const bool is_marked_already = CHECKDUPLICACY();
  if (!Validation() || is_marked_already) return;
  Screened();
  Command5.SetEnabled(true);
  Command2.SetEnabled(true);
  MSFlexGrid1.SetRows(MSFlexGrid1.fixed_rows());
  Option1.SetOn(true);
  GetBalenceEnroll();
  GetScreenedBy();
  for (ComboBox* place : {&Combo4, &Combo5, &Combo1}) place->SetEnabled(false);
  for (TextBox* box : {&Text1, &Text2, &Text3}) box->SetText("");
  Combo2.SetFocus();
}

void frmscreened::RemoveFromBatch() {
  if (!AskToDelete(machine())) return;
  // The grid may not lose its last data row by removal.
  if (MSFlexGrid2.rows() > MSFlexGrid2.fixed_rows() + 1) {
    MSFlexGrid2.RemoveItem(MSFlexGrid2.row());
  } else {
    MSFlexGrid2.SetRows(MSFlexGrid2.fixed_rows());
  }
  GetBalenceEnroll();
  MSFlexGrid1.SetRows(MSFlexGrid1.fixed_rows());
  Combo2.SetFocus();
}

void frmscreened::Save() {
  for (batch_row_ = MSFlexGrid2.fixed_rows(); batch_row_ < MSFlexGrid2.rows(); ++batch_row_)
    SaveScreenedChild();
  Tell(machine(), {"Record Saved", "OVD", MessageIcon::kQuestion});
  EmptyBox();
  GoIdle();
}

void frmscreened::Cancel() {
  GoIdle();
}

void frmscreened::GoIdle() {
  for (Grid* grid : {&MSFlexGrid1, &MSFlexGrid2}) grid->SetRows(grid->fixed_rows());
  for (ComboBox* list : {&Combo1, &Combo2, &Combo3, &Combo4, &Combo5}) list->Clear();
  for (Button* button : {&Command5, &Command2, &Command4, &Command7}) button->SetEnabled(false);
  for (ComboBox* place : {&Combo4, &Combo5, &Combo1}) place->SetEnabled(true);
  Command1.SetEnabled(true);
  Command1.SetFocus();
}

void frmscreened::OpenCalendar() {
  ShowCalendar(MonthView1);
}

void frmscreened::ClickDay() {
  TakeDay(MonthView1, DTPicker1);
  Combo1.SetFocus();
}

void frmscreened::PressInCalendar(KeyPress& press) {
  if (press.character == kEnterKey) TakeDay(MonthView1, DTPicker1);
}

SqlText frmscreened::WaitingAt(const std::string& center_code) {
  SqlText at_center =
      sql("select Enroll_No from Enroll_Master where Center_ID=", quoted(center_code), " and screened='N'");
  if (Combo1.trimmed().empty()) return at_center;
  return sql(at_center, " and School_ID=", quoted(CodeOf(database(), lookup::kSchoolInCapitals, Combo1)));
}

void frmscreened::GetList() {
  const std::string location = CodeOf(database(), lookup::kLocation, Combo4);
  SqlText waiting;
  if (const auto center = CenterCodeOfType(database(), location, Combo5)) waiting = WaitingAt(*center);
  Recordset children = database().Execute(waiting);
  if (children.Eof()) {
    Tell(machine(), {"No Any Enrolled Child", "OVD", MessageIcon::kCritical});
    Combo2.Clear();
    Command4.SetEnabled(false);
    return;
  }
  Combo2.Clear();
  for (; !children.Eof(); children.MoveNext()) Combo2.AddItem(Trim(children["Enroll_No"]));
  Command4.SetEnabled(true);
  Command7.SetEnabled(false);
}

void frmscreened::GetBalenceEnroll() {
  const std::string location = CodeOf(database(), lookup::kLocation, Combo4);
  SqlText waiting;
  if (location != "S") {
    if (const auto center = CenterCodeOfType(database(), location, Combo5)) waiting = WaitingAt(*center);
  }
  Recordset children = database().Execute(waiting);
  std::set<std::string> in_batch;
  for (int row = MSFlexGrid2.fixed_rows(); row < MSFlexGrid2.rows(); ++row) {
    in_batch.emplace(Trim(MSFlexGrid2.Cell(row, kEnrollNo)));
  }
  Combo2.Clear();
  for (; !children.Eof(); children.MoveNext()) {
    const std::string enroll_no = Trim(children["Enroll_No"]);
    if (!in_batch.contains(enroll_no)) Combo2.AddItem(enroll_no);
  }
}

void frmscreened::GetScreenedBy() {
  FillList(database(), sql("select Description from screenedbytype order by description"), "Description",
           Combo3);
}

void frmscreened::GetDetails() {
  ShowChildDetails(database(), Combo2.text(), MSFlexGrid1);
}

bool frmscreened::CHECKDUPLICACY() {
  for (int row = MSFlexGrid2.fixed_rows(); row < MSFlexGrid2.rows(); ++row) {
    if (Trim(MSFlexGrid2.Cell(row, kEnrollNo)) == Combo2.trimmed()) return true;
  }
  return false;
}

bool frmscreened::Validation() {
  const auto refuse = [this](std::string text, Control& control) {
    Tell(machine(), {std::move(text), "Blank Entry Not Allowed", MessageIcon::kCritical});
    control.SetFocus();
    return false;
  };
  if (Combo2.text().empty()) return refuse("Select Enroll No.", Combo2);
  if (Combo3.text().empty()) return refuse("Select Screened By", Combo3);
  return true;
}

void frmscreened::Screened() {
  Grid::Row child{std::string(Combo2.trimmed())};
  for (int row = 1; row <= kCopiedDetails; ++row) {
    child.emplace_back(Trim(MSFlexGrid1.Cell(row, 1)));
  }
  child.insert(child.end(), {Combo3.text(), Option1.on() ? "NORMAL" : "DEFECTED", Text3.text(), Text1.text(),
                             Text2.text(), Option4.on() ? "Y" : "N", Text4.text(), Text5.text()});
  MSFlexGrid2.AddRow(std::move(child));
}

void frmscreened::SaveScreenedChild() {
  const auto cell = [this](int column) { return quoted(BatchCell(column)); };
  const std::string type = GetTypeCode();
  const std::string user = module_.GetUserCode();
  database().Execute(sql(
      "update Enroll_Master set screened='Y'", ",screened_By=", quoted(type),
      ",condition=", quoted(GetConditionCode()), ",Screened_Date=", quoted(MonthFirst(DTPicker1.value())),
      ",PreExam=", cell(kPreDetails), ",FOccupation=", cell(kOccupation), ",Card=", cell(kCard),
      ",VC=", cell(kVisionCenterKnown), ",ScreenedBy_Name=", cell(kScreenerName),
      ",ReferTo=", cell(kReferredTo), ",ScreenEntry=", quoted(user), " where Enroll_No=", cell(kEnrollNo)));
}

std::string frmscreened::GetTypeCode() {
  return CodeOf(database(), lookup::kScreenedByType, std::string_view(BatchCell(kScreenedBy)));
}

std::string frmscreened::GetConditionCode() {
  const std::string_view condition = Trim(BatchCell(kCondition));
  return condition == "NORMAL" ? "N" : condition == "DEFECTED" ? "D" : "";
}

void frmscreened::EmptyBox() {
  for (Grid* grid : {&MSFlexGrid1, &MSFlexGrid2}) grid->SetRows(grid->fixed_rows());
  for (TextBox* box : {&Text1, &Text2, &Text3}) box->SetText("");
  for (ComboBox* list : {&Combo1, &Combo2, &Combo3}) list->Clear();
  Option1.SetOn(true);
  Option4.SetOn(true);
}

}  // namespace ovindra
