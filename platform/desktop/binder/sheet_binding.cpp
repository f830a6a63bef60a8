#include "platform/desktop/binder/sheet_binding.h"

#include <QHeaderView>
#include <QKeyEvent>

#include "platform/desktop/binder/form_view.h"
#include "platform/desktop/binder/keys.h"

namespace ovindra::desktop {

SheetBinding::SheetBinding(FormView& view, ReportSheet& sheet, SheetView& shown)
    : WidgetBinding(view, sheet, shown), sheet_(sheet), shown_(shown), model_(sheet.workbook()) {
  shown.SetModel(model_);
  // Dragging a column is no step in the form.
  for (QHeaderView* header : {shown.horizontalHeader(), shown.verticalHeader()}) {
    header->removeEventFilter(this);
    header->viewport()->removeEventFilter(this);
  }
  connect(&shown, &SheetView::FindBarOpened, this, &SheetBinding::FindBarOpened);
  connect(&shown, &SheetView::FindBarClosed, this, &SheetBinding::FindBarClosed);
}

QWidget& SheetBinding::focus_widget() const {
  return is_finding_ ? static_cast<QWidget&>(shown_.find_bar()->edit()) : shown_;
}

void SheetBinding::Show(Aspects aspects) {
  WidgetBinding::Show(aspects);
  if (!Has(aspects, Aspect::kItems) || shown_revision_ == sheet_.workbook().revision()) return;
  shown_revision_ = sheet_.workbook().revision();
  shown_.ShowWorkbook();
}

void SheetBinding::FindBarOpened() {
  if (!is_finding_) {
    const Control* focused = view().form().focused();
    before_ = focused == nullptr ? nullptr : view().BindingOf(*focused);
    find_edit_ = &shown_.find_bar()->edit();
    find_edit_->installEventFilter(this);
  }
  is_finding_ = true;
  view().UserFocus(*this, FocusBy::kKeyboard);
  view().ShowFocus();
}

void SheetBinding::FindBarClosed() {
  is_finding_ = false;
  WidgetBinding* before = std::exchange(before_, nullptr);
  if (before != nullptr && before != this && before->control().CanAct()) {
    view().UserFocus(*before, FocusBy::kKeyboard);
  }
  view().ShowFocus();
}

void SheetBinding::MousePressed() {
  is_finding_ = false;
  before_ = nullptr;
  view().ShowFocus();
}

bool SheetBinding::eventFilter(QObject* watched, QEvent* event) {
  // The view itself may be going while its parts still send events.
  const bool in_bar = find_edit_ != nullptr && watched == find_edit_;
  if (!in_bar) return WidgetBinding::eventFilter(watched, event);
  if (view().IsRetired()) return false;
  if (event->type() == QEvent::FocusIn && !view().IsShowing()) {
    is_finding_ = true;
    view().UserFocus(*this, FocusBy::kMouse);
  }
  return false;
}

bool SheetBinding::KeyPressed(QKeyEvent& event) {
  const auto key = KeyOf(event);
  if (!key || key->name == KeyName::kTab) return false;
  if (key->name == KeyName::kCharacter) return WidgetBinding::KeyPressed(event);
  // The cursor keys are the view's, but the form sees them first.
  return !Act([&] { control().UserKeyDown(key->name); });
}

}  // namespace ovindra::desktop
