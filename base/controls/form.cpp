#include "base/controls/form.h"

#include <algorithm>
#include <cassert>

#include "base/text/utf8.h"

namespace ovindra {

void ShowErrorTail(Machine& machine, const RuntimeError& error) {
  machine.message_box.Show({std::to_string(error.number()) + " " + error.text(), "OVD",
                            MessageIcon::kCritical, MessageButtons::kOk});
}

Form::Form(Machine& machine, std::string_view name, std::string_view caption)
    : machine_(machine), name_(name), caption_(caption) {}

void Form::SetCaption(std::string caption) {
  caption_ = std::move(caption);
  if (observer_ != nullptr) observer_->CaptionChanged();
}

Control* Form::Find(std::string_view full_name) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(), [&](const Control* control) {
    return SameWithoutCase(control->full_name(), full_name);
  });
  return found == controls_.end() ? nullptr : *found;
}

bool Form::UserFocus(Control& control) {
  if (!control.TakesFocus() || !control.CanAct()) return false;
  if (focused_ == &control) return true;
  if (Control* leaving = focused_; leaving != nullptr && leaving->CanAct()) {
    bool keep = false;
    leaving->validate.Fire(keep);
    if (keep) return false;
  }
  // What validation has disabled or hidden can no longer be gone to.
  if (!control.CanAct()) return false;
  MoveFocus(&control);
  return focused_ == &control;
}

void Form::UserLeave(Control& control, bool backward) {
  if (Control* next = NextInOrder(control, backward)) UserFocus(*next);
}

Control* Form::NextInOrder(const Control& control, bool backward) const {
  const auto here = std::find(controls_.begin(), controls_.end(), &control);
  const auto count = static_cast<std::ptrdiff_t>(controls_.size());
  const std::ptrdiff_t step = backward ? count - 1 : 1;
  for (std::ptrdiff_t at = (here - controls_.begin() + step) % count;
       controls_[static_cast<std::size_t>(at)] != &control; at = (at + step) % count) {
    Control* candidate = controls_[static_cast<std::size_t>(at)];
    if (candidate->IsTabStop() && candidate->CanAct()) return candidate;
  }
  return nullptr;
}

void Form::SettleFocus() {
  if (focused_ == nullptr || focused_->CanAct()) return;
  MoveFocus(NextInOrder(*focused_, true));
}

void Form::MoveFocus(Control* control) {
  if (control == focused_) return;
  Control* leaving = focused_;
  focused_ = control;
  if (leaving != nullptr) leaving->lost_focus.Fire();
  // The lost-focus step may itself have moved the focus, back to the box it refuses to leave for instance.
  if (focused_ != control) return;
  if (observer_ != nullptr) observer_->FocusChanged();
  if (control != nullptr) control->got_focus.Fire();
}

FormHost& Form::host() {
  assert(host_ != nullptr);
  return *host_;
}

}  // namespace ovindra
