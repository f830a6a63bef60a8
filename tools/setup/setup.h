// The setup program: makes, fills, checks and saves the database files of a folder, and runs statements on
// them.
#pragma once

#include <span>
#include <string>

#include "tools/setup/console.h"

namespace ovindra {

inline constexpr int kDone = 0;
/// The command could not do its work, or has found a fault.
inline constexpr int kFailed = 1;
/// The command line does not fit.
inline constexpr int kMisused = 2;

/// Runs the command that the arguments name, and gives the exit code of the program. Every error is told on
/// the console's error stream.
int RunSetup(std::span<const std::string> arguments, Console& console);

}  // namespace ovindra
