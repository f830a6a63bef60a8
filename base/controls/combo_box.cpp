#include "base/controls/combo_box.h"

#include <algorithm>

#include "base/controls/form.h"
#include "base/runtime_error.h"
#include "base/text/utf8.h"

namespace ovindra {

void ComboBox::AddItem(std::string_view text, long data) {
  items_.Add(text, data);
  Changed(Aspect::kItems);
}

void ComboBox::RemoveItem(int index) {
  const bool was_chosen = index == items_.current();
  items_.Remove(index);
  if (was_chosen) text_.clear();
  Changed(Aspect::kItems);
}

void ComboBox::Clear() {
  items_.Clear();
  text_.clear();
  Changed(Aspect::kItems);
}

void ComboBox::SetListIndex(int index) {
  if (index != ListItems::kNone) {
    Choose(index);
    return;
  }
  items_.SetCurrent(index);
  text_.clear();
  Changed(Aspect::kChoice);
}

void ComboBox::SetText(std::string_view text) {
  if (style_ == ComboStyle::kDropDownCombo) {
    UserEdit(text);
  } else if (text.empty()) {
    SetListIndex(ListItems::kNone);
  } else if (const auto index = items_.IndexOf(text)) {
    Choose(*index);
  } else {
    throw TextPropertyIsReadOnly();
  }
}

void ComboBox::UserPick(int index) {
  if (CanAct() && form().UserFocus(*this)) Choose(index);
}

void ComboBox::UserType(char32_t character) {
  if (!CanAct()) return;
  const auto passed = PassKey(character);
  if (!passed || *passed < U' ' || style_ == ComboStyle::kDropDownList) return;
  std::string text = text_;
  AppendCharacter(text, *passed);
  UserEdit(text);
}

void ComboBox::UserEdit(std::string_view text) {
  if (text == text_) return;
  text_ = text;
  items_.SetCurrent(items_.IndexOf(text).value_or(ListItems::kNone));
  Changed(Aspect::kText);
  change.Fire();
}

void ComboBox::DoKey(Key key) {
  switch (key.name) {
    case KeyName::kCharacter:
      UserType(key.character);
      break;
    case KeyName::kSpace:
      UserType(U' ');
      break;
    case KeyName::kBackspace:
      if (PassKey(kBackspaceKey) && style_ == ComboStyle::kDropDownCombo)
        UserEdit(WithoutLastCharacter(text_));
      break;
    case KeyName::kEnter:
      if (PassKey(kEnterKey) && form().default_button() != nullptr) form().default_button()->UserClick();
      break;
    case KeyName::kDown:
      Step(1);
      break;
    case KeyName::kUp:
      Step(-1);
      break;
    default:
      break;
  }
}

void ComboBox::Choose(int index) {
  items_.SetCurrent(index);
  text_ = items_.Text(index);
  Changed(Aspect::kChoice);
  click.Fire();
}

void ComboBox::Step(int by) {
  if (items_.count() == 0) return;
  const int index = std::clamp(items_.current() + by, 0, items_.count() - 1);
  if (index != items_.current()) Choose(index);
}

}  // namespace ovindra
