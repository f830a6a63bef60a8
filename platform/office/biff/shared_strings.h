// The table of shared strings: every text of the workbook once, cells name it by its number.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/office/biff/record_stream.h"

namespace ovindra::office {

/// It keeps views of the texts that it is given, so these must stay where they are until it is written.
class SharedStrings {
 public:
  SharedStrings();

  /// The number of the text.
  std::uint32_t Add(std::string_view text);

  /// The records SST, as many CONTINUE as it takes, and EXTSST. An error where a text is too long for a cell.
  void Write(RecordStream& out) const;

 private:
  void Grow();
  std::size_t SlotOf(std::string_view text) const;

  std::vector<std::string_view> strings_;
  /// An open hash table of a size that is a power of two: the number of a string plus one, or 0.
  std::vector<std::uint32_t> slots_;
  std::uint32_t uses_ = 0;
};

}  // namespace ovindra::office
