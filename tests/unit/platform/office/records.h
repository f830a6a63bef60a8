// The records of a BIFF8 stream as a test sees them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/office/biff/byte_sink.h"
#include "platform/office/biff/record_stream.h"

namespace ovindra::office {

class MemorySink : public ByteSink {
 public:
  void Append(std::string_view more) override { bytes += more; }
  void Overwrite(std::uint32_t position, std::string_view other) override {
    bytes.replace(position, other.size(), other);
  }

  std::string bytes;
};

struct Record {
  RecordType type;
  std::size_t position;
  std::string body;
};

std::vector<Record> RecordsOf(const std::string& stream);

/// The bodies of the records of that type.
std::vector<std::string> BodiesOf(const std::string& stream, RecordType type);

/// A number of that many bytes, the lowest first.
std::uint32_t NumberAt(std::string_view bytes, std::size_t place, std::size_t size);

/// The texts of the shared string table as UTF-16, read across its CONTINUE records by the rules of the
/// format. An exception where the records break them.
std::vector<std::u16string> SharedTexts(const std::string& stream);

}  // namespace ovindra::office
