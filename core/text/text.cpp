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
  const auto written = std::to_chars(std::begin(digits), std::end(digits), value, std::chars_format::fixed);
  return {digits, written.ptr};
}

std::string PadString(std::string_view text, std::size_t width, char pad) {
  const std::string_view start = FirstCharacters(text, width);
  return std::string(start) + std::string(width - CharacterCount(start), pad);
}

bool Matches(std::string_view text, std::string_view pattern) {
  const std::size_t star = pattern.find('*');
  if (star == std::string_view::npos) return text == pattern;
  if (!text.starts_with(pattern.substr(0, star))) return false;
  const std::string_view rest = pattern.substr(star + 1);
  for (std::size_t at = star; at <= text.size(); ++at) {
    if (Matches(text.substr(at), rest)) return true;
  }
  return false;
}

}  // namespace ovindra
