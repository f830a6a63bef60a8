#include "tools/driver/controls/controls_player.h"

#include "tools/driver/world/world.h"

namespace ovindra::driver {

/// Tells the trace where the focus of one form has moved to.
class ControlsPlayer::FocusTracer : public FormObserver {
 public:
  FocusTracer(Form& form, Trace& trace) : form_(form), trace_(trace) { form_.Observe(this); }

  void ControlChanged(Control&, Aspect) override {}
  void CaptionChanged() override {}
  void FocusChanged() override { trace_.FocusMoved(form_); }

 private:
  Form& form_;
  Trace& trace_;
};

ControlsPlayer::ControlsPlayer() = default;
ControlsPlayer::~ControlsPlayer() = default;

void ControlsPlayer::ProgramMade(Program& program) {
  program_ = &program;
  pointer_ = PointerShape::kDefault;
}

void ControlsPlayer::ProgramGone() {
  program_ = nullptr;
}

void ControlsPlayer::FormMade(Form& form) {
  tracers_.push_back(std::make_unique<FocusTracer>(form, world_->trace()));
}

Form& ControlsPlayer::FormOf(std::string_view name) const {
  Form* form = program_->OpenForm(name);
  if (form == nullptr) throw StepFailure(std::string(name) + " open", "not open");
  return *form;
}

Control& ControlsPlayer::Find(const ControlName& name) const {
  Control* control = FormOf(name.form).Find(name.control);
  if (control == nullptr) throw StepFailure(name.control, "no such control on " + name.form);
  return *control;
}

void ControlsPlayer::Act(Control& control, const std::function<void()>& action) {
  std::optional<StepFailure> failure;
  program_->Perform([&] {
    if (control.TakesFocus() && !control.form().UserFocus(control)) return;
    try {
      action();
    } catch (const StepFailure& failed) {
      failure = failed;
    }
  });
  if (failure) throw *failure;
}

std::unique_ptr<Player> MakeControlsPlayer() {
  return std::make_unique<ControlsPlayer>();
}

}  // namespace ovindra::driver
