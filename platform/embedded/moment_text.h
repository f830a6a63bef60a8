// Moments as the dialect writes and reads them: the styles of convert() and the texts that are compared with,
// or stored into, a date column. Moments are seconds since 1970, local and without a zone.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ovindra::embedded {

/// The moment in a style of convert(): 0 "May 31 2016 12:00AM", 101 "05/31/2016", 120 "2016-05-31 00:00:00".
/// A style that the dialect does not have is refused.
std::string MomentText(std::int64_t moment, int style);

/// Reads month/day/year, year-month-day or yyyymmdd with or without a time, blanks around it allowed. The
/// empty text is 1900-01-01; what is no date is refused.
std::int64_t MomentOfText(std::string_view text);

/// The moment itself; refuses one outside the years 1753 to 9999.
std::int64_t FitMoment(std::int64_t moment);

/// A part of a moment: "year", "mm", "d". Refuses a part that the dialect does not have, naming the function.
std::int64_t MomentPart(std::string_view part, std::int64_t moment);

/// The moment that many parts later. The day is the last of its month where the month is too short for it.
std::int64_t AddMomentParts(std::string_view part, std::int64_t count, std::int64_t moment);

/// How many boundaries of the part lie between the two moments.
std::int64_t CountMomentParts(std::string_view part, std::int64_t from, std::int64_t to);

/// The moment of the machine's clock, in local time.
std::int64_t MomentNow();

}  // namespace ovindra::embedded
