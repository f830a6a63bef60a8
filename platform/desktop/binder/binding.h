// What ties one control to what shows it. A binding shows the control's changes when its view asks it to, and
// hands a person's actions to the control, inside an action of the program. The view owns its bindings; when
// the form is unloaded they stay until the event loop has come round, but no longer touch the control.
#pragma once

#include <QEvent>
#include <QLabel>
#include <QObject>
#include <QWidget>
#include <functional>

#include "base/controls/control.h"

class QKeyEvent;

namespace ovindra::desktop {

class FormView;

/// Several of the aspects of a control, or-ed.
using Aspects = unsigned;
inline constexpr Aspects kAllAspects = ~0U;

inline bool Has(Aspects aspects, Aspect aspect) {
  return (aspects & static_cast<Aspects>(aspect)) != 0;
}

/// A control tied to something that may be no widget: a menu item, a timer.
class Binding : public QObject {
 public:
  Binding(FormView& view, Control& control);

  Control& control() const { return control_; }

  /// Brings what is shown into line with the control.
  virtual void Show(Aspects aspects) = 0;

  /// The aspects that have changed since they were last shown; gives and forgets them.
  Aspects TakePending();
  bool IsPending() const { return pending_ != 0; }
  void Mark(Aspects aspects) { pending_ |= aspects; }

 protected:
  FormView& view() const { return view_; }

  /// Runs a person's action. What the control shows is shown anew after it, since the widget may have moved
  /// ahead of the control. False when the form is gone: then the control must not be touched.
  bool Act(const std::function<void()>& action);

 private:
  FormView& view_;
  Control& control_;
  Aspects pending_ = kAllAspects;
};

/// A control tied to the widget of its name.
class WidgetBinding : public Binding {
 public:
  WidgetBinding(FormView& view, Control& control, QWidget& widget);

  QWidget& widget() const { return widget_; }
  /// The widget that has the focus when the control has it.
  virtual QWidget& focus_widget() const { return widget_; }

  void Show(Aspects aspects) override;

  /// Hands over what stands half typed in the widget. Called before a person moves on.
  virtual void Commit() {}

  /// The focus has come here, by anything but the mouse.
  virtual void FocusArrived() {}

  /// The letter that, with Alt, presses the control; null for none.
  virtual QChar mnemonic() const { return {}; }
  void PressMnemonic();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

  /// A key pressed while the control has the focus. True when that was all that is to be done with it; else
  /// the widget gets it too.
  virtual bool KeyPressed(QKeyEvent& event);

  /// A mouse button pressed on the control, which has the focus by now.
  virtual void MousePressed() {}

  /// Whether a click anywhere on the widget is the control's click; else the widget says itself what was
  /// clicked.
  virtual bool IsClickedAsAWhole() const { return false; }

  /// Watches a part of the widget: a click on it moves the focus to the control first.
  void Watch(QWidget& part);

 private:
  bool Filter(QObject* watched, QEvent& event);
  bool MouseDown(bool second);
  void MouseUp();

  QWidget& widget_;
  /// A label that shows the control's caption, called `look_` and the control's name.
  QLabel* caption_label_;
  bool is_pressed_ = false;
};

}  // namespace ovindra::desktop
