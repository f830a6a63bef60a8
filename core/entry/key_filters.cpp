#include "core/entry/key_filters.h"

#include "base/controls/form.h"
#include "base/text/utf8.h"
#include "core/entry/standard_dialogs.h"

namespace ovindra::key_filter {

void ToCapitals(TextControl&, KeyPress& press) {
  press.character = UpperCase(press.character);
}

void KeepNumbers(TextControl& control, KeyPress& press) {
  const char32_t key = press.character;
  if (key == kBackspaceKey || key == kEnterKey || key == U'.' || (key >= U'0' && key <= U'9')) return;
  Tell(control.form().machine(), {"Enter Number Only", "Wrong Entry", MessageIcon::kCritical});
  press.Drop();
  control.SetFocus();
}

void DropAll(TextControl&, KeyPress& press) {
  press.Drop();
}

}  // namespace ovindra::key_filter
