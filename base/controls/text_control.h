// What text boxes and combo boxes share: a text that a person types and a form reads and sets.
#pragma once

#include <string>
#include <string_view>

#include "base/controls/control.h"
#include "base/database/sql_text.h"
#include "base/text/blanks.h"

namespace ovindra {

class TextControl;

/// What a control does to every typed character before its key-press event: change it or drop it.
struct KeyFilter {
  void (*apply)(TextControl& control, KeyPress& press);
};

class TextControl : public Control {
 public:
  using Control::Control;

  const std::string& text() const { return text_; }
  /// The text without the blanks around it; valid until the text changes.
  std::string_view trimmed() const { return Trim(text_); }

  /// The text that a form sets. Fires change when it differs.
  virtual void SetText(std::string_view text) = 0;

  /// A person types one character: it passes the filter and the key-press event, then enters the text.
  virtual void UserType(char32_t character) = 0;

  /// What stands in the box after a person has edited it: typed, pasted, cut. Fires change when it differs.
  virtual void UserEdit(std::string_view text) = 0;

  /// A typed character, passed through the filter and the key-press event but not entered; nothing when it
  /// was dropped. For those who keep the caret themselves.
  std::optional<char32_t> UserPassKey(char32_t character) { return PassKey(character); }

  Event<> change;

 protected:
  void Apply(KeyFilter filter) { filter_ = filter; }
  using Control::Apply;
  void FilterKey(KeyPress& press) override {
    if (filter_.apply != nullptr) filter_.apply(*this, press);
  }

  std::string text_;

 private:
  KeyFilter filter_{nullptr};
};

/// The trimmed text of the control as a quoted value, 'value', and as a bare one.
QuotedValue quoted(const TextControl& control);
QuotedValue quoted(const TextControl& control, Fragment tail);
BareValue bare(const TextControl& control);

}  // namespace ovindra
