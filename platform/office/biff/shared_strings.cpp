#include "platform/office/biff/shared_strings.h"

#include <algorithm>
#include <functional>

#include "platform/office/biff/text.h"
#include "platform/office/limits.h"

namespace ovindra::office {
namespace {

/// Where one string of every few begins ([MS-XLS] ISSTInf).
struct Bucket {
  std::uint32_t position;
  std::size_t offset;  // from the beginning of its record
};

constexpr std::size_t kStringHeader = 3;
constexpr std::size_t kRecordHeader = 4;

void ContinueRecord(RecordStream& out) {
  out.End();
  out.Begin(RecordType::kContinue);
}

/// One string of the table ([MS-XLS] XLUnicodeRichExtendedString). Its header may not be split; its
/// characters may, between two of them, and the rest then says anew whether it is wide.
void WriteSharedString(RecordStream& out, const BiffText& text) {
  out.U16(static_cast<unsigned>(text.length()));
  std::string_view bytes = text.bytes();
  const unsigned wide = text.wide() ? 1 : 0;
  out.U8(wide);
  for (;;) {
    const std::size_t room = out.room() & ~static_cast<std::size_t>(wide);
    const std::size_t part = std::min(bytes.size(), room);
    out.Bytes(bytes.substr(0, part));
    bytes.remove_prefix(part);
    if (bytes.empty()) return;
    ContinueRecord(out);
    out.U8(wide);
  }
}

/// [MS-XLS] ExtSST: the record holds at most 128 buckets, each of at least 8 strings.
std::size_t StringsInBucket(std::size_t strings) {
  return std::max<std::size_t>(8, strings / 128 + 1);
}

void WriteExtSst(RecordStream& out, std::size_t strings_in_bucket, const std::vector<Bucket>& buckets) {
  out.Begin(RecordType::kExtSst);
  out.U16(static_cast<unsigned>(strings_in_bucket));
  for (const Bucket& bucket : buckets) {
    out.U32(bucket.position);
    out.U16(static_cast<unsigned>(bucket.offset));
    out.U16(0);
  }
  out.End();
}

}  // namespace

SharedStrings::SharedStrings() : slots_(1024) {}

std::uint32_t SharedStrings::Add(std::string_view text) {
  ++uses_;
  std::size_t slot = SlotOf(text);
  if (slots_[slot] != 0) return slots_[slot] - 1;
  if (2 * (strings_.size() + 1) > slots_.size()) {
    Grow();
    slot = SlotOf(text);
  }
  strings_.push_back(text);
  slots_[slot] = static_cast<std::uint32_t>(strings_.size());
  return slots_[slot] - 1;
}

void SharedStrings::Write(RecordStream& out) const {
  const std::size_t in_bucket = StringsInBucket(strings_.size());
  std::vector<Bucket> buckets;
  BiffText text;
  out.Begin(RecordType::kSst);
  out.U32(uses_);
  out.U32(static_cast<std::uint32_t>(strings_.size()));
  for (std::size_t i = 0; i < strings_.size(); ++i) {
    text.Encode(strings_[i]);
    if (text.length() > kLongestCellText) throw CellTextTooLong();
    // room for one character too: some readers don't look for a text that begins in the record behind its
    // header
    if (out.room() < kStringHeader + 2) ContinueRecord(out);
    if (i % in_bucket == 0) buckets.push_back({out.position(), kRecordHeader + out.body_size()});
    WriteSharedString(out, text);
  }
  out.End();
  WriteExtSst(out, in_bucket, buckets);
}

void SharedStrings::Grow() {
  slots_.assign(slots_.size() * 2, 0);
  for (std::size_t i = 0; i < strings_.size(); ++i)
    slots_[SlotOf(strings_[i])] = static_cast<std::uint32_t>(i + 1);
}

/// The slot where the text is, or the free one where it belongs.
std::size_t SharedStrings::SlotOf(std::string_view text) const {
  const std::size_t mask = slots_.size() - 1;
  std::size_t slot = std::hash<std::string_view>()(text) & mask;
  while (slots_[slot] != 0 && strings_[slots_[slot] - 1] != text) slot = (slot + 1) & mask;
  return slot;
}

}  // namespace ovindra::office
