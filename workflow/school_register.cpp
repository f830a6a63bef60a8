#include "workflow/school_register.h"

#include "base/text/utf8.h"
#include "core/entry/lists.h"
#include "core/entry/lookups.h"
#include "core/entry/places.h"
#include "core/entry/standard_dialogs.h"
#include "core/text/text.h"

namespace ovindra {
namespace {

constexpr Lookup kSchoolId{"Select Sc_ID from School_Master where Sc_Name=", Match::kExact, "Sc_ID"};
constexpr Lookup kSankulId{"Select Sankul_ID from Sankul_Master where Sankul_Name=", Match::kExact,
                           "Sankul_ID"};
constexpr Lookup kCenterId{"Select Center_ID from Center_Master1 where Center_Name=", Match::kExact,
                           "Center_ID"};

constexpr Fragment kSchools{"select Sc_ID,Sc_Name from School_Master order by Sc_Name"};
constexpr Fragment kSankuls{"select Sankul_Name from Sankul_Master order by Sankul_Name"};
constexpr Fragment kCenters{"select Center_ID,Center_Name from Center_Master1 order by Center_Name"};

std::string InCapitals(std::string_view text) {
  std::string capitals;
  for (char32_t character : Characters(text)) AppendCharacter(capitals, UpperCase(character));
  return capitals;
}

/// The first entry that begins as the box reads, by wildcard comparison, becomes the current one. Entries are
/// not folded, so only those stored in capitals match; without a match the current entry stays.
void ScrollAccount(const TextBox& box, ListBox& list) {
  const std::string pattern = InCapitals(box.trimmed()) + "*";
  for (int index = 0; index < list.items().count(); ++index) {
    if (!Matches(list.items().Text(index), pattern)) continue;
    list.SetListIndex(index);
    return;
  }
}

}  // namespace

frmschool_screening::frmschool_screening(Module1& module)
    : Form(module.machine, "frmschool_screening", "School Screening"), module_(module) {
  Text1.SetText("0");
  Plain(load, &frmschool_screening::OnLoad);
  Plain(Command1.click, &frmschool_screening::Add);
  Guarded(Command2.click, &frmschool_screening::Cancel);
  Plain(Command3.click, &frmschool_screening::Save);
  Plain(Command4.click, &frmschool_screening::Close);
  Plain(Text1.key_press, &frmschool_screening::PressInTeachers);
  WireSearch(Text4, List1);
  WireSearch(Text5, List2);
  WireSearch(Text6, List3);
}

void frmschool_screening::OnLoad() {
  DTPicker1.SetValue(machine().clock.Today());
  EmptyBox();
}

void frmschool_screening::Add() {
  EmptyBox();
  FillLocations(database(), Combo4);
  FillList(database(), sql(kSchools), "Sc_Name", Combo1);
  FillList(database(), sql(kSankuls), "Sankul_Name", Combo2);
  FillList(database(), sql(kCenters), "Center_Name", Combo3);
  Frame1.SetEnabled(true);
  Command2.SetEnabled(true);
  Command3.SetEnabled(true);
  Command1.SetEnabled(false);
  FillList(database(), sql(kSchools), "Sc_Name", List1);
  FillList(database(), sql(kSankuls), "Sankul_Name", List2);
  FillListWithData(database(), sql(kCenters), "Center_Name", "Center_ID", List3);
  DTPicker1.SetFocus();
}

void frmschool_screening::Cancel() {
  for (ComboBox* combo : {&Combo1, &Combo2, &Combo3}) combo->Clear();
  for (TextBox* box : {&Text1, &Text2, &Text3, &Text4, &Text5, &Text6}) box->SetText("");
  for (ListBox* list : {&List1, &List2, &List3}) list->Clear();
  Command2.SetEnabled(false);
  Command3.SetEnabled(false);
  Command1.SetEnabled(true);
  Command1.SetFocus();
}

void frmschool_screening::PressInTeachers(KeyPress& press) {
  const char32_t key = press.character;
  if (key == kBackspaceKey || key == kEnterKey || key == U'.' || (key >= U'0' && key <= U'9')) return;
  Tell(machine(), {"Enter Number Only", "Wrong Entry", MessageIcon::kCritical});
  press.Drop();
  Text4.SetFocus();
}

void frmschool_screening::WireSearch(TextBox& box, ListBox& list) {
  box.key_press.Handle([&](KeyPress& press) { PressInSearch(box, list, press); });
  box.change.Handle([&] { SearchChanged(box, list); });
  box.key_down.Handle([&](KeyName key) { KeyDownInSearch(box, list, key); });
  list.click.Handle([&] { TakeFromList(box, list); });
  list.key_press.Handle([&](const KeyPress& press) {
    if (press.character == kEnterKey) TakeFromList(box, list);
  });
}

void frmschool_screening::PressInSearch(TextBox& box, ListBox& list, const KeyPress& press) {
  if (press.character != kEnterKey || box.text().empty()) return;
  if (list.list_index() != ListItems::kNone) box.SetText(Trim(list.text()));
  list.SetVisible(false);
}

void frmschool_screening::SearchChanged(TextBox& box, ListBox& list) {
  list.SetVisible(!box.text().empty());
  if (!box.text().empty()) ScrollAccount(box, list);
}

void frmschool_screening::KeyDownInSearch(TextBox& box, ListBox& list, KeyName key) {
  if (key == KeyName::kDelete) box.SetText("");
  if (key == KeyName::kDown && list.visible()) list.SetFocus();
}

void frmschool_screening::TakeFromList(TextBox& box, ListBox& list) {
  box.SetText(Trim(list.text()));
  list.SetVisible(false);
  box.SetFocus();
}

bool frmschool_screening::CheckPairacy() {
  const std::string school = GetSchoolID();
  return !database().Execute(sql("select * from Screened_School where School_ID=", quoted(school))).Eof();
}

frmschool_screening::Check frmschool_screening::CheckEntries() {
  const auto tell = [this](std::string text, Control& control) {
    Tell(machine(), {std::move(text), "OVD", MessageIcon::kCritical});
    control.SetFocus();
  };
  const std::pair<TextBox*, const char*> names[] = {
      {&Text4, "Enter School Name"}, {&Text5, "Select Sankul Name"}, {&Text6, "Select Center Name"}};
  for (const auto& [box, text] : names) {
    if (!box->trimmed().empty()) continue;
    tell(text, *box);
    return Check::kStop;
  }
  for (TextBox* count : {&Text1, &Text2, &Text3, &Text7, &Text8}) {
    if (!count->trimmed().empty()) continue;
    count->SetText("0");
    return Check::kLeftOpen;
  }
  if (Combo4.trimmed().empty()) {
    tell("Select Type", Combo4);
    return Check::kLeftOpen;
  }
  return Check::kPassed;
}

void frmschool_screening::Save() {
  if (CheckEntries() == Check::kStop) return;
  if (CheckPairacy()) {
    TellDuplicate(machine());
    GoIdle();
    return;
  }
  const SqlText insert = Insert();
  if (AskToSave(machine())) {
    database().Execute(insert);
    GoIdle();
    TellSaved(machine());
  }
  GoIdle();
}

SqlText frmschool_screening::Insert() {
  const std::string school = GetSchoolID();
  const std::string sankul = GetSankulID();
  const std::string center = GetCenterID();
  const std::string type = GetTypeID();
  return sql(
      "insert into Screened_School (School_ID,Sankul_ID,Center_ID,Screening_Date,TNo_of_Boys,TNo_of_Girls,"
      "No_ofT_teacher,Screened_Boys,Screened_Girls,Location_ID) Values (",
      quoted(school), ",", bare(sankul), ",", bare(center), ",", quoted(MonthFirst(DTPicker1.value())), ",",
      bare(Text2), ",", bare(Text3), ",", bare(Text1), ",", bare(Text7), ",", bare(Text8), ",", quoted(type),
      ")");
}

std::string frmschool_screening::GetSchoolID() {
  return CodeOf(database(), kSchoolId, Text4);
}

std::string frmschool_screening::GetSankulID() {
  return CodeOf(database(), kSankulId, Text5);
}

std::string frmschool_screening::GetCenterID() {
  return CodeOf(database(), kCenterId, Text6);
}

std::string frmschool_screening::GetTypeID() {
  return CodeOf(database(), lookup::kLocation, Combo4);
}

void frmschool_screening::EmptyBox() {
  for (TextBox* box : {&Text1, &Text2, &Text3, &Text7, &Text8}) box->SetText("");
  for (ComboBox* combo : {&Combo1, &Combo2, &Combo3, &Combo4}) combo->Clear();
}

void frmschool_screening::GoIdle() {
  EmptyBox();
  Command2.SetEnabled(false);
  Command3.SetEnabled(false);
  Command1.SetEnabled(true);
}

}  // namespace ovindra
