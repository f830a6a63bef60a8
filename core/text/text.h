// The text functions that forms and reports are told with. Trim stands in base/text/blanks.h.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace ovindra {

/// The number at the start of a text, blanks before it skipped; 0 where there is none.
double Val(std::string_view text);

/// Rounds to the given decimals, a tie going to the even digit.
double Round(double value, int decimals);

/// A number as text, of 15 digits at the most: without trailing zeros, and without a point when it is whole.
std::string NumberText(double value);

/// The first `width` characters of the text, filled up with the pad character where the text is shorter.
std::string PadString(std::string_view text, std::size_t width, char pad);

/// Whether the text matches a pattern in which "*" stands for any characters. Upper and lower case are told
/// apart.
bool Matches(std::string_view text, std::string_view pattern);

}  // namespace ovindra
