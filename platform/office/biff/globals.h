// The globals substream ([MS-XLS] Globals Substream): settings of the workbook, styles, the list of sheets,
// shared strings.
#pragma once

#include <cstdint>

#include "base/workbook/workbook.h"
#include "platform/office/biff/record_stream.h"
#include "platform/office/biff/shared_strings.h"

namespace ovindra::office {

/// What begins a substream.
enum class SubstreamKind : std::uint16_t { kGlobals = 0x0005, kSheet = 0x0010 };
void WriteBof(RecordStream& out, SubstreamKind kind);

/// Writes the substream. Gives the place of the four bytes that must say where the sheet's substream begins.
std::uint32_t WriteGlobals(RecordStream& out, const Workbook& workbook, const SharedStrings& strings);

}  // namespace ovindra::office
