// Typing into a line of text: every character passes the control's key filter and key-press event, which may
// change or drop it, then enters at the caret; what stands in the line after that, or after a paste or a cut,
// is handed to the control. Used by text boxes and by combo boxes that can be typed into. Owns neither line
// nor control.
#pragma once

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <functional>

#include "base/controls/text_control.h"

namespace ovindra::desktop {

class TypedText {
 public:
  /// `act` runs an action and gives false when the form is gone after it.
  using Act = std::function<bool(const std::function<void()>&)>;

  TypedText(QLineEdit& line, TextControl& control, Act act);

  /// True when the key has been dealt with; else the line does with it what it does.
  bool KeyPressed(QKeyEvent& event);

  /// Text that an input method or a dead key has put together. True when none of it is left to enter.
  bool TextComposed(const QInputMethodEvent& event);

  /// Writes the control's text into the line and leaves the caret in place. At most `limit` characters can be
  /// typed, 0 for no limit.
  void Show(std::size_t limit);

 private:
  bool Enter(char32_t character);
  void Edited(const QString& text);

  QPointer<QLineEdit> line_;
  TextControl& control_;
  Act act_;
};

}  // namespace ovindra::desktop
