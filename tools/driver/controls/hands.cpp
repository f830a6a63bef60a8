// What a person does, on the controls themselves.
#include <algorithm>

#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/dates.h"
#include "base/controls/grid.h"
#include "base/controls/list_box.h"
#include "base/controls/tabs.h"
#include "base/controls/text_box.h"
#include "base/text/utf8.h"
#include "tools/driver/controls/controls_player.h"
#include "tools/driver/key_for.h"

namespace ovindra::driver {
namespace {

void PressWhereTheFocusIs(Form& form, Key key) {
  if (form.focused() != nullptr) {
    form.focused()->UserKey(key);
  } else if (key.name != KeyName::kCharacter) {
    form.key_down.Fire(key.name);
  }
}

int IndexOf(const ListItems& items, const std::string& list, std::string_view entry) {
  const auto index = items.IndexOf(entry);
  if (!index) {
    throw StepFailure("an entry \"" + std::string(entry) + "\" in " + list,
                      std::to_string(items.count()) + " entries without it");
  }
  return *index;
}

}  // namespace

template <typename Kind>
Kind& ControlsPlayer::FindAs(const ControlName& name) const {
  return dynamic_cast<Kind&>(Find(name));
}

void ControlsPlayer::Click(const ControlName& name) {
  Control& control = Find(name);
  Act(control, [&] { control.UserClick(); });
}

void ControlsPlayer::DoubleClick(const ControlName& name) {
  Control& control = Find(name);
  Act(control, [&] {
    auto* list = dynamic_cast<ListBox*>(&control);
    if (list != nullptr && list->list_index() != ListItems::kNone) {
      list->UserDoubleClick(list->list_index());
    } else {
      control.double_click.Fire();
    }
  });
}

void ControlsPlayer::ClickCell(const ControlName& name, int row, int column) {
  auto& grid = FindAs<Grid>(name);
  Act(grid, [&] { grid.UserClickCell(row, column); });
}

void ControlsPlayer::DoubleClickCell(const ControlName& name, int row, int column) {
  auto& grid = FindAs<Grid>(name);
  Act(grid, [&] { grid.UserDoubleClickCell(row, column); });
}

void ControlsPlayer::MoveToCell(const ControlName& name, int row, int column) {
  auto& grid = FindAs<Grid>(name);
  Act(grid, [&] { grid.UserMoveTo(row, column); });
}

void ControlsPlayer::Focus(const ControlName& name) {
  Act(Find(name), [] {});
}

void ControlsPlayer::Leave(const ControlName& name) {
  Control& control = Find(name);
  Act(control, [&] { control.form().UserLeave(control); });
}

/// Each key is an action of its own and goes to wherever the focus is by then, as on a keyboard.
void ControlsPlayer::Type(const ControlName& name, std::string_view text) {
  Control& control = Find(name);
  Form& form = control.form();
  bool came_to_rest = false;
  Act(control, [&] { came_to_rest = control.HasFocus(); });
  if (!came_to_rest) return;
  for (const char32_t character : Characters(text)) {
    if (program_->OpenForm(name.form) != &form) return;
    program_->Perform([&] { PressWhereTheFocusIs(form, KeyFor(character)); });
  }
}

void ControlsPlayer::Paste(const ControlName& name, std::string_view text) {
  auto& box = FindAs<TextControl>(name);
  Act(box, [&] {
    const auto* text_box = dynamic_cast<TextBox*>(&box);
    const bool replaces = text_box != nullptr && text_box->is_selected();
    box.UserEdit((replaces ? std::string() : box.text()) + std::string(text));
  });
}

void ControlsPlayer::Clear(const ControlName& name) {
  auto& box = FindAs<TextControl>(name);
  Act(box, [&] {
    if (auto* text_box = dynamic_cast<TextBox*>(&box)) {
      text_box->SelectAll();
      text_box->UserKey({KeyName::kDelete});
    } else {
      box.UserEdit({});
    }
  });
}

void ControlsPlayer::Press(const ControlName& name, Key key) {
  Control& control = Find(name);
  Act(control, [&] { control.UserKey(KeyFor(key)); });
}

void ControlsPlayer::PressOnForm(std::string_view form, Key key) {
  Form& pressed = FormOf(form);
  program_->Perform([&] { PressWhereTheFocusIs(pressed, KeyFor(key)); });
}

void ControlsPlayer::Pick(const ControlName& name, std::string_view entry) {
  Control& control = Find(name);
  Act(control, [&] {
    if (auto* list = dynamic_cast<ListBox*>(&control)) {
      list->UserPick(IndexOf(list->items(), name.control, entry));
    } else {
      auto& combo = dynamic_cast<ComboBox&>(control);
      combo.UserPick(IndexOf(combo.items(), name.control, entry));
    }
  });
}

void ControlsPlayer::Choose(const ControlName& name) {
  Click(name);
}

void ControlsPlayer::Tick(const ControlName& name, bool on) {
  auto& check = FindAs<CheckBox>(name);
  Act(check, [&] {
    if (check.on() != on) check.UserClick();
  });
}

void ControlsPlayer::SelectTab(const ControlName& name, std::string_view caption) {
  auto& tabs = FindAs<TabStrip>(name);
  Act(tabs, [&] {
    const auto& captions = tabs.captions();
    const auto tab = std::find(captions.begin(), captions.end(), caption);
    if (tab == captions.end())
      throw StepFailure("a tab \"" + std::string(caption) + "\" of " + name.control, "no such tab");
    tabs.UserSelect(static_cast<int>(tab - captions.begin()));
  });
}

void ControlsPlayer::SetDate(const ControlName& name, Date date) {
  auto& picker = FindAs<DatePicker>(name);
  Act(picker, [&] { picker.UserSetDate(date); });
}

void ControlsPlayer::ClickDay(const ControlName& name, Date date) {
  auto& calendar = FindAs<MonthView>(name);
  Act(calendar, [&] { calendar.UserClickDay(date); });
}

void ControlsPlayer::CloseWindow(std::string_view form) {
  Form& closed = FormOf(form);
  program_->Perform([&] { program_->UserClose(closed); });
}

}  // namespace ovindra::driver
