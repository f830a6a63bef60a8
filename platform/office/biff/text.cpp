#include "platform/office/biff/text.h"

#include <algorithm>

#include "base/text/utf16.h"
#include "base/text/utf8.h"

namespace ovindra::office {

void BiffText::Encode(std::string_view utf8) {
  wide_ = false;
  bytes_ = utf8;
  if (std::all_of(utf8.begin(), utf8.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; }))
    return;
  const std::u32string characters = Characters(utf8);
  wide_ = std::any_of(characters.begin(), characters.end(), [](char32_t c) { return c > 0xFF; });
  bytes_.clear();
  for (const char32_t character : characters) {
    ForEachUtf16Unit(character, [&](std::uint16_t unit) {
      bytes_ += static_cast<char>(unit);
      if (wide_) bytes_ += static_cast<char>(unit >> 8U);
    });
  }
}

void BiffText::Write(RecordStream& out) const {
  out.U16(static_cast<unsigned>(length()));
  WriteCharacters(out);
}

void BiffText::WriteShort(RecordStream& out) const {
  out.U8(static_cast<unsigned>(length()));
  WriteCharacters(out);
}

void BiffText::WriteCharacters(RecordStream& out) const {
  out.U8(wide_ ? 1 : 0);
  out.Bytes(bytes_);
}

}  // namespace ovindra::office
