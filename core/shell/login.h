// The login window, the only door into the system: it checks name and password against the users, switches on
// what the user may open and makes way for the main window.
#pragma once

#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/form.h"
#include "base/controls/shown.h"
#include "base/controls/text_box.h"
#include "core/startup/module1.h"

namespace ovindra {

class frmlogin : public Form {
 public:
  explicit frmlogin(Module1& module);

 private:
  ComboBox Combo1{*this, "Combo1", "User Name", DropDownList};
  TextBox Text1{*this, "Text1", "Password", PasswordCharacter{'$'}};
  Button Command1{*this, "Command1", "&Ok"};
  Button Command2{*this, "Command2", "Ca&ncel"};
  PictureBox pickey{*this, "pickey"};
  Timer Timer1{*this, "Timer1", 0};

  void OnLoad();
  void OnActivate();
  void TurnKey();
  void LogIn();
  void Cancel();

  Module1& module_;
  int key_count_ = 0;
};

}  // namespace ovindra
