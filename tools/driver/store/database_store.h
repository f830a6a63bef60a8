// Where the databases of scenarios come from: fresh ones in memory, copied from one that the process makes
// once, or the files of a folder.
#pragma once

#include <string>

#include "tools/driver/world/databases.h"

namespace ovindra::driver {

/// Makes databases from the files `ZQR.db` and `ward.db` of the folder, or fresh ones in memory for an empty
/// name. Fails with LanguageError when one of the files is not there.
DatabaseMaker DatabasesFrom(const std::string& folder);

}  // namespace ovindra::driver
