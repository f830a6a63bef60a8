// A report sheet tied to the view that shows it. The view reads the control's own workbook, which is shown
// anew once an action has ended; while a text is looked for, the bar has the control's focus.
#pragma once

#include <QPointer>

#include "base/controls/report_sheet.h"
#include "platform/desktop/binder/binding.h"
#include "platform/desktop/binder/sheet_model.h"
#include "platform/desktop/binder/sheet_view.h"

namespace ovindra::desktop {

class SheetBinding : public WidgetBinding {
 public:
  SheetBinding(FormView& view, ReportSheet& sheet, SheetView& shown);

  QWidget& focus_widget() const override;
  void Show(Aspects aspects) override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  bool KeyPressed(QKeyEvent& event) override;
  void MousePressed() override;

 private:
  void FindBarOpened();
  void FindBarClosed();

  ReportSheet& sheet_;
  SheetView& shown_;
  SheetModel model_;
  std::optional<std::uint64_t> shown_revision_;
  bool is_finding_ = false;
  QPointer<QWidget> find_edit_;
  /// What had the focus before a text was looked for.
  WidgetBinding* before_ = nullptr;
};

}  // namespace ovindra::desktop
