// The commands of the setup program. Each gives an exit code; errors of the databases pass through as
// RuntimeError, those of the command line as UsageError.
#pragma once

#include "tools/setup/arguments.h"
#include "tools/setup/console.h"
#include "tools/setup/database_files.h"

namespace ovindra {

/// The database that the option --hospital chooses.
inline Source ChosenSource(const Arguments& arguments) {
  return arguments.Has("--hospital") ? Source::kHospital : Source::kScreening;
}

int Create(const Arguments& arguments, Console& console);
int Demo(const Arguments& arguments, Console& console);
int Check(const Arguments& arguments, Console& console);
int Backup(const Arguments& arguments, Console& console);
int Sql(const Arguments& arguments, Console& console);
int ServerScript(const Arguments& arguments, Console& console);
int Move(const Arguments& arguments, Console& console);
int CheckServer(const Arguments& arguments, Console& console);

}  // namespace ovindra
