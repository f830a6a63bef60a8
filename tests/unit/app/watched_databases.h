// Small databases in memory that note the shape of every statement that reaches them.
#pragma once

#include <set>
#include <string>

#include "tools/driver/world/databases.h"

namespace ovindra::driver {

/// What has reached the databases.
struct Watch {
  /// What was typed; a bare value that reads so is told as one.
  std::string typed;
  std::set<std::string> shapes;
  /// Those of the shapes that were refused as no SQL.
  std::set<std::string> refused;
  long statements = 0;
  /// The statements that hold the typed text.
  long with_typed = 0;
};

/// Databases with a demonstration programme of a few children, the same for each call.
DatabaseMaker WatchedDatabases(Watch& watch);

}  // namespace ovindra::driver
