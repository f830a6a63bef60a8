// Colours as the system writes them.
#pragma once

#include <cstdint>

namespace ovindra {

/// Red in the lowest byte, green in the next, blue in the third.
using Colour = std::uint32_t;

inline constexpr Colour kWhite = 0xFFFFFF;
inline constexpr Colour kRed = 0xFF;

constexpr std::uint8_t Red(Colour colour) {
  return static_cast<std::uint8_t>(colour);
}
constexpr std::uint8_t Green(Colour colour) {
  return static_cast<std::uint8_t>(colour >> 8U);
}
constexpr std::uint8_t Blue(Colour colour) {
  return static_cast<std::uint8_t>(colour >> 16U);
}

}  // namespace ovindra
