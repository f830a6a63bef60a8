#include "base/text/utf8.h"

#include <algorithm>

namespace ovindra {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

/// The length in bytes of the character at the start of the text: 1 for a byte that is no UTF-8.
std::size_t LengthOfFirst(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text.front());
  const std::size_t length = lead < 0x80                   ? 1
                             : lead >= 0xF0 && lead < 0xF8 ? 4
                             : lead >= 0xE0 && lead < 0xF0 ? 3
                             : lead >= 0xC2 && lead < 0xE0 ? 2
                                                           : 1;
  if (length > text.size()) return 1;
  for (std::size_t i = 1; i < length; ++i) {
    if ((static_cast<unsigned char>(text[i]) & 0xC0) != 0x80) return 1;
  }
  return length;
}

char32_t Decode(std::string_view character) {
  const auto byte = [&](std::size_t i) {
    return static_cast<char32_t>(static_cast<unsigned char>(character[i]));
  };
  switch (character.size()) {
    case 1:
      return byte(0) < 0x80 ? byte(0) : kReplacement;
    case 2:
      return (byte(0) & 0x1F) << 6 | (byte(1) & 0x3F);
    case 3:
      return (byte(0) & 0x0F) << 12 | (byte(1) & 0x3F) << 6 | (byte(2) & 0x3F);
    default:
      return (byte(0) & 0x07) << 18 | (byte(1) & 0x3F) << 12 | (byte(2) & 0x3F) << 6 | (byte(3) & 0x3F);
  }
}

char LowerLatin(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

std::size_t CharacterCount(std::string_view text) {
  std::size_t count = 0;
  for (; !text.empty(); text.remove_prefix(LengthOfFirst(text))) ++count;
  return count;
}

std::string_view FirstCharacters(std::string_view text, std::size_t count) {
  std::size_t end = 0;
  for (; count > 0 && end < text.size(); --count) end += LengthOfFirst(text.substr(end));
  return text.substr(0, end);
}

std::string_view WithoutLastCharacter(std::string_view text) {
  const std::size_t count = CharacterCount(text);
  return count == 0 ? text : FirstCharacters(text, count - 1);
}

char32_t TakeCharacter(std::string_view& text) {
  const std::size_t length = LengthOfFirst(text);
  const char32_t character = Decode(text.substr(0, length));
  text.remove_prefix(length);
  return character;
}

std::u32string Characters(std::string_view text) {
  std::u32string characters;
  while (!text.empty()) characters += TakeCharacter(text);
  return characters;
}

void AppendCharacter(std::string& text, char32_t character) {
  const auto add = [&](char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
  if (character < 0x80) {
    add(character);
  } else if (character < 0x800) {
    add(0xC0 | character >> 6);
    add(0x80 | (character & 0x3F));
  } else if (character < 0x10000) {
    add(0xE0 | character >> 12);
    add(0x80 | (character >> 6 & 0x3F));
    add(0x80 | (character & 0x3F));
  } else {
    add(0xF0 | character >> 18);
    add(0x80 | (character >> 12 & 0x3F));
    add(0x80 | (character >> 6 & 0x3F));
    add(0x80 | (character & 0x3F));
  }
}

char32_t UpperCase(char32_t c) {
  if (c >= U'a' && c <= U'z') return c - 0x20;
  if (c >= 0xE0 && c <= 0xFE && c != 0xF7) return c - 0x20;     // Latin-1
  if (c == 0xFF) return 0x178;                                  // y with diaeresis
  if (c >= 0x100 && c <= 0x137) return c & ~char32_t{1};        // Latin Extended-A, even capitals
  if (c >= 0x139 && c <= 0x148) return c % 2 == 0 ? c - 1 : c;  // the run with odd capitals
  if (c >= 0x14A && c <= 0x177) return c & ~char32_t{1};
  if (c == 0x17A || c == 0x17C || c == 0x17E) return c - 1;
  if (c >= 0x3B1 && c <= 0x3C9 && c != 0x3C2) return c - 0x20;  // Greek, final sigma apart
  if (c >= 0x430 && c <= 0x44F) return c - 0x20;                // Cyrillic
  if (c >= 0x450 && c <= 0x45F) return c - 0x50;
  return c;
}

std::string LowerCaseLatin(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), LowerLatin);
  return lower;
}

bool SameWithoutCase(std::string_view left, std::string_view right) {
  return left.size() == right.size() &&
         std::equal(left.begin(), left.end(), right.begin(),
                    [](char a, char b) { return LowerLatin(a) == LowerLatin(b); });
}

}  // namespace ovindra
