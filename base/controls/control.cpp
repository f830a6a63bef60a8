#include "base/controls/control.h"

#include "base/controls/form.h"

namespace ovindra {

Control::Control(Container& container, std::string_view name, std::string_view caption)
    : Control(container.owner_form(), container.as_frame(), name, caption, std::nullopt) {}

Control::Control(Form& form, Control* frame, std::string_view name, std::string_view caption,
                 std::optional<int> index)
    : form_(form), frame_(frame), name_(name), index_(index), caption_(caption) {
  form_.Add(*this);
}

std::string Control::full_name() const {
  return index_ ? name_ + "(" + std::to_string(*index_) + ")" : name_;
}

void Control::SetCaption(std::string caption) {
  caption_ = std::move(caption);
  Changed(Aspect::kCaption);
}

void Control::SetEnabled(bool enabled) {
  enabled_ = enabled;
  Changed(Aspect::kState);
}

void Control::SetVisible(bool visible) {
  visible_ = visible;
  Changed(Aspect::kState);
}

bool Control::IsEnabledNow() const {
  return enabled_ && (frame_ == nullptr || frame_->IsEnabledNow());
}

bool Control::IsVisibleNow() const {
  return visible_ && (frame_ == nullptr || frame_->IsVisibleNow());
}

bool Control::HasFocus() const {
  return form_.focused() == this;
}

void Control::SetFocus() {
  if (TakesFocus() && CanAct()) form_.MoveFocus(this);
}

void Control::UserClick() {
  if (!CanAct()) return;
  if (TakesFocus() && !form_.UserFocus(*this)) return;
  DoClick();
}

void Control::UserKey(Key key) {
  if (!UserKeyDown(key.name)) return;
  if (key.name == KeyName::kTab) {
    form_.UserLeave(*this);
  } else {
    DoKey(key);
  }
}

bool Control::UserKeyDown(KeyName key) {
  if (key == KeyName::kCharacter) return CanAct();
  form_.key_down.Fire(key);
  if (!CanAct()) return false;
  key_down.Fire(key);
  return CanAct();
}

void Control::DoKey(Key key) {
  switch (key.name) {
    case KeyName::kCharacter:
      PassKey(key.character);
      break;
    case KeyName::kEnter:
      PassKey(kEnterKey);
      break;
    case KeyName::kSpace:
      PassKey(U' ');
      break;
    case KeyName::kBackspace:
      PassKey(kBackspaceKey);
      break;
    default:
      break;
  }
}

std::optional<char32_t> Control::PassKey(char32_t character) {
  KeyPress press{character};
  FilterKey(press);
  if (press.dropped) return {};
  key_press.Fire(press);
  if (press.dropped || press.character == 0) return {};
  return press.character;
}

void Control::Changed(Aspect aspect) {
  if (form_.observer_ != nullptr) form_.observer_->ControlChanged(*this, aspect);
}

}  // namespace ovindra
