// The setup program's commands, run within the test.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "tools/setup/setup.h"

namespace ovindra {

/// What a command has written, and its exit code.
struct PlayedCommand {
  int code;
  std::string out;
  std::string error;
};

/// Runs a command with that input.
inline PlayedCommand Play(const std::vector<std::string>& arguments, const std::string& input = {}) {
  std::istringstream in(input);
  std::ostringstream out;
  std::ostringstream error;
  Console console{in, out, error};
  const int code = RunSetup(arguments, console);
  return {code, out.str(), error.str()};
}

}  // namespace ovindra
