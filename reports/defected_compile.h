// The compile of the defected children of one block and one season into a table of the database.
#pragma once

#include "base/controls/grid.h"
#include "base/database/connection.h"

namespace ovindra {

/// Makes the table `Temp61`, which may not be there yet, and fills it. The grid gathers what is joined per
/// child. A statement that fails leaves what the ones before it did.
void CompileDefected(Connection& database, Grid& gathered);

}  // namespace ovindra
