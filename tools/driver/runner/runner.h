// Plays scenarios with one player and reports what did not hold. Each scenario gets a fresh World; a step
// that fails is a line of the report, and the next step is played all the same.
#pragma once

#include <ostream>
#include <string>

#include "core/startup/program.h"
#include "tools/driver/language/script.h"
#include "tools/driver/player.h"
#include "tools/driver/runner/stage.h"
#include "tools/driver/world/databases.h"

namespace ovindra::driver {

/// What all scenarios of a run share.
struct RunSettings {
  FormList forms;
  DatabaseMaker make_database;
  std::string picture_folder = ".";
  bool trace = false;
};

class Runner {
 public:
  Runner(RunSettings settings, Player& player, std::ostream& out);

  /// Plays the scenario and prints a line `FILE:LINE: expected ..., found ...` for each step that fails.
  /// False when any did.
  bool Play(const Scenario& scenario);

 private:
  class Session;

  RunSettings settings_;
  Player& player_;
  std::ostream& out_;
  Trace trace_;
};

/// Whether the step is one that a person does, to which statements, files and prints are looked back.
bool IsAction(StepKind kind);

/// The handler of the step's kind.
Handler HandlerOf(StepKind kind);

}  // namespace ovindra::driver
