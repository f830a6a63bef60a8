// The export table of the grant programme: its children with the names of users in place of their codes,
// rebuilt in the database and shown on the sheet.
#pragma once

#include "base/database/connection.h"
#include "base/machine/machine.h"
#include "reports/report_form.h"

namespace ovindra {

/// Rebuilds the table GRANT2016 for the period and writes it below the title block. The old table is dropped
/// first: an error behind that leaves none. A period without children is told, and nothing is written.
void ExportProgramme(Machine& machine, Connection& database, const Period& period, Sheet sheet);

/// " No Any Details".
void TellNoDetails(Machine& machine);

}  // namespace ovindra
