// Looks for what would make the program fail at a desk: tables, columns and rows that must exist, counters
// that stand behind their keys, the work table of the export. It reads a database and changes nothing; each
// fault that can be mended without loss carries its repair.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/database/connection.h"
#include "tools/setup/console.h"
#include "tools/setup/database_files.h"

namespace ovindra {

/// Something that is wrong, in plain words.
struct Fault {
  std::string text;
  /// Empty where only a person can tell what is right.
  std::function<void()> repair;
};

/// The faults of an open screening database. `pristine` is a database that holds the fresh schema; both must
/// stand as long as a repair may be run.
std::vector<Fault> FindFaults(Session& screening, Session& pristine);

/// The faults of an open hospital records database.
std::vector<Fault> FindHospitalFaults(Session& hospital, Session& pristine);

/// Finds the faults of an open database of either kind and tells each on a line, the name before it. With
/// `repairs` it mends what can be mended first. True when no fault is left.
bool CheckRows(Source source, Session& database, std::string_view name, bool repairs, Console& console);

}  // namespace ovindra
