// The records of a BIFF8 stream, written one after the other: a number, the length of the body, the body. All
// numbers are little-endian. Bytes are collected and handed to the sink in large pieces, the last of them by
// Finish.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/office/biff/byte_sink.h"

namespace ovindra::office {

/// The records that we write, by their numbers in [MS-XLS] Record Enumeration.
enum class RecordType : std::uint16_t {
  kCalcCount = 0x000C,
  kCalcMode = 0x000D,
  kCalcPrecision = 0x000E,
  kCalcRefMode = 0x000F,
  kCalcDelta = 0x0010,
  kCalcIter = 0x0011,
  kEof = 0x000A,
  kProtect = 0x0012,
  kPassword = 0x0013,
  kHeader = 0x0014,
  kFooter = 0x0015,
  kWinProtect = 0x0019,
  kSelection = 0x001D,
  kDate1904 = 0x0022,
  kLeftMargin = 0x0026,
  kRightMargin = 0x0027,
  kTopMargin = 0x0028,
  kBottomMargin = 0x0029,
  kPrintRowCol = 0x002A,
  kPrintGrid = 0x002B,
  kFont = 0x0031,
  kContinue = 0x003C,
  kWindow1 = 0x003D,
  kBackup = 0x0040,
  kCodePage = 0x0042,
  kDefColWidth = 0x0055,
  kWriteAccess = 0x005C,
  kCalcSaveRecalc = 0x005F,
  kColInfo = 0x007D,
  kGuts = 0x0080,
  kWsBool = 0x0081,
  kGridSet = 0x0082,
  kHCenter = 0x0083,
  kVCenter = 0x0084,
  kBoundSheet8 = 0x0085,
  kCountry = 0x008C,
  kHideObj = 0x008D,
  kPalette = 0x0092,
  kBuiltInFnGroupCount = 0x009C,
  kSetup = 0x00A1,
  kMulBlank = 0x00BE,
  kMms = 0x00C1,
  kDbCell = 0x00D7,
  kBookBool = 0x00DA,
  kScenarioProtect = 0x00DD,
  kXf = 0x00E0,
  kInterfaceHdr = 0x00E1,
  kInterfaceEnd = 0x00E2,
  kMergeCells = 0x00E5,
  kSst = 0x00FC,
  kLabelSst = 0x00FD,
  kExtSst = 0x00FF,
  kRrTabId = 0x013D,
  kUsesElfs = 0x0160,
  kDsf = 0x0161,
  kProt4Rev = 0x01AF,
  kRefreshAll = 0x01B7,
  kProt4RevPass = 0x01BC,
  kDimensions = 0x0200,
  kBlank = 0x0201,
  kRow = 0x0208,
  kIndex = 0x020B,
  kDefaultRowHeight = 0x0225,
  kWindow2 = 0x023E,
  kStyle = 0x0293,
  kBof = 0x0809,
};

class RecordStream {
 public:
  /// The longest body ([MS-XLS] Record).
  static constexpr std::size_t kLongestBody = 8224;

  explicit RecordStream(ByteSink& sink) : sink_(sink) {}

  void Begin(RecordType type);
  void End();
  /// How much the body that was begun can still hold.
  std::size_t room() const { return kLongestBody - body_size(); }
  /// The bytes of the body so far.
  std::size_t body_size() const { return pending_.size() - begun_at_ - kHeaderSize; }

  void U8(unsigned value) { pending_.push_back(static_cast<char>(value)); }
  void U16(unsigned value) {
    U8(value);
    U8(value >> 8U);
  }
  void U32(std::uint32_t value) {
    U16(value & 0xFFFFU);
    U16(value >> 16U);
  }
  void F64(double value);
  void Bytes(std::string_view bytes) { pending_.append(bytes); }

  /// A whole record of 16-bit numbers.
  void Numbers(RecordType type, std::initializer_list<unsigned> values);

  /// Where the next byte comes to stand in the stream.
  std::uint32_t position() const { return static_cast<std::uint32_t>(flushed_ + pending_.size()); }
  /// Replaces four bytes of a record that was ended; done by Finish.
  void PatchU32(std::uint32_t at, std::uint32_t value) { patches_.push_back({at, value}); }

  void Finish();

 private:
  struct Patch {
    std::uint32_t at;
    std::uint32_t value;
  };

  static constexpr std::size_t kHeaderSize = 4;
  static constexpr std::size_t kPieceSize = 1U << 16U;

  void Flush();

  ByteSink& sink_;
  std::string pending_;
  std::size_t begun_at_ = 0;
  std::size_t flushed_ = 0;
  std::vector<Patch> patches_;
};

}  // namespace ovindra::office
