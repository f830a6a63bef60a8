// The worksheet substream ([MS-XLS] Worksheet Substream): page setup, protection, columns, the cells by
// blocks of 32 rows, the window, merges.
#pragma once

#include <cstdint>
#include <vector>

#include "base/workbook/workbook.h"
#include "platform/office/biff/record_stream.h"
#include "platform/office/biff/shared_strings.h"

namespace ovindra::office {

/// The texts of a sheet's cells, numbered in the order in which they are written. The workbook must stand as
/// long as this does.
class SheetContent {
 public:
  explicit SheetContent(const Workbook& workbook);

  const SharedStrings& strings() const { return strings_; }
  /// The string of each cell that has a text, row by row.
  const std::vector<std::uint32_t>& string_numbers() const { return string_numbers_; }
  int rows() const { return rows_; }
  int columns() const { return columns_; }

 private:
  SharedStrings strings_;
  std::vector<std::uint32_t> string_numbers_;
  int rows_;
  int columns_;
};

void WriteSheet(RecordStream& out, const Workbook& workbook, const SheetContent& content);

}  // namespace ovindra::office
