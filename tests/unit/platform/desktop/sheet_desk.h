// A form with a report sheet on the screen, and a report to show on it. Offscreen.
#pragma once

#include <memory>

#include "base/controls/buttons.h"
#include "base/controls/form.h"
#include "base/controls/report_sheet.h"
#include "desk.h"
#include "platform/desktop/binder/binding.h"
#include "platform/desktop/binder/form_view.h"
#include "platform/desktop/binder/sheet_view.h"

namespace ovindra::desktop {

/// A title, a heading row with borders, `rows` rows of texts and numbers below it from row 6 on, all in the
/// fonts and colours of reports.
void WriteReport(Workbook& workbook, int rows, int columns);

class frmsheet : public Form {
 public:
  explicit frmsheet(Machine& machine) : Form(machine, "frmsheet", "Report") {}

  Button Command1{*this, "Command1", "&Get"};
  Button Command2{*this, "Command2", "&Print"};
  ReportSheet F1Book1{*this, "F1Book1"};
};

class SheetDesk {
 public:
  SheetDesk();
  ~SheetDesk();

  frmsheet& form() { return form_; }
  SheetView& sheet();
  QWidget& root() { return *view_->root(); }
  QWidget& WidgetOf(Control& control) { return view_->BindingOf(control)->widget(); }
  /// Runs something on the form as its own code would, and shows it.
  void Do(const std::function<void()>& action);
  void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  void Type(const QString& text);

 private:
  NoOffice office_;
  Desktop desktop_;
  frmsheet form_;
  std::unique_ptr<FormView> view_;
};

}  // namespace ovindra::desktop
