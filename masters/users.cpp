#include "masters/users.h"

#include <algorithm>

#include "core/entry/standard_dialogs.h"

namespace ovindra {
namespace {

constexpr std::string_view kHelp =
    "Creating Users and Assigning User Access Rights : \n"
    "\n"
    "1. Press New and enter the user name ( maximum upto 30 characters) and the password "
    "( maximum upto 10 characters).\n"
    "2. On the tab Rights tick what the user may open: item by item, a whole group by All, "
    "or by an authority level.\n"
    "3. Press Ok to save the user with these rights.\n"
    "\n"
    "To change the rights of a user press Edit, select the user, turn to the tab Rights, and press Ok. "
    "To change a password press Change Password, select the user, enter the new password, and press Ok.";

template <typename Boxes>
void TickEach(Boxes& boxes, bool on) {
  for (CheckBox& box : boxes) box.SetOn(on);
}

}  // namespace

frmuser::frmuser(Module1& module) : Form(module.machine, "frmuser", "User Master"), module_(module) {
  Plain(load, &frmuser::OnLoad);
  Plain(TabStrip1.click, &frmuser::TurnToTab);
  Plain(Combo1.key_press, &frmuser::PressInUserName);
  Plain(Command9.click, &frmuser::TickDataEntry);
  Plain(Command1.click, &frmuser::TickReports);
  Plain(Command7.click, &frmuser::TickMasters);
  Plain(Command2.click, &frmuser::TickAll);
  Plain(Command3.click, &frmuser::TickForGuest);
  Plain(Command8.click, &frmuser::TickAll);
  Plain(cmdnew.click, &frmuser::New);
  Plain(cmdedit.click, &frmuser::Edit);
  Plain(cmdchange.click, &frmuser::Change);
  Plain(cmdok.click, &frmuser::Ok);
  Plain(cmdcancel.click, &frmuser::Cancel);
  Plain(cmdexit.click, &frmuser::Close);
  Text1.SetCaption(std::string(kHelp));
}

void frmuser::OnLoad() {
  Combo1.SetEnabled(false);
  HidePassword();
  cmdok.SetEnabled(false);
  NewMode = EditMode = ChangeMode = false;
}

void frmuser::New() {
  NewMode = true;
  ShowPassword();
  BeginMode();
}

void frmuser::Change() {
  ChangeMode = true;
  ShowPassword();
  Text2.SetText("");
  FillUsers();
  BeginMode();
}

void frmuser::Edit() {
  EditMode = true;
  HidePassword();
  FillUsers();
  BeginMode();
}

void frmuser::BeginMode() {
  for (Button* button : {&cmdnew, &cmdchange, &cmdedit}) button->SetEnabled(false);
  cmdok.SetEnabled(true);
  Combo1.SetEnabled(true);
  Combo1.SetFocus();
  // The page of the rights hides the name: the focus is led there, and not to the next button.
  if (!Combo1.HasFocus()) TabStrip1.SetFocus();
}

void frmuser::Ok() {
  if (NewMode) {
    if (CheckUser() == Known::kDuplicate)
      Tell(machine(), {"This User Already Exists", "Duplicate User !", MessageIcon::kExclamation});
    if (CheckUser() == Known::kNew) {
      CreateUser();
      SaveRights();
    }
  }
  if (ChangeMode) ChangePassword();
  if (EditMode) {
    if (Combo1.trimmed().empty()) {
      Refuse("Select User !!!");
      Combo1.SetFocus();
      return;
    }
    UpdateRights();
  }
  OfferModes();
  NewMode = EditMode = ChangeMode = false;
  TabStrip1.SetFocus();
}

void frmuser::Cancel() {
  OfferModes();
  // The flag of the third mode stays until the next OK.
  NewMode = ChangeMode = false;
  Combo1.SetEnabled(false);
  ClearRights();
}

void frmuser::OfferModes() {
  for (Button* button : {&cmdnew, &cmdchange, &cmdedit}) button->SetEnabled(true);
  cmdok.SetEnabled(false);
  HidePassword();
  Combo1.SetText("");
}

void frmuser::ShowPassword() {
  Label2.SetVisible(true);
  Text2.SetVisible(true);
}

void frmuser::HidePassword() {
  Label2.SetVisible(false);
  Text2.SetVisible(false);
  Text2.SetText("");
}

void frmuser::PressInUserName(KeyPress& press) {
  if (!ChangeMode && !EditMode) return;
  Tell(machine(), {"Select One User", "Select Only !", MessageIcon::kCritical});
  press.Drop();
}

void frmuser::TurnToTab() {
  if (TabStrip1.selected() == 0) {
    ShowPage(Frame1);
  } else {
    TurnToRights();
  }
}

void frmuser::TurnToRights() {
  if (NewMode && (IsMissing(Combo1, "Enter User Name") || IsMissing(Text2, "Enter Password"))) return;
  ShowPage(Frame2);
  ClearRights();
  if (NewMode) OfferRights();
  if (EditMode) TickRightsOfUser();
}

bool frmuser::IsMissing(TextControl& field, std::string_view message) {
  if (!field.trimmed().empty()) return false;
  Refuse(message);
  ShowPage(Frame1);
  field.SetFocus();
  return true;
}

void frmuser::TickRightsOfUser() {
  if (Combo1.trimmed().empty()) {
    Refuse("Select Username Name First !");
    cmdcancel.Press();
    return;
  }
  OfferRights();
  const std::string code = GetUserCode();
  if (code.empty()) {
    ClearRights();
    cmdok.SetEnabled(false);
    Refuse("Not Valid User !");
    cmdcancel.Press();
    return;
  }
  Recordset rights = database().Execute(sql("select Access from User_Rights where User_Code=", bare(code)));
  for (; !rights.Eof(); rights.MoveNext()) {
    const std::string access = Trim(rights["Access"]);
    if (const auto right = ReadRight(access)) BoxOf(*right).SetOn(true);
  }
}

CheckBox& frmuser::BoxOf(const MenuRight& right) {
  const std::vector<CheckBox*> boxes = Rights();
  const auto box = std::ranges::find(boxes, right.name(), &CheckBox::full_name);
  if (box == boxes.end()) throw NoSuchItem(right);
  return **box;
}

void frmuser::Refuse(std::string_view text) {
  Tell(machine(), {std::string(text), "OVD", MessageIcon::kCritical});
}

void frmuser::ShowPage(const Frame& page) {
  Frame1.SetVisible(&page == &Frame1);
  Frame2.SetVisible(&page == &Frame2);
}

void frmuser::ClearRights() {
  for (CheckBox* box : Rights()) {
    box->SetOn(false);
    box->SetEnabled(false);
  }
  for (Button* button : {&Command1, &Command7, &Command8, &Command9}) button->SetEnabled(false);
}

void frmuser::OfferRights() {
  for (CheckBox* box : Rights()) box->SetEnabled(true);
  for (Button* button : {&Command1, &Command7, &Command8, &Command9}) button->SetEnabled(true);
}

void frmuser::TickDataEntry() {
  TickEach(m1, true);
}

void frmuser::TickReports() {
  TickEach(m2, true);
}

void frmuser::TickMasters() {
  TickEach(m3, true);
}

void frmuser::TickAll() {
  TickDataEntry();
  TickReports();
  TickMasters();
}

void frmuser::TickForGuest() {
  TickReports();
  TickEach(m1, false);
  TickEach(m3, false);
}

std::vector<CheckBox*> frmuser::Rights() {
  std::vector<CheckBox*> boxes;
  for (CheckBox& box : m1) boxes.push_back(&box);
  for (CheckBox& box : m2) boxes.push_back(&box);
  for (CheckBox& box : m3) boxes.push_back(&box);
  return boxes;
}

void frmuser::FillUsers() {
  Recordset users = database().Execute(sql("Select User_Name from User_Master order by User_Name"));
  if (users.Eof()) return;
  Combo1.Clear();
  for (; !users.Eof(); users.MoveNext()) Combo1.AddItem(Trim(users["User_Name"]));
}

frmuser::Known frmuser::CheckUser() {
  const bool is_new =
      database().Execute(sql("Select * from User_Master where User_Name=", quoted(Combo1))).Eof();
  return is_new ? Known::kNew : Known::kDuplicate;
}

void frmuser::CreateUser() {
  database().Execute(
      sql("insert into user_master(user_name,password) values(", quoted(Combo1), ",", quoted(Text2), ")"));
  Tell(machine(), {"New User Created !", "OVD", MessageIcon::kInformation});
}

void frmuser::ChangePassword() {
  database().Execute(
      sql("Update User_Master set password=", quoted(Text2), " where User_Name=", quoted(Combo1)));
  Tell(machine(), {"Password Successfully Changed !", "OVD", MessageIcon::kInformation});
}

void frmuser::SaveRights() {
  for (const CheckBox* box : Rights()) {
    if (!box->on()) continue;
    const std::string code = GetUserCode();
    database().Execute(
        sql("insert into User_Rights values(", bare(code), ",", quoted(box->full_name()), ")"));
  }
}

void frmuser::UpdateRights() {
  database().Execute(sql("Delete from User_Rights where User_Code=", bare(GetUserCode())));
  SaveRights();
  Tell(machine(), {"User Rights Successfully Updated !", "OVD", MessageIcon::kInformation});
}

std::string frmuser::GetUserCode() {
  const Recordset user =
      database().Execute(sql("Select User_Code from User_Master where User_Name=", quoted(Combo1)));
  return user.Eof() ? std::string() : Trim(user["User_Code"]);
}

}  // namespace ovindra
