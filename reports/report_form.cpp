#include "reports/report_form.h"

#include <cassert>

#include "core/entry/lookups.h"
#include "core/entry/standard_dialogs.h"

namespace ovindra {

ReportForm::ReportForm(Module1& module, std::string_view name, std::string_view caption, ReportSheet& sheet)
    : Form(module.machine, name, caption), module_(module), sheet_(sheet) {}

ReportForm::~ReportForm() {
  if (waits_) machine().pointer.Set(PointerShape::kDefault);
}

void ReportForm::ShowHourglass() {
  waits_ = true;
  machine().pointer.Set(PointerShape::kHourglass);
}

void ReportForm::ShowDefaultPointer() {
  waits_ = false;
  machine().pointer.Set(PointerShape::kDefault);
}

void ReportForm::UsePeriod(DatePicker& from, DatePicker& to) {
  from_ = &from;
  to_ = &to;
}

void ReportForm::SetPeriodToToday() {
  for (DatePicker* picker : {from_, to_}) picker->SetValue(machine().clock.Today());
}

Period ReportForm::ReadPeriod() const {
  assert(from_ != nullptr && to_ != nullptr);
  return {MonthFirst(from_->value()), MonthFirst(to_->value())};
}

void ReportForm::printtitleinsheet(std::string_view selection, std::string_view place) {
  const std::string from = from_ == nullptr ? "" : ShortDate(from_->value());
  const std::string to = to_ == nullptr ? "" : ShortDate(to_->value());
  Sheet title = sheet();
  WriteReportTitle(title, name(), {from, to, selection, place});
}

bool ReportForm::CheckSelections(std::initializer_list<Required> required) {
  for (const Required& one : required) {
    if (!one.choice.trimmed().empty()) continue;
    Tell(machine(), one.message);
    one.focus.SetFocus();
    return false;
  }
  return true;
}

void ReportForm::PrintSheet(const PrintSettings& settings) {
  PageSetup& page = sheet_.Edit().page_setup;
  if (settings.without_any_margin || settings.without_side_margins) page.left_margin = page.right_margin = 0;
  if (settings.without_any_margin) page.top_margin = page.bottom_margin = 0;
  page.grid_lines = false;
  if (settings.without_headings) page.headings = false;
  if (settings.centred) page.centred = true;
  page.footer = settings.footer;
  if (machine().dialogs.AskPrinter()) machine().printer.Print(workbook());
}

void ReportForm::PrintWithCopy(std::string_view path) {
  machine().workbook_files.Write(workbook(), path);
  PrintSheet({.without_headings = true});
}

void ReportForm::ExportSheet() {
  machine().workbook_files.Write(workbook(), machine().dialogs.AskSaveName());
}

std::string ReportForm::LocationCode(const TextControl& location_name) {
  return CodeOf(database(), lookup::kLocation, location_name);
}

void ReportForm::Toggle(std::initializer_list<Control*> controls) {
  const bool show = !(*controls.begin())->visible();
  for (Control* control : controls) control->SetVisible(show);
}

}  // namespace ovindra
