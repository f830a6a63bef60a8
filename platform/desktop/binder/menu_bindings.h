// The main window's own controls: menu items, which become actions of its menu bar, and the status bar. A
// menu item takes no focus and runs no step of the form that has it.
#pragma once

#include <QAction>
#include <QLabel>
#include <QStatusBar>
#include <QTimer>
#include <vector>

#include "base/controls/menu.h"
#include "platform/desktop/binder/binding.h"

namespace ovindra::desktop {

class MenuBinding : public Binding {
 public:
  MenuBinding(FormView& view, MenuItem& item, QAction& action);

  void Show(Aspects aspects) override;

 private:
  MenuItem& item_;
  QAction& action_;
};

/// Puts the item at the end of its menu, a title at the end of the menu bar, as an action named like a
/// widget. Null when the form's file has no menu bar.
Binding* MakeMenuBinding(FormView& view, MenuItem& item);

/// The panels of a status bar. The lock keys are asked of the machine, date and time of the form's clock.
class StatusBarBinding : public WidgetBinding {
 public:
  StatusBarBinding(FormView& view, StatusBar& control, QStatusBar& bar);

  void Show(Aspects aspects) override;

 private:
  void Refresh();
  QString Text(const StatusBar::Panel& panel) const;

  StatusBar& control_;
  std::vector<QLabel*> panels_;
  QTimer clock_;
};

}  // namespace ovindra::desktop
