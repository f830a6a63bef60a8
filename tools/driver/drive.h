// The program ovindra-drive, but for what it plays on: its command line, the report, the exit code.
#pragma once

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "core/startup/program.h"
#include "tools/driver/player.h"
#include "tools/driver/world/databases.h"

namespace ovindra::driver {

using PlayerMaker = std::function<std::unique_ptr<Player>()>;
using WindowPlayerMaker = std::function<std::unique_ptr<Player>(Look)>;

/// What the program is put together from.
struct DriveParts {
  FormList forms;
  /// Databases for the scenarios: those of the files in a folder, or fresh ones where no folder is named.
  /// Fails with LanguageError when the folder has no such files.
  std::function<DatabaseMaker(const std::string& folder)> databases;
  PlayerMaker on_controls;
  /// Empty where the program was built without a desktop.
  WindowPlayerMaker on_windows;
};

/// Plays the files that the command line names and returns the exit code: 0 when all held, 1 when a scenario
/// failed, 2 when a file can't be read or a line or argument is not understood; then nothing was played.
int Drive(const std::vector<std::string>& arguments, const DriveParts& parts, std::ostream& out,
          std::ostream& err);

}  // namespace ovindra::driver
