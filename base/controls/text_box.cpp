#include "base/controls/text_box.h"

#include "base/controls/form.h"
#include "base/text/utf8.h"

namespace ovindra {

QuotedValue quoted(const TextControl& control) {
  return quoted(control.trimmed());
}

QuotedValue quoted(const TextControl& control, Fragment tail) {
  return quoted(control.trimmed(), tail);
}

BareValue bare(const TextControl& control) {
  return bare(control.trimmed());
}

void TextBox::SetText(std::string_view text) {
  Enter(std::string(text));
}

void TextBox::UserType(char32_t character) {
  if (!CanAct()) return;
  const auto passed = PassKey(character);
  if (!passed || *passed < U' ') return;
  std::string text = is_selected_ ? std::string() : text_;
  AppendCharacter(text, *passed);
  UserEdit(text);
}

void TextBox::UserEdit(std::string_view text) {
  if (max_length_ > 0) {
    // What is there already may stay, even where code has set more than can be typed.
    text = FirstCharacters(text, std::max(max_length_, CharacterCount(text_)));
  }
  Enter(std::string(text));
}

void TextBox::SelectAll() {
  is_selected_ = true;
  Changed(Aspect::kSelection);
}

void TextBox::DoKey(Key key) {
  switch (key.name) {
    case KeyName::kCharacter:
      UserType(key.character);
      break;
    case KeyName::kSpace:
      UserType(U' ');
      break;
    case KeyName::kBackspace:
      if (PassKey(kBackspaceKey)) UserEdit(is_selected_ ? std::string_view() : WithoutLastCharacter(text_));
      break;
    case KeyName::kDelete:
      if (is_selected_) UserEdit({});
      break;
    case KeyName::kEnter:
      if (PassKey(kEnterKey) && form().default_button() != nullptr) form().default_button()->UserClick();
      break;
    default:
      break;
  }
}

void TextBox::Enter(std::string text) {
  is_selected_ = false;
  if (text == text_) return;
  text_ = std::move(text);
  Changed(Aspect::kText);
  change.Fire();
}

}  // namespace ovindra
