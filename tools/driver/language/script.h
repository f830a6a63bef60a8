// A scenario file as it is played: its scenarios, each with the lines that every one of them begins with, and
// with the files that `play` lines name put in their place.
#pragma once

#include <string>
#include <vector>

#include "tools/driver/language/step.h"

namespace ovindra::driver {

struct Scenario {
  Place place;
  std::string title;
  std::vector<Step> steps;
};

/// Reads a file. One that has steps but no scenario line is one scenario with the file's name as its title.
/// Fails with LanguageError when a file can't be read, plays itself, or has a line that is not in the
/// language.
std::vector<Scenario> ReadScript(const std::string& file);

}  // namespace ovindra::driver
