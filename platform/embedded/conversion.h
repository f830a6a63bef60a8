// Conversions between the types of the dialect, by the server's rules: used for literals and parameters while
// a statement is bound, and row by row by the SQL functions of the session. A value that does not convert is
// the server's refusal.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "platform/embedded/sql_type.h"

namespace ovindra::embedded {

/// A value: NULL, a whole number (a moment too, as seconds since 1970), a number, a text.
using Value = std::variant<std::monostate, std::int64_t, double, std::string>;

/// What a value is converted for. A stored text that is too long is refused, any other is cut; a stored or
/// compared text loses its trailing blanks.
enum class Purpose : std::uint8_t { kComputed, kCompared, kStored };

/// Converts a value of type `from`. `style` is the style number of convert() for a moment written as text.
Value Convert(const Value& value, SqlType from, SqlType to, Purpose purpose, int style = 0);

/// Converts a text.
Value ConvertText(std::string_view text, SqlType to, Purpose purpose);

/// The text as it is stored in a column that holds `size` characters; refuses one that is longer.
std::string_view FitText(std::string_view text, int size);

/// A number that was computed, as a value of the type; refuses one that is out of its range.
std::int64_t FitInteger(std::int64_t value, SqlType type);
Value FitNumber(double value, SqlType type);

/// The number rounded to that many digits behind the point, halves away from zero.
double RoundHalfAway(double value, int scale);

/// The first day of the server's calendar of days, 1900-01-01, in seconds since 1970.
inline constexpr std::int64_t kDayZero = -2208988800;
inline constexpr std::int64_t kDaySeconds = 86400;

}  // namespace ovindra::embedded
