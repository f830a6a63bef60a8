// The window that shows a form: the main window, a child window in its work area, or a window of its own (the
// splash, the login, any form while there is no main window). What kind it is the form's file says: its
// outermost widget is a QMainWindow, or its property `window` is "splash" or "alone". Closing the window by
// its frame closes nothing by itself; the form decides.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>

#include "platform/desktop/binder/form_view.h"
#include "platform/desktop/windows/backdrop_area.h"

namespace ovindra::desktop {

class FormWindow : public QObject {
 public:
  /// `main_size` is the size of the main window, which fills the screen when it is empty.
  FormWindow(Form& form, const Perform& perform, const ViewSettings& settings, QSize main_size,
             std::function<void(Form&)> close);
  ~FormWindow() override;

  FormView& view() { return view_; }
  Form& form() const { return view_.form(); }

  /// The window on the screen; null before it was first shown.
  QWidget* window() const { return window_; }
  /// The work area, where this is the main window.
  BackdropArea* area() const;

  /// Brings the window up, as a child of the area where there is one and the form is one for it.
  void Show(BackdropArea* area);
  /// The form is gone: so is the window.
  void Retire();

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void MakeWindow(BackdropArea* area);
  void MakeChild(BackdropArea& area);
  void ShowAlone(const QString& kind);

  FormView view_;
  QSize main_size_;
  std::function<void(Form&)> close_;
  QPointer<QWidget> window_;
};

}  // namespace ovindra::desktop
