#include "core/text/text.h"

#include <charconv>
#include <cmath>

#include "base/text/utf8.h"

namespace ovindra {

double Val(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
  if (!text.empty() && text.front() == '+') text.remove_prefix(1);
  // "inf" and "nan" would read as numbers.
  if (text.find_first_of("0123456789.") > (text.starts_with('-') ? 1U : 0U)) return 0;
  double value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return value;
}

double Round(double value, int decimals) {
  const double scale = std::pow(10.0, decimals);
  return std::nearbyint(value * scale) / scale;
}

std::string NumberText(double value) {
  char digits[400];
  // What a double can't hold shows from the 16th digit on.
  constexpr int kExactDigits = 15;
  const auto exact = std::to_chars(std::begin(digits), std::end(digits), value, std::chars_format::scientific,
                                   kExactDigits - 1);
  std::from_chars(std::begin(digits), exact.ptr, value);
  const auto written = std::to_chars(std::begin(digits), std::end(digits), value, std::chars_format::fixed);
  return {digits, written.ptr};
}

std::string PadString(std::string_view text, std::size_t width, char pad) {
  const std::string_view start = FirstCharacters(text, width);
  return std::string(start) + std::string(width - CharacterCount(start), pad);
}

bool Matches(std::string_view text, std::string_view pattern) {
  constexpr std::size_t kNone = std::string_view::npos;
  std::size_t at = 0;
  std::size_t wanted = 0;
  // Behind the last star, and how much of the text that star has taken: going back to it alone is enough.
  std::size_t behind_star = kNone;
  std::size_t taken = 0;
  while (at < text.size()) {
    if (wanted < pattern.size() && pattern[wanted] == '*') {
      behind_star = ++wanted;
      taken = at;
    } else if (wanted < pattern.size() && pattern[wanted] == text[at]) {
      ++wanted;
      ++at;
    } else if (behind_star != kNone) {
      wanted = behind_star;
      at = ++taken;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', wanted) == kNone;
}

}  // namespace ovindra
