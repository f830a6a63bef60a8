// Where the bytes of a stream go: a stream of a compound file, or memory in tests.
#pragma once

#include <cstdint>
#include <string_view>

namespace ovindra::office {

class ByteSink {
 public:
  virtual ~ByteSink() = default;
  /// Both throw where the bytes can't be written.
  virtual void Append(std::string_view bytes) = 0;
  /// Replaces bytes that were appended before.
  virtual void Overwrite(std::uint32_t position, std::string_view bytes) = 0;
};

}  // namespace ovindra::office
