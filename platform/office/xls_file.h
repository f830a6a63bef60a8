// A workbook as an Excel 97 file: its BIFF8 stream in a compound file.
#pragma once

#include <filesystem>

#include "base/workbook/workbook.h"

namespace ovindra::office {

/// Writes it over the file. Error 75 when that fails or the workbook is too large.
void WriteXls(const Workbook& workbook, const std::filesystem::path& file);

}  // namespace ovindra::office
