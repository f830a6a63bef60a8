// The users, their passwords and their rights: which items of the main window's menus each may open. A right
// is a row with the name of a check box, which is that of the menu item. No step carries the error tail, and
// nothing ties the statements of one step together.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/form.h"
#include "base/controls/frame.h"
#include "base/controls/shown.h"
#include "base/controls/tabs.h"
#include "base/controls/text_box.h"
#include "core/shell/rights.h"
#include "core/startup/module1.h"

namespace ovindra {

class frmuser : public Form {
 public:
  explicit frmuser(Module1& module);

 private:
  /// A member of one of the three groups of rights.
  struct Right : CheckBox {
    Right(Container& container, std::string_view group, int index, std::string_view caption)
        : CheckBox(container, group, index, caption) {}
  };

  TabStrip TabStrip1{*this, "TabStrip1", {"User", "Rights"}};
  Frame Frame1{*this, "Frame1", "Create User"};
  ComboBox Combo1{Frame1, "Combo1", "User Name", DropDownCombo, Disabled};
  Label Label2{Frame1, "Label2", "Password"};
  TextBox Text2{Frame1, "Text2", "Password", MaxLength{10}, PasswordCharacter{'&'}};
  // How users are made and given rights.
  Label Text1{Frame1, "Text1", ""};
  Frame Frame2{*this, "Frame2", "User Rights", Hidden};
  Right m1[5]{{Frame2, "m1", 0, "Enrolled Child"},
              {Frame2, "m1", 1, "Screened Child"},
              {Frame2, "m1", 2, "Child Record"},
              {Frame2, "m1", 3, "Screened School"},
              {Frame2, "m1", 4, "OS Camp"}};
  Button Command9{Frame2, "Command9", "All"};
  Right m2[11]{{Frame2, "m2", 0, "List of Trained Person"}, {Frame2, "m2", 1, "Referred Children"},
               {Frame2, "m2", 2, "Spectacle Prescribed"},   {Frame2, "m2", 3, "Enroll Report"},
               {Frame2, "m2", 4, "Defected Children"},      {Frame2, "m2", 5, "Consolidation Report"},
               {Frame2, "m2", 6, "Enroll Child List"},      {Frame2, "m2", 7, "Screened Child List"},
               {Frame2, "m2", 8, "Spectacle Power"},        {Frame2, "m2", 9, "Sankul Wise Report"},
               {Frame2, "m2", 10, "Missed Child"}};
  Button Command1{Frame2, "Command1", "All"};
  Right m3[12]{{Frame2, "m3", 0, "Country Master"},   {Frame2, "m3", 1, "State Master"},
               {Frame2, "m3", 2, "District Master"},  {Frame2, "m3", 3, "Block Master"},
               {Frame2, "m3", 4, "Screening Center"}, {Frame2, "m3", 5, "Trained Person"},
               {Frame2, "m3", 6, "Diagnosis Master"}, {Frame2, "m3", 7, "User Master"},
               {Frame2, "m3", 8, "Vision Center"},    {Frame2, "m3", 9, "Anganwadi Center"},
               {Frame2, "m3", 10, "School Master"},   {Frame2, "m3", 11, "Sankul Master"}};
  Button Command7{Frame2, "Command7", "All"};
  Button Command2{Frame2, "Command2", "&Admin"};
  Button Command3{Frame2, "Command3", "&Guest"};
  Button Command8{Frame2, "Command8", "&Select All Rights"};
  Button cmdnew{*this, "cmdnew", "&New"};
  Button cmdedit{*this, "cmdedit", "&Edit"};
  Button cmdchange{*this, "cmdchange", "Change Password"};
  Button cmdok{*this, "cmdok", "&Ok"};
  Button cmdcancel{*this, "cmdcancel", "Ca&ncel"};
  Button cmdexit{*this, "cmdexit", "&Exit"};

  enum class Known { kNew, kDuplicate };

  void OnLoad();
  void New();
  void Change();
  void Edit();
  void Ok();
  void Cancel();
  void PressInUserName(KeyPress& press);
  void TurnToTab();
  void TickDataEntry();
  void TickReports();
  void TickMasters();
  void TickAll();
  void TickForGuest();

  void BeginMode();
  void OfferModes();
  void ShowPassword();
  void HidePassword();
  void ShowPage(const Frame& page);
  void TurnToRights();
  void TickRightsOfUser();
  void ClearRights();
  void OfferRights();
  bool IsMissing(TextControl& field, std::string_view message);
  void Refuse(std::string_view text);
  std::vector<CheckBox*> Rights();
  CheckBox& BoxOf(const MenuRight& right);

  void FillUsers();
  Known CheckUser();
  void CreateUser();
  void ChangePassword();
  void SaveRights();
  void UpdateRights();
  std::string GetUserCode();

  Connection& database() { return module_.ScreeningConnection; }

  Module1& module_;
  bool NewMode = false;
  bool EditMode = false;
  bool ChangeMode = false;
};

}  // namespace ovindra
