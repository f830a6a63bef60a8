#include "tests/unit/platform/office/records.h"

#include <stdexcept>

namespace ovindra::office {
namespace {

/// Reads the table through the borders of its records.
class TableReader {
 public:
  explicit TableReader(std::vector<std::string> parts) : parts_(std::move(parts)) {}

  /// A number may not be split.
  std::uint32_t Number(std::size_t size) {
    if (place_ == parts_.at(part_).size()) NextPart();
    const std::uint32_t number = NumberAt(parts_.at(part_), place_, size);
    place_ += size;
    return number;
  }

  std::u16string Text() {
    const std::size_t length = Number(2);
    bool wide = Number(1) != 0;
    std::u16string text;
    while (text.size() < length) {
      if (place_ == parts_.at(part_).size()) {
        NextPart();
        wide = Number(1) != 0;
      }
      text += static_cast<char16_t>(Number(wide ? 2 : 1));
    }
    return text;
  }

  bool AtEnd() const { return part_ + 1 == parts_.size() && place_ == parts_[part_].size(); }

 private:
  void NextPart() {
    ++part_;
    place_ = 0;
  }

  std::vector<std::string> parts_;
  std::size_t part_ = 0;
  std::size_t place_ = 0;
};

}  // namespace

std::vector<Record> RecordsOf(const std::string& stream) {
  std::vector<Record> records;
  for (std::size_t at = 0; at < stream.size();) {
    const std::size_t size = NumberAt(stream, at + 2, 2);
    records.push_back({static_cast<RecordType>(NumberAt(stream, at, 2)), at, stream.substr(at + 4, size)});
    if (records.back().body.size() != size) throw std::runtime_error("a record ends behind the stream");
    at += 4 + size;
  }
  return records;
}

std::vector<std::string> BodiesOf(const std::string& stream, RecordType type) {
  std::vector<std::string> bodies;
  for (const Record& record : RecordsOf(stream)) {
    if (record.type == type) bodies.push_back(record.body);
  }
  return bodies;
}

std::uint32_t NumberAt(std::string_view bytes, std::size_t place, std::size_t size) {
  const std::string_view number = bytes.substr(place, size);
  if (number.size() != size) throw std::runtime_error("a number is split between two records");
  std::uint32_t value = 0;
  for (std::size_t i = size; i-- > 0;) value = (value << 8U) | static_cast<unsigned char>(number[i]);
  return value;
}

std::vector<std::u16string> SharedTexts(const std::string& stream) {
  std::vector<std::string> parts;
  for (const Record& record : RecordsOf(stream)) {
    if (record.body.size() > RecordStream::kLongestBody) throw std::runtime_error("a body is too long");
    if (record.type == RecordType::kSst || record.type == RecordType::kContinue) parts.push_back(record.body);
  }
  TableReader reader(parts);
  reader.Number(4);
  std::vector<std::u16string> texts(reader.Number(4));
  for (std::u16string& text : texts) text = reader.Text();
  if (!reader.AtEnd()) throw std::runtime_error("bytes are left behind the table");
  return texts;
}

}  // namespace ovindra::office
