#include "platform/odbc/wide_text.h"

#include <algorithm>

#include "base/text/utf16.h"
#include "base/text/utf8.h"

namespace ovindra::odbc {
namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kFirstOfPairs = 0x10000;
constexpr char32_t kHighHalf = 0xD800;
constexpr char32_t kLowHalf = 0xDC00;
constexpr char32_t kHalfMask = 0x3FF;

bool IsHalf(char32_t unit, char32_t half) {
  return (unit & ~kHalfMask) == half;
}

}  // namespace

std::vector<SQLWCHAR> WideText(std::string_view text) {
  std::vector<SQLWCHAR> wide;
  wide.reserve(text.size());
  for (const char32_t character : Characters(text))
    ForEachUtf16Unit(character, [&](std::uint16_t unit) { wide.push_back(unit); });
  return wide;
}

std::string NarrowText(const SQLWCHAR* text, std::size_t length) {
  std::string narrow;
  narrow.reserve(length);
  for (std::size_t at = 0; at < length; ++at) {
    const char32_t unit = text[at];
    if (IsHalf(unit, kHighHalf) && at + 1 < length && IsHalf(text[at + 1], kLowHalf)) {
      AppendCharacter(narrow, kFirstOfPairs + ((unit & kHalfMask) << 10) + (text[++at] & kHalfMask));
    } else {
      AppendCharacter(narrow, IsHalf(unit, kHighHalf) || IsHalf(unit, kLowHalf) ? kReplacement : unit);
    }
  }
  return narrow;
}

std::size_t LengthOf(const SQLWCHAR* buffer, std::size_t size) {
  return static_cast<std::size_t>(std::find(buffer, buffer + size, SQLWCHAR{0}) - buffer);
}

}  // namespace ovindra::odbc
