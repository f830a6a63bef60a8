// The main window's own controls: menu items, which may form control arrays and stand in a menu, and the
// status bar.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/controls/control.h"
#include "base/controls/form.h"

namespace ovindra {

/// The keys that choose a menu item, as in "Ctrl+E" or "F1"; empty for none.
struct Shortcut {
  std::string_view keys;
};

class MenuItem : public Control {
 public:
  MenuItem(Form& form, std::string_view name, std::string_view caption) : Control(form, name, caption) {}
  MenuItem(Form& form, MenuItem& menu, std::string_view name, int index, std::string_view caption,
           Shortcut shortcut)
      : Control(form, nullptr, name, caption, index), menu_(&menu), shortcut_(shortcut.keys) {}

  bool TakesFocus() const override { return false; }

  /// The menu that the item stands in; null for a title of the menu bar.
  const MenuItem* menu() const { return menu_; }
  const std::string& shortcut() const { return shortcut_; }

 private:
  MenuItem* menu_ = nullptr;
  std::string shortcut_;
};

/// What a panel of a status bar shows by itself.
enum class PanelKind { kText, kCapsLock, kNumLock, kDate, kTime };

class StatusBar : public Control {
 public:
  struct Panel {
    PanelKind kind;
    std::string text;
  };

  StatusBar(Container& container, std::string_view name, std::vector<Panel> panels)
      : Control(container, name, ""), panels_(std::move(panels)) {}

  bool TakesFocus() const override { return false; }

  const std::vector<Panel>& panels() const { return panels_; }

 private:
  std::vector<Panel> panels_;
};

}  // namespace ovindra
