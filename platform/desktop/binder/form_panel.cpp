#include "platform/desktop/binder/form_panel.h"

#include <QKeyEvent>

namespace ovindra::desktop {

bool FormPanel::focusNextPrevChild(bool next) {
  // Qt calls this too when a widget with the focus is hidden or disabled; the form has seen to that itself.
  if (view_ == nullptr || view_->IsShowing() || !isVisible()) return false;
  view_->UserTab(!next);
  return true;
}

void FormPanel::keyPressEvent(QKeyEvent* event) {
  if (view_ != nullptr && hasFocus()) view_->UserKeyOnForm(*event);
  QWidget::keyPressEvent(event);
}

}  // namespace ovindra::desktop
