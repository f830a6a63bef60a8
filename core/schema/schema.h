// The definition of the two databases as Transact-SQL scripts, batches parted by GO: what a server runs, and
// the embedded engine through its translator. The texts are those of screening.sql and hospital.sql, built
// into the library and valid as long as the program runs.
#pragma once

#include <string_view>

namespace ovindra {

/// The number of the schema that this program writes; it rises when a table changes.
inline constexpr int kSchemaVersion = 1;

/// The screening database: tables, views, indexes, and the rows that must exist before the first enrollment.
std::string_view ScreeningSchema();

/// The part of the hospital records database that the program reads.
std::string_view HospitalSchema();

}  // namespace ovindra
