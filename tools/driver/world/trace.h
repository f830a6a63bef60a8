// What --trace prints while scenarios are played: a person's actions, statements, message boxes, moves of the
// focus. A Trace without a stream prints nothing.
#pragma once

#include <ostream>
#include <string>
#include <string_view>

#include "base/controls/form.h"
#include "base/machine/machine.h"

namespace ovindra::driver {

/// The box as scenarios write it: "text" title "t" question.
std::string Describe(const Message& message);

/// The word that a scenario has for the icon.
std::string_view IconWord(MessageIcon icon);

class Trace {
 public:
  Trace() = default;
  explicit Trace(std::ostream* out) : out_(out) {}

  void Action(std::string_view line);
  void Statement(std::string_view database, std::string_view text, std::string_view outcome);
  void MessageBox(const Message& message, Answer answer);
  /// Which control of the form has the focus now, if one has.
  void FocusMoved(const Form& form);

 private:
  std::ostream* out_ = nullptr;
};

}  // namespace ovindra::driver
