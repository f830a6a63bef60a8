// A frame around other controls: disabled or hidden, it disables or hides them all without touching their own
// state.
#pragma once

#include "base/controls/control.h"
#include "base/controls/form.h"

namespace ovindra {

class Frame : public Control, public Container {
 public:
  template <typename... Options>
  Frame(Container& container, std::string_view name, std::string_view caption, Options... options)
      : Control(container, name, caption) {
    (Apply(options), ...);
  }

  bool TakesFocus() const override { return false; }
  Form& owner_form() override { return form(); }
  Control* as_frame() override { return this; }

 private:
  using Control::Apply;
};

}  // namespace ovindra
