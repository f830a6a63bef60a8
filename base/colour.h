// Colours as the system writes them.
#pragma once

#include <cstdint>

namespace ovindra {

/// Red in the lowest byte, green in the next, blue in the third.
using Colour = std::uint32_t;

inline constexpr Colour kWhite = 0xFFFFFF;
inline constexpr Colour kRed = 0xFF;

constexpr int RedOf(Colour colour) {
  return static_cast<int>(colour & 0xFFU);
}
constexpr int GreenOf(Colour colour) {
  return static_cast<int>(colour >> 8U & 0xFFU);
}
constexpr int BlueOf(Colour colour) {
  return static_cast<int>(colour >> 16U & 0xFFU);
}

}  // namespace ovindra
