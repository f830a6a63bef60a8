// What the handlers of steps work with: the world and the player of the scenario, and the few things that a
// step may ask of the run. A handler that finds its step not to hold throws StepFailure.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tools/driver/language/step.h"
#include "tools/driver/player.h"
#include "tools/driver/world/world.h"

namespace ovindra::driver {

struct Stage {
  World& world;
  Player& player;
  /// Where `picture` puts its files.
  std::string picture_folder;
  /// The end of the program has been expected: from then on only what it has left behind can be seen.
  bool end_was_seen = false;
};

using Handler = void (*)(Stage& stage, const Step& step);

struct HandlerRow {
  StepKind kind;
  Handler play;
};

/// What sets the stage, and the replies given ahead.
const std::vector<HandlerRow>& StageHandlers();
/// What a person does.
const std::vector<HandlerRow>& ActionHandlers();
/// What a person sees of forms and controls.
const std::vector<HandlerRow>& ControlExpectations();
/// What a person sees of a report sheet and of a print.
const std::vector<HandlerRow>& SheetExpectations();
/// What can be seen beside the forms: message boxes, statements, files, papers, the end of the program.
const std::vector<HandlerRow>& RecordExpectations();

/// What has become paper: saved workbooks, what the spreadsheet application and the word processor were
/// handed.
const std::vector<HandlerRow>& PaperExpectations();

/// "3021 Either BOF or EOF is True...", as the end of the program is written.
std::string Describe(const RuntimeError& error);

}  // namespace ovindra::driver
