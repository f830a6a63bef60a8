// The main window: menus whose items open the work forms inside it, the calculator, the way out, and the
// status bar.
#pragma once

#include <deque>

#include "base/controls/form.h"
#include "base/controls/menu.h"
#include "core/startup/module1.h"

namespace ovindra {

class MDIForm1 : public Form {
 public:
  explicit MDIForm1(Module1& module);

 private:
  MenuItem MNUDATA_ENTRY{*this, "MNUDATA_ENTRY", "DATA &ENTRY"};
  MenuItem MNUREPORT{*this, "MNUREPORT", "&REPORT"};
  MenuItem MNUMASTER{*this, "MNUMASTER", "&MASTER"};
  MenuItem MNUHELP{*this, "MNUHELP", "&HELP"};
  MenuItem MNUEXIT{*this, "MNUEXIT", "E&XIT"};
  /// The arrays m1 to m4, each item in its menu.
  std::deque<MenuItem> items_;
  StatusBar StatusBar1{*this,
                       "StatusBar1",
                       {{PanelKind::kCapsLock, "CAPS"},
                        {PanelKind::kNumLock, "NUM"},
                        {PanelKind::kText, "Prepared By :- Orvel Tann"},
                        {PanelKind::kDate, ""},
                        {PanelKind::kTime, ""}}};

  void MakeItems();
  void StartCalculator();
  void Exit();
  void CloseByFrame(bool& keep);

  Module1& module_;
};

}  // namespace ovindra
