// Papers as files: a workbook as the spreadsheet programs know it, a document as the word processors do. A
// file is written beside its place and moved over it when it is whole and on the disk, so that a failed write
// loses nothing and leaves nothing behind.
#pragma once

#include <filesystem>

#include "base/workbook/document.h"
#include "base/workbook/workbook.h"

namespace ovindra::office {

/// Writes an Office Open XML workbook where the name ends in `.xlsx` (in any case), an Excel 97 workbook for
/// every other name. Error 75 when the file can't be written, with a text of its own when the workbook is too
/// large for its format.
void WriteWorkbook(const Workbook& workbook, const std::filesystem::path& file);

/// Writes the document as rich text, whatever its name. Error 75 when the file can't be written.
void WriteDocument(const Document& document, const std::filesystem::path& file);

}  // namespace ovindra::office
