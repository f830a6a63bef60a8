#include "tools/driver/runner/target.h"

#include "base/controls/menu.h"

namespace ovindra::driver {
namespace {

/// The main window's own controls, of which a form can have no other.
Control* FindOnMainWindow(const World& world, const std::string& name) {
  Control* control = world.Find({"MDIForm1", name});
  const bool is_own =
      dynamic_cast<MenuItem*>(control) != nullptr || dynamic_cast<StatusBar*>(control) != nullptr;
  return is_own ? control : nullptr;
}

}  // namespace

Form& CurrentForm(Stage& stage) {
  if (Form* form = stage.world.current_form()) return *form;
  const bool has_ended = stage.world.HasProgram() && stage.world.program().has_ended();
  throw StepFailure("an open form", has_ended ? "the program has ended" : "none open");
}

Target FindTarget(Stage& stage, const std::string& name) {
  Form& form = CurrentForm(stage);
  if (Control* control = form.Find(name)) return {{form.name(), control->full_name()}, control};
  if (Control* control = FindOnMainWindow(stage.world, name))
    return {{control->form().name(), control->full_name()}, control};
  throw StepFailure(name, "no such control on " + form.name());
}

Target FindUsable(Stage& stage, const std::string& name) {
  Target target = FindTarget(stage, name);
  if (!stage.player.IsVisible(target.name)) throw StepFailure(name + " visible", "hidden");
  if (!stage.player.IsEnabled(target.name)) throw StepFailure(name + " enabled", "disabled");
  return target;
}

}  // namespace ovindra::driver
