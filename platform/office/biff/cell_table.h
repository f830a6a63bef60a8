// The cells of a sheet in BIFF8, with the index by which a reader finds them without reading them all.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "base/workbook/workbook.h"
#include "platform/office/biff/record_stream.h"
#include "platform/office/biff/sheet.h"

namespace ovindra::office {

class CellTable {
 public:
  CellTable(RecordStream& out, const Workbook& workbook, const SheetContent& content)
      : out_(out), workbook_(workbook), content_(content) {}

  /// The record INDEX, near the beginning of the sheet; what it points to is filled in as that is written.
  void WriteIndex();
  /// The records of columns begin here.
  void ColumnsBegin() { out_.PatchU32(index_columns_, out_.position()); }
  /// ROW, the cells and DBCELL of each block of rows.
  void WriteRows();

 private:
  /// Where a block's first row and the first cells of its rows stand.
  struct Block {
    std::uint32_t rows = 0;
    std::vector<std::uint32_t> cells;
  };

  void WriteBlock(int first_row, int last_row);
  void WriteRow(int row);
  void WriteCells(int row);
  /// The empty cell there and those like it behind it; gives the last of them.
  int WriteBlanks(int row, int first_column);
  void WriteString(int row, int column);
  void WriteDbCell(const Block& block);

  bool IsBlank(int row, int column) const;
  unsigned XfAt(int row, int column) const;

  RecordStream& out_;
  const Workbook& workbook_;
  const SheetContent& content_;
  std::uint32_t index_columns_ = 0;
  std::uint32_t index_blocks_ = 0;
  std::size_t next_string_ = 0;
};

}  // namespace ovindra::office
