// What a person sees, as the controls have it.
#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/dates.h"
#include "base/controls/grid.h"
#include "base/controls/list_box.h"
#include "base/controls/menu.h"
#include "base/controls/report_sheet.h"
#include "base/controls/shown.h"
#include "base/controls/tabs.h"
#include "base/controls/text_control.h"
#include "tools/driver/controls/controls_player.h"
#include "tools/driver/world/world.h"

namespace ovindra::driver {
namespace {

const ListItems& ItemsOf(const Control& control) {
  if (const auto* list = dynamic_cast<const ListBox*>(&control)) return list->items();
  return dynamic_cast<const ComboBox&>(control).items();
}

/// The time as the status bar shows it: "10:15 AM".
std::string TimeText(Moment moment) {
  constexpr long kMinutesInHour = 60;
  constexpr long kHoursInHalf = 12;
  const long minutes = std::chrono::floor<std::chrono::minutes>(moment - StartOf(DayOf(moment))).count();
  const long hour = minutes / kMinutesInHour;
  const long minute = minutes % kMinutesInHour;
  const long shown = hour % kHoursInHalf == 0 ? kHoursInHalf : hour % kHoursInHalf;
  return std::to_string(shown) + (minute < 10 ? ":0" : ":") + std::to_string(minute) +
         (hour < kHoursInHalf ? " AM" : " PM");
}

}  // namespace

bool ControlsPlayer::IsOpen(std::string_view form) {
  return !program_->has_ended() && program_->OpenForm(form) != nullptr;
}

std::string ControlsPlayer::FormCaption(std::string_view form) {
  return FormOf(form).caption();
}

std::string ControlsPlayer::FocusedControl(std::string_view form) {
  const Control* focused = FormOf(form).focused();
  return focused == nullptr ? std::string() : focused->full_name();
}

bool ControlsPlayer::IsEnabled(const ControlName& name) {
  return Find(name).IsEnabledNow();
}

bool ControlsPlayer::IsVisible(const ControlName& name) {
  return Find(name).IsVisibleNow();
}

bool ControlsPlayer::IsOn(const ControlName& name) {
  const Control& control = Find(name);
  if (const auto* option = dynamic_cast<const OptionButton*>(&control)) return option->on();
  return dynamic_cast<const CheckBox&>(control).on();
}

std::string ControlsPlayer::Text(const ControlName& name) {
  const Control& control = Find(name);
  if (const auto* box = dynamic_cast<const TextControl*>(&control)) return box->text();
  if (const auto* list = dynamic_cast<const ListBox*>(&control)) return list->text();
  if (const auto* picker = dynamic_cast<const DatePicker*>(&control)) return MonthFirst(picker->value());
  if (const auto* calendar = dynamic_cast<const MonthView*>(&control)) return MonthFirst(calendar->value());
  if (const auto* tabs = dynamic_cast<const TabStrip*>(&control)) return tabs->selected_caption();
  if (const auto* picture = dynamic_cast<const PictureBox*>(&control)) return picture->picture();
  if (dynamic_cast<const Grid*>(&control) != nullptr)
    throw StepFailure("a text of " + name.control, "a grid has rows");
  return control.caption();
}

std::string ControlsPlayer::LabelBeside(const ControlName& name) {
  return Find(name).caption();
}

std::string ControlsPlayer::PanelText(const ControlName& bar, int panel) {
  const auto& panels = dynamic_cast<const StatusBar&>(Find(bar)).panels();
  const StatusBar::Panel& shown = panels[static_cast<std::size_t>(panel)];
  const Moment now = world_->machine().services().clock.Now();
  switch (shown.kind) {
    case PanelKind::kDate:
      return ShortDate(DayOf(now));
    case PanelKind::kTime:
      return TimeText(now);
    default:
      return shown.text;
  }
}

std::vector<std::string> ControlsPlayer::Items(const ControlName& name) {
  std::vector<std::string> texts;
  for (const ListItems::Item& item : ItemsOf(Find(name)).all()) texts.push_back(item.text);
  return texts;
}

int ControlsPlayer::GridRows(const ControlName& name) {
  return dynamic_cast<const Grid&>(Find(name)).rows();
}

std::vector<std::string> ControlsPlayer::GridRow(const ControlName& name, int row) {
  return dynamic_cast<const Grid&>(Find(name)).RowAt(row);
}

SeenCell ControlsPlayer::SheetCell(const ControlName& name, int row, int column) {
  const Workbook& workbook = dynamic_cast<const ReportSheet&>(Find(name)).workbook();
  return {std::string(workbook.Text(row, column)), workbook.Style(row, column)};
}

int ControlsPlayer::SheetColumnWidth(const ControlName& name, int column) {
  return dynamic_cast<const ReportSheet&>(Find(name)).workbook().ColumnWidth(column);
}

}  // namespace ovindra::driver
