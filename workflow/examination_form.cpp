#include "workflow/examination_form.h"

#include "core/entry/calendar.h"
#include "core/entry/child_details.h"
#include "core/entry/lists.h"
#include "core/entry/lookups.h"
#include "core/entry/standard_dialogs.h"

namespace ovindra {
namespace {

/// The spectacle, told by its name in the lists and by its code where it is written.
constexpr std::string_view kSpectacle = "SPECTACLE PRESCRIBED";
constexpr std::string_view kSpectacleCode = "2";

bool IsSpectacle(const ListBox& list) {
  return Trim(list.text()) == kSpectacle;
}

/// Moves the current entry to the end of another list; nothing happens when there is none.
void MoveCurrent(ListBox& from, ListBox& to) {
  if (from.list_index() == ListItems::kNone) return;
  to.AddItem(from.text());
  from.RemoveItem(from.list_index());
}

}  // namespace

ExaminationForm::ExaminationForm(Module1& module, const ExaminationKind& kind)
    : Form(module.machine, kind.form_name, kind.caption),
      Combo14(kind.place_choice == PlaceChoice::kWithProgramme
                  ? std::make_unique<ComboBox>(*this, "Combo14", "Programme", DropDownCombo)
                  : nullptr),
      Combo1(*this, "Combo1", kind.place_caption, DropDownCombo),
      module_(module),
      kind_(kind) {
  Wire();
}

void ExaminationForm::Wire() {
  Plain(load, &ExaminationForm::OnLoad);
  Guarded(Command6.click, &ExaminationForm::Add);
  Guarded(Command12.click, &ExaminationForm::List);
  Guarded(Combo2.click, &ExaminationForm::PickChild);
  Guarded(Combo11.click, &ExaminationForm::PickCategory);
  Plain(Option4.click, &ExaminationForm::ChooseDefected);
  Plain(Command1.click, &ExaminationForm::OpenCalendar);
  Plain(MonthView1.date_click, &ExaminationForm::TakeCalendarDay);
  Plain(MonthView1.key_press, &ExaminationForm::PressInCalendar);
  Guarded(Command3.click, &ExaminationForm::SelectDiagnosis);
  Guarded(Command2.click, &ExaminationForm::DeselectDiagnosis);
  Guarded(List3.key_press, &ExaminationForm::PressInDiagnoses);
  Guarded(List1.key_press, &ExaminationForm::PressInSelectedDiagnoses);
  Guarded(Command4.click, &ExaminationForm::SelectTreatment);
  Guarded(Command5.click, &ExaminationForm::DeselectTreatment);
  Guarded(List4.key_press, &ExaminationForm::PressInTreatments);
  Guarded(List2.key_press, &ExaminationForm::PressInSelectedTreatments);
  Guarded(Command10.click, &ExaminationForm::AcceptPaidOrFree);
  Guarded(Command11.click, &ExaminationForm::CancelPaidOrFree);
  Guarded(Command8.click, &ExaminationForm::Save);
  Plain(Command7.click, &ExaminationForm::Cancel);
}

void ExaminationForm::OnLoad() {
  DTPicker1.SetValue(machine().clock.Today());
  MonthView1.SetValue(machine().clock.Today());
  EmptyBox();
}

void ExaminationForm::Add() {
  EmptyBox();
  FillPlaces();
  FillValueLists();
  Command7.SetEnabled(true);
  Command8.SetEnabled(true);
  Command6.SetEnabled(false);
  Command12.SetEnabled(true);
  ResetSpectacleLabel();
  (Combo14 ? *Combo14 : Combo12).SetFocus();
}

void ExaminationForm::List() {
  GetList();
  FillValueLists();
  ResetSpectacleLabel();
}

void ExaminationForm::PickChild() {
  GetDetails();
}

void ExaminationForm::PickCategory() {
  GetDiagnosis();
}

void ExaminationForm::ChooseDefected() {
  for (Control* part : std::initializer_list<Control*>{&Frame3, &Frame4, &Frame5, &Frame6, &Combo11, &List1,
                                                       &List2, &List3, &List4}) {
    part->SetEnabled(true);
  }
}

void ExaminationForm::OpenCalendar() {
  ShowCalendar(MonthView1);
}

void ExaminationForm::TakeCalendarDay() {
  TakeDay(MonthView1, DTPicker1);
}

void ExaminationForm::PressInCalendar(KeyPress& press) {
  if (press.character == kEnterKey) TakeCalendarDay();
}

void ExaminationForm::SelectDiagnosis() {
  MoveCurrent(List3, List1);
  List3.SetFocus();
}

void ExaminationForm::DeselectDiagnosis() {
  MoveCurrent(List1, List3);
  List1.SetFocus();
}

void ExaminationForm::PressInDiagnoses(KeyPress& press) {
  if (press.character == U' ') SelectDiagnosis();
}

void ExaminationForm::PressInSelectedDiagnoses(KeyPress& press) {
  if (press.character == U' ') DeselectDiagnosis();
}

void ExaminationForm::SelectTreatment() {
  if (IsSpectacle(List4)) {
    AskPaidOrFree();
    return;
  }
  MoveCurrent(List4, List2);
  List4.SetFocus();
}

void ExaminationForm::PressInTreatments(KeyPress& press) {
  if (IsSpectacle(List4) || press.character == U' ') SelectTreatment();
}

void ExaminationForm::DeselectTreatment() {
  if (IsSpectacle(List2)) PreferFree();
  MoveCurrent(List2, List4);
  List2.SetFocus();
}

void ExaminationForm::PressInSelectedTreatments(KeyPress& press) {
  if (press.character == U' ') {
    DeselectTreatment();
  } else if (IsSpectacle(List2)) {
    PreferFree();
  }
}

void ExaminationForm::AskPaidOrFree() {
  Frame7.SetVisible(true);
  Option1.SetFocus();
}

void ExaminationForm::AcceptPaidOrFree() {
  if (List4.list_index() != ListItems::kNone) {
    MoveCurrent(List4, List2);
    if (Option1.on()) AddToSpectacleLabel("Paid");
    if (Option2.on()) AddToSpectacleLabel("Free");
    Label19.SetVisible(true);
  }
  List4.SetFocus();
  Frame7.SetVisible(false);
}

void ExaminationForm::CancelPaidOrFree() {
  PreferFree();
  Frame7.SetVisible(false);
  List4.SetFocus();
}

void ExaminationForm::PreferFree() {
  Option1.SetOn(true);
  Option2.SetOn(true);
}

void ExaminationForm::AddToSpectacleLabel(std::string_view ending) {
  Label19.SetCaption(Label19.caption() + " :- " + std::string(ending));
}

void ExaminationForm::Save() {
  if (!Validation()) return;
  if (!AskToSave(machine())) return;
  SaveChildRecord();
  IncreamentRno();
  if (Option4.on()) SaveDiagnoses(record_no_);
  for (int index = 0; index < List2.items().count(); ++index) SaveTreatment(record_no_, index);
  TellSaved(machine());
  EmptyBox();
  AfterSave();
}

void ExaminationForm::Cancel() {
  Command6.SetEnabled(true);
  Command7.SetEnabled(false);
  Command8.SetEnabled(false);
  EmptyBox();
  Command6.SetFocus();
}

void ExaminationForm::GetList() {
  Recordset children = database().Execute(WaitingChildren());
  if (children.Eof()) Tell(machine(), {std::string(kind_.nobody_waits), "OVD", MessageIcon::kCritical});
  Combo2.Clear();
  for (; !children.Eof(); children.MoveNext()) Combo2.AddItem(Trim(children["Enroll_No"]));
}

void ExaminationForm::GetDetails() {
  ShowChildDetails(database(), Combo2.text(), MSFlexGrid1);
}

namespace {

/// Fills the list of one optical value for both eyes, in the order of its table.
void FillBothEyes(Connection& connection, const SqlText& statement, std::string_view field, ComboBox& right,
                  ComboBox& left) {
  Recordset values = connection.Execute(statement);
  right.Clear();
  left.Clear();
  for (; !values.Eof(); values.MoveNext()) {
    right.AddItem(Trim(values[field]));
    left.AddItem(Trim(values[field]));
  }
}

}  // namespace

void ExaminationForm::GetSph() {
  FillBothEyes(database(), sql("Select Spherical from Spherical"), "Spherical", Combo7, Combo3);
}

void ExaminationForm::GetCylendrical() {
  FillBothEyes(database(), sql("Select Cylendrical from Cylendrical"), "Cylendrical", Combo8, Combo4);
}

void ExaminationForm::GetAxis() {
  FillBothEyes(database(), sql("Select Axis from Axis"), "Axis", Combo9, Combo5);
}

void ExaminationForm::GetVA() {
  FillBothEyes(database(), sql("Select VA_Text from VA"), "VA_Text", Combo10, Combo6);
}

void ExaminationForm::GetCategory() {
  FillList(database(), sql("select Category from Category_Master order by Category"), "Category", Combo11);
}

void ExaminationForm::GetDiagnosis() {
  const std::string category = GetCategoryCode();
  FillList(database(),
           sql("Select Diagnosis_Name from Diagnosis_Master where Category_Code=", bare(category)),
           "Diagnosis_Name", List3);
}

void ExaminationForm::GetTreatment() {
  FillList(database(), sql("Select Description from treatment_Master order by Description"), "Description",
           List4);
}

void ExaminationForm::FillValueLists() {
  GetSph();
  GetCylendrical();
  GetAxis();
  GetVA();
  GetCategory();
  GetTreatment();
}

bool ExaminationForm::Validation() {
  const auto refuse = [this](std::string text, Control& control) {
    Tell(machine(), {std::move(text), "OVD", MessageIcon::kCritical});
    control.SetFocus();
    return false;
  };
  if (Combo1.trimmed().empty()) return refuse("Select School/Center Name", Combo1);
  if (Combo2.trimmed().empty()) return refuse("Select Child Enroll", Combo2);
  if (Option4.on() && List1.items().count() == 0) return refuse("Enter Diagnosis", Combo11);
  return true;
}

std::string ExaminationForm::GetCategoryCode() {
  return CodeOf(database(), lookup::kCategory, Combo11);
}

std::string ExaminationForm::GetDiagCode(int index) {
  return CodeOf(database(), lookup::kDiagnosis, std::string_view(List1.items().Text(index)));
}

std::string ExaminationForm::GetTreatmentCode(int index) {
  return CodeOf(database(), lookup::kTreatment, std::string_view(List2.items().Text(index)));
}

void ExaminationForm::GetRecordNo() {
  record_no_ = Read(database(), kind_.counter);
}

void ExaminationForm::IncreamentRno() {
  Increment(database(), kind_.counter);
}

void ExaminationForm::SaveChildRecord() {
  GetRecordNo();
  database().Execute(RecordInsert());
}

SqlText ExaminationForm::RefractionValues() const {
  return sql(quoted(Combo3), ",", quoted(Combo4), ",", quoted(Combo5), ",", quoted(Combo6), ",",
             quoted(Combo7), ",", quoted(Combo8), ",", quoted(Combo9), ",", quoted(Combo10));
}

void ExaminationForm::SaveDiagnoses(const std::string& record_no) {
  for (int index = 0; index < List1.items().count(); ++index) {
    const std::string code = GetDiagCode(index);
    database().Execute(sql(kind_.insert_diagnosis, quoted(record_no), ",", bare(code), ")"));
  }
}

bool ExaminationForm::SaveTreatment(const std::string& record_no, int index) {
  const std::string code = GetTreatmentCode(index);
  const bool is_spectacle = code == kSpectacleCode;
  if (is_spectacle && (Option1.on() || Option2.on())) {
    database().Execute(sql(kind_.insert_treatment, quoted(record_no), ",", bare(code), ",",
                           quoted(Option1.on() ? "P" : "F"), ")"));
    return true;
  }
  database().Execute(sql(kind_.insert_plain_treatment, quoted(record_no), ",", bare(code), ")"));
  return false;
}

void ExaminationForm::EmptyBox() {
  MSFlexGrid1.SetRows(MSFlexGrid1.fixed_rows());
  for (ComboBox* list :
       {&Combo2, &Combo3, &Combo4, &Combo5, &Combo6, &Combo7, &Combo8, &Combo9, &Combo10, &Combo11}) {
    list->Clear();
  }
  for (ListBox* list : {&List1, &List2, &List3, &List4}) list->Clear();
  Option3.SetOn(false);
  Option4.SetOn(true);
  Label19.SetVisible(false);
}

}  // namespace ovindra
