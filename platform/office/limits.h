// What the workbook formats can hold, and the errors that say so. Their number is that of a file that can't
// be written.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/runtime_error.h"
#include "base/workbook/workbook.h"

namespace ovindra::office {

/// How much a format holds.
struct FormatLimits {
  std::string_view extension;
  int rows;
  int columns;
};

inline constexpr FormatLimits kXlsLimits{".xls", 65'536, 256};
inline constexpr FormatLimits kXlsxLimits{".xlsx", 1'048'576, 16'384};

/// The characters, in UTF-16 units, of a cell's text in either format.
inline constexpr std::size_t kLongestCellText = 32'767;

/// Throws where the sheet has more rows or columns than that; for an `.xls` the text names `.xlsx`.
void RequireWithin(const Workbook& workbook, const FormatLimits& limits);

RuntimeError CellTextTooLong();

/// The sheet's name as files may hold it: an apostrophe at either end is not allowed there and left out.
std::string FileSheetName(const Workbook& workbook);

}  // namespace ovindra::office
