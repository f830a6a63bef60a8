// UTF-16, in which office files and the drivers of databases count and keep their characters.
#pragma once

#include <cstdint>

namespace ovindra {

/// Hands the one or two UTF-16 units of a character to `take`.
template <typename Take>
void ForEachUtf16Unit(char32_t character, Take take) {
  if (character < 0x10000) {
    take(static_cast<std::uint16_t>(character));
    return;
  }
  const char32_t above = character - 0x10000;
  take(static_cast<std::uint16_t>(0xD800 + (above >> 10U)));
  take(static_cast<std::uint16_t>(0xDC00 + (above & 0x3FFU)));
}

}  // namespace ovindra
