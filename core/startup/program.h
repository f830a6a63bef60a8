// The running program: it owns Module1 and the open forms, makes each form on first use from the list of all
// forms, and is the one place where an error that no handler guards ends the program. Whoever delivers a
// person's actions (the desktop, a scenario player) does so inside Perform.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/controls/form.h"
#include "base/database/connection.h"
#include "base/machine/machine.h"
#include "core/startup/module1.h"

namespace ovindra {

/// A form by its name, with its maker.
struct FormEntry {
  std::string_view name;
  std::function<std::unique_ptr<Form>(Module1&)> make;
};
using FormList = std::vector<FormEntry>;

/// An entry for a form class that is made from Module1 alone.
template <typename F>
FormEntry EntryFor(std::string_view name) {
  return {name, [](Module1& module) { return std::make_unique<F>(module); }};
}

/// Follows the program, to show its forms.
class ProgramObserver {
 public:
  virtual ~ProgramObserver() = default;
  /// The form was made. Its load step has not run yet.
  virtual void FormMade(Form& form) = 0;
  /// The form was shown or brought up again.
  virtual void FormShown(Form& form) = 0;
  /// The form was unloaded; its object goes when this returns or soon after.
  virtual void FormUnloaded(Form& form) = 0;
  /// An action of a person has ended with all that came of it: what changed can be shown.
  virtual void ActionEnded() = 0;
  /// The program has ended, in the ordinary way or with an error that nothing guarded.
  virtual void Ended(const std::optional<RuntimeError>& error) = 0;
};

class Program : public FormHost {
 public:
  Program(Machine& machine, DataSources& data_sources, FormList forms);
  ~Program() override;

  /// Shows the splash window, from which all else follows.
  void Start();

  /// Runs an action of a person, or the tick of a timer, to its end. An error that escapes it ends the
  /// program. Actions may nest, since a message box waits inside one. After the end nothing runs.
  void Perform(const std::function<void()>& action);

  /// A person closes a form by its window frame.
  void UserClose(Form& form);

  Form* Made(std::string_view form_name) override;
  void Show(std::string_view form_name) override;
  void Unload(Form& form) override;
  void End() override;

  void Observe(ProgramObserver* observer) { observer_ = observer; }

  Module1& module() { return module_; }
  /// The open form of that name, without regard to case; null when it is not open.
  Form* OpenForm(std::string_view name) const;
  std::vector<Form*> OpenForms() const;

  bool has_ended() const { return has_ended_; }
  const std::optional<RuntimeError>& end_error() const { return end_error_; }

 private:
  void EndWith(std::optional<RuntimeError> error);
  void FinishAction();

  Module1 module_;
  FormList forms_;
  std::vector<std::unique_ptr<Form>> open_;
  std::vector<std::unique_ptr<Form>> unloaded_;
  ProgramObserver* observer_ = nullptr;
  int depth_ = 0;
  bool has_ended_ = false;
  std::optional<RuntimeError> end_error_;
};

}  // namespace ovindra
