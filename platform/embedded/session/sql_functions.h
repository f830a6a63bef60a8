// The functions that translated statements call: conversions, arithmetic with the server's limits, patterns,
// dates. They are registered once on a connection; a refusal of one of them is kept beside the connection,
// since SQLite carries a text only.
#pragma once

#include <optional>

#include "base/runtime_error.h"

struct sqlite3;

namespace ovindra::embedded {

/// The refusal that made a statement fail, until it is taken. Must stand as long as the connection.
using PendingRefusal = std::optional<RuntimeError>;

void RegisterFunctions(sqlite3* database, PendingRefusal& refusal);

}  // namespace ovindra::embedded
