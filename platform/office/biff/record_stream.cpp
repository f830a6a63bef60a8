#include "platform/office/biff/record_stream.h"

#include <bit>
#include <cassert>

namespace ovindra::office {

void RecordStream::Begin(RecordType type) {
  if (pending_.size() >= kPieceSize) Flush();
  begun_at_ = pending_.size();
  U16(static_cast<unsigned>(type));
  U16(0);
}

void RecordStream::End() {
  const std::size_t size = body_size();
  assert(size <= kLongestBody);
  pending_[begun_at_ + 2] = static_cast<char>(size);
  pending_[begun_at_ + 3] = static_cast<char>(size >> 8U);
}

void RecordStream::F64(double value) {
  const auto bits = std::bit_cast<std::uint64_t>(value);
  U32(static_cast<std::uint32_t>(bits));
  U32(static_cast<std::uint32_t>(bits >> 32U));
}

void RecordStream::Numbers(RecordType type, std::initializer_list<unsigned> values) {
  Begin(type);
  for (const unsigned value : values) U16(value);
  End();
}

void RecordStream::Finish() {
  Flush();
  for (const Patch& patch : patches_) {
    U32(patch.value);
    sink_.Overwrite(patch.at, pending_);
    pending_.clear();
  }
  patches_.clear();
}

void RecordStream::Flush() {
  sink_.Append(pending_);
  flushed_ += pending_.size();
  pending_.clear();
}

}  // namespace ovindra::office
