// The reference rows that the program tests by code or by name. What they must be is read from a database
// with the fresh schema, so that they stand in one place.
#pragma once

#include <vector>

#include "tools/setup/check.h"

namespace ovindra {

/// Adds a fault for each row that is missing or bears a name that the program would not know, and for each
/// list of optical values that is empty.
void FindMissingRows(Session& screening, Session& pristine, std::vector<Fault>& faults);

}  // namespace ovindra
