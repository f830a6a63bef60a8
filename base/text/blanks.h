// Blanks at the ends of a text. A blank is the character 32 alone: a tab is text.
#pragma once

#include <string_view>

namespace ovindra {

/// The text without its trailing blanks.
constexpr std::string_view TrimRight(std::string_view text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

/// The text without its leading and trailing blanks.
constexpr std::string_view Trim(std::string_view text) {
  text = TrimRight(text);
  return text.empty() ? text : text.substr(text.find_first_not_of(' '));
}

}  // namespace ovindra
