#include "base/controls/buttons.h"

#include <algorithm>
#include <vector>

#include "base/controls/form.h"

namespace ovindra {

void Button::DoKey(Key key) {
  if (key.name == KeyName::kEnter || key.name == KeyName::kSpace) {
    DoClick();
  } else {
    Control::DoKey(key);
  }
}

template <typename Visit>
void OptionButton::ForEachOfGroup(Visit visit) const {
  for (Control* control : form().controls()) {
    auto* option = dynamic_cast<OptionButton*>(control);
    if (option != nullptr && option->frame() == frame()) visit(*option);
  }
}

void OptionButton::SetOn(bool on) {
  if (on == on_) return;
  if (on) {
    SwitchOn();
    click.Fire();
  } else {
    on_ = false;
    Changed(Aspect::kText);
  }
}

bool OptionButton::IsTabStop() const {
  bool any_on = false;
  ForEachOfGroup([&](const OptionButton& option) { any_on = any_on || option.on_; });
  return on_ || !any_on;
}

void OptionButton::DoClick() {
  SetOn(true);
}

void OptionButton::DoKey(Key key) {
  Control::DoKey(key);
  if (key.name == KeyName::kSpace) DoClick();
  if (key.name == KeyName::kDown) ClickNeighbour(1);
  if (key.name == KeyName::kUp) ClickNeighbour(-1);
}

void OptionButton::ClickNeighbour(int by) {
  std::vector<OptionButton*> group;
  ForEachOfGroup([&](OptionButton& option) {
    if (option.CanAct()) group.push_back(&option);
  });
  const auto here = std::find(group.begin(), group.end(), this);
  if (here == group.end() || group.size() < 2) return;
  const auto count = static_cast<std::ptrdiff_t>(group.size());
  group[static_cast<std::size_t>((here - group.begin() + by + count) % count)]->UserClick();
}

void OptionButton::SwitchOn() {
  ForEachOfGroup([this](OptionButton& option) {
    if (&option == this || !option.on_) return;
    option.on_ = false;
    option.Changed(Aspect::kText);
  });
  on_ = true;
  Changed(Aspect::kText);
}

CheckBox::CheckBox(Container& container, std::string_view name, int index, std::string_view caption)
    : Control(container.owner_form(), container.as_frame(), name, caption, index) {}

void CheckBox::SetOn(bool on) {
  if (on == on_) return;
  on_ = on;
  Changed(Aspect::kText);
  click.Fire();
}

void CheckBox::DoKey(Key key) {
  Control::DoKey(key);
  if (key.name == KeyName::kSpace) DoClick();
}

}  // namespace ovindra
