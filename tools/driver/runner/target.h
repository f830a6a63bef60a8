// Finding the control that a step names, and what a step may ask of it before it goes on.
#pragma once

#include <string>

#include "base/controls/control.h"
#include "tools/driver/runner/stage.h"

namespace ovindra::driver {

/// A control of an open form, as the model has it and as a player is asked for it.
struct Target {
  ControlName name;
  Control* control;
};

/// The form that the steps go to. Fails when there is none.
Form& CurrentForm(Stage& stage);

/// The control of that name on the current form; menu items and the status bar of the main window can be
/// named from any form. Fails when there is none.
Target FindTarget(Stage& stage, const std::string& name);

/// A control that a person can act on now. Fails for one that is hidden or disabled.
Target FindUsable(Stage& stage, const std::string& name);

/// The control as the kind that the step needs. Fails, naming that kind, for any other.
template <typename Kind>
Kind& As(const Target& target, const char* kind) {
  if (auto* control = dynamic_cast<Kind*>(target.control)) return *control;
  throw StepFailure(target.name.control + " to be " + kind, "a control of another kind");
}

}  // namespace ovindra::driver
