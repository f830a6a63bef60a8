#include "platform/office/biff/globals.h"

#include <string>

#include "platform/office/biff/styles.h"
#include "platform/office/biff/text.h"
#include "platform/office/limits.h"

namespace ovindra::office {
namespace {

constexpr unsigned kUtf16CodePage = 1200;
constexpr unsigned kCountryUnitedStates = 1;

/// [MS-XLS] WriteAccess: the name of who writes, 112 bytes filled with blanks.
void WriteWriteAccess(RecordStream& out) {
  constexpr std::size_t kSize = 112;
  out.Begin(RecordType::kWriteAccess);
  BiffText("Ovindra Desk").Write(out);
  out.Bytes(std::string(kSize - out.body_size(), ' '));
  out.End();
}

void WriteInterface(RecordStream& out) {
  out.Numbers(RecordType::kInterfaceHdr, {kUtf16CodePage});
  out.Numbers(RecordType::kMms, {0});
  out.Numbers(RecordType::kInterfaceEnd, {});
  WriteWriteAccess(out);
}

/// [MS-XLS] Window1: the window's place and size in twips, its scroll bars and sheet tabs shown, the first
/// sheet current and selected, the tabs on 600 of 1000 parts of the width.
void WriteWindow1(RecordStream& out) {
  out.Numbers(RecordType::kWindow1, {0, 0, 16'000, 9'000, 0x0038, 0, 0, 1, 600});
}

/// Nothing of the workbook as a whole is protected.
void WriteSettings(RecordStream& out) {
  out.Numbers(RecordType::kCodePage, {kUtf16CodePage});
  out.Numbers(RecordType::kDsf, {0});
  out.Numbers(RecordType::kRrTabId, {1});
  out.Numbers(RecordType::kBuiltInFnGroupCount, {14});
  out.Numbers(RecordType::kWinProtect, {0});
  out.Numbers(RecordType::kProtect, {0});
  out.Numbers(RecordType::kPassword, {0});
  out.Numbers(RecordType::kProt4Rev, {0});
  out.Numbers(RecordType::kProt4RevPass, {0});
  out.Numbers(RecordType::kBackup, {0});
  out.Numbers(RecordType::kHideObj, {0});
  WriteWindow1(out);
  out.Numbers(RecordType::kDate1904, {0});
  out.Numbers(RecordType::kCalcPrecision, {1});
  out.Numbers(RecordType::kRefreshAll, {0});
  out.Numbers(RecordType::kBookBool, {0});
}

/// [MS-XLS] BoundSheet8: where the sheet begins, that it is a visible worksheet, its name. Gives the place of
/// the first.
std::uint32_t WriteBoundSheet(RecordStream& out, const std::string& name) {
  out.Begin(RecordType::kBoundSheet8);
  const std::uint32_t pointer = out.position();
  out.U32(0);
  out.U8(0);
  out.U8(0);
  BiffText(name).WriteShort(out);
  out.End();
  return pointer;
}

}  // namespace

/// [MS-XLS] BOF: BIFF8, as Excel 97 on Windows writes and reads it.
void WriteBof(RecordStream& out, SubstreamKind kind) {
  constexpr unsigned kBiff8 = 0x0600;
  constexpr unsigned kBuild = 0x0DBB;
  constexpr unsigned kYear = 0x07CC;
  constexpr unsigned kOnWindows = 0x0009;
  constexpr unsigned kLowestBiff = 6;
  out.Numbers(RecordType::kBof,
              {kBiff8, static_cast<unsigned>(kind), kBuild, kYear, kOnWindows, 0, kLowestBiff, 0});
}

std::uint32_t WriteGlobals(RecordStream& out, const Workbook& workbook, const SharedStrings& strings) {
  WriteBof(out, SubstreamKind::kGlobals);
  WriteInterface(out);
  WriteSettings(out);
  WriteStyles(out, workbook.styles());
  out.Numbers(RecordType::kUsesElfs, {0});
  const std::uint32_t sheet_pointer = WriteBoundSheet(out, FileSheetName(workbook));
  out.Numbers(RecordType::kCountry, {kCountryUnitedStates, kCountryUnitedStates});
  strings.Write(out);
  out.Numbers(RecordType::kEof, {});
  return sheet_pointer;
}

}  // namespace ovindra::office
