// A workbook as an Office Open XML file.
#pragma once

#include <filesystem>

#include "base/workbook/workbook.h"

namespace ovindra::office {

/// Writes it over the file. Error 75 when that fails or the workbook is too large.
void WriteXlsx(const Workbook& workbook, const std::filesystem::path& file);

}  // namespace ovindra::office
