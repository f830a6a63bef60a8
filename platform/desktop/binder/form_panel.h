// The panel that a form's widgets stand on, the outermost widget of its file. It turns the Tab key, wherever
// it is pressed among them, into a step of the form, and takes the focus when no control has it. It belongs
// to its window; it does nothing once its view is gone.
#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/desktop/binder/form_view.h"

namespace ovindra::desktop {

class FormPanel : public QWidget {
 public:
  using QWidget::QWidget;

  void SetView(FormView& view) { view_ = &view; }

 protected:
  bool focusNextPrevChild(bool next) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QPointer<FormView> view_;
};

}  // namespace ovindra::desktop
