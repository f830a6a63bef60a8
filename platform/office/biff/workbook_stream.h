// The stream "Workbook" of an Excel 97 file: what holds for the whole workbook, then its one sheet.
#pragma once

#include "base/workbook/workbook.h"
#include "platform/office/biff/byte_sink.h"

namespace ovindra::office {

/// Writes the whole stream. An error where a text is too long for a cell; the workbook must be within the
/// format's rows and columns.
void WriteWorkbookStream(const Workbook& workbook, ByteSink& sink);

}  // namespace ovindra::office
