// Texts as BIFF8 keeps them: one byte a character where all are Latin-1, else UTF-16.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/office/biff/record_stream.h"

namespace ovindra::office {

/// A text in the form of [MS-XLS] XLUnicodeString: what its bytes are and how many characters they
/// make.
class BiffText {
 public:
  BiffText() = default;
  explicit BiffText(std::string_view utf8) { Encode(utf8); }

  /// Takes another text; the memory of the last one is used again. A byte that is no UTF-8 becomes U+FFFD.
  void Encode(std::string_view utf8);

  bool wide() const { return wide_; }
  std::string_view bytes() const { return bytes_; }
  /// UTF-16 units.
  std::size_t length() const { return wide_ ? bytes_.size() / 2 : bytes_.size(); }

  /// The text as an XLUnicodeString (16-bit length) and a ShortXLUnicodeString (8-bit length).
  void Write(RecordStream& out) const;
  void WriteShort(RecordStream& out) const;

 private:
  void WriteCharacters(RecordStream& out) const;

  bool wide_ = false;
  std::string bytes_;
};

}  // namespace ovindra::office
