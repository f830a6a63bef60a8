// What all report forms share: the sheet they write, the period they read, and the actions Print, Export,
// Close and F8. A report form declares its own controls and tells this one which of them play these parts.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/dates.h"
#include "base/controls/form.h"
#include "core/startup/module1.h"
#include "reports/report_title.h"
#include "reports/sheet.h"

namespace ovindra {

/// A period as statements hold it: month first, whatever the machine's date form.
struct Period {
  std::string from;
  std::string to;
};

/// What a Print action does before it prints.
struct PrintSettings {
  bool without_headings = false;
  bool without_side_margins = false;
  bool without_any_margin = false;
  bool centred = false;
  std::string_view footer = {};
};

class ReportForm : public Form {
 protected:
  ReportForm(Module1& module, std::string_view name, std::string_view caption, ReportSheet& sheet);
  /// The hourglass that an error has left goes with the form.
  ~ReportForm() override;

  /// The pickers whose dates the report covers, for a form that has them.
  void UsePeriod(DatePicker& from, DatePicker& to);

  /// Sets the pickers to today.
  void SetPeriodToToday();
  Period ReadPeriod() const;

  /// Writes the form's title block; what was chosen stands in it where its line names it.
  void printtitleinsheet(std::string_view selection = {}, std::string_view place = {});

  /// The first of the empty choices is told with its message, takes the focus, and makes the answer false.
  struct Required {
    const TextControl& choice;
    Message message;
    Control& focus;
  };
  bool CheckSelections(std::initializer_list<Required> required);

  void ShowHourglass();
  void ShowDefaultPointer();

  /// Prints the sheet, once the person has chosen a printer.
  void PrintSheet(const PrintSettings& settings);
  /// The same behind a copy of the workbook at that path, which is overwritten without asking.
  void PrintWithCopy(std::string_view path);
  /// Asks for a name and saves the sheet there. A cancelled dialog gives an empty name, which can't be
  /// written.
  void ExportSheet();

  /// The letter of a location's name, with which its children's enroll numbers begin. A name that is no
  /// location's is error 3021.
  std::string LocationCode(const TextControl& location_name);

  /// Shows the controls when the first of them is hidden, else hides them.
  static void Toggle(std::initializer_list<Control*> controls);

  Sheet sheet() { return Sheet(sheet_); }
  const Workbook& workbook() const { return sheet_.workbook(); }
  Connection& database() { return module_.ScreeningConnection; }
  Connection& hospital() { return module_.HospitalConnection; }
  Module1& module() { return module_; }

 private:
  Module1& module_;
  ReportSheet& sheet_;
  DatePicker* from_ = nullptr;
  DatePicker* to_ = nullptr;
  bool waits_ = false;
};

}  // namespace ovindra
