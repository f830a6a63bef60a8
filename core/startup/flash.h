// The splash window, the first object that runs: the credit line moves through it for some five seconds, then
// it unloads, which opens the connections and shows the login window.
#pragma once

#include "base/controls/form.h"
#include "base/controls/shown.h"
#include "core/startup/module1.h"

namespace ovindra {

class frmflash : public Form {
 public:
  explicit frmflash(Module1& module);

 private:
  Label Label1{*this, "Label1", "Ovindra Desk"};
  Label Label2{*this, "Label2", "Prepared By :- Orvel Tann"};
  Label Label3{*this, "Label3", "Lanvik Eye Institute"};
  Label Label8{*this, "Label8", "Version 1.1"};
  Timer Timer1{*this, "Timer1", 100};
  Timer Timer2{*this, "Timer2", 1000};

  void OnLoad();
  void MoveCreditLine();
  void FlipTitleColour();
  void OnUnload();

  Module1& module_;
};

}  // namespace ovindra
