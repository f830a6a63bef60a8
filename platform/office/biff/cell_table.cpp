#include "platform/office/biff/cell_table.h"

#include <algorithm>
#include <cmath>

#include "platform/office/biff/styles.h"

namespace ovindra::office {
namespace {

constexpr int kRowsInBlock = 32;
constexpr std::uint32_t kRowRecordSize = 20;

/// A place as records hold it: from 0.
unsigned FromZero(int place) {
  return static_cast<unsigned>(place - 1);
}

}  // namespace

/// [MS-XLS] Index: rows in use, where the columns and where the DBCELL of each block stand.
void CellTable::WriteIndex() {
  const int blocks = (content_.rows() + kRowsInBlock - 1) / kRowsInBlock;
  out_.Begin(RecordType::kIndex);
  out_.U32(0);
  out_.U32(0);
  out_.U32(static_cast<std::uint32_t>(content_.rows()));
  index_columns_ = out_.position();
  out_.U32(0);
  index_blocks_ = out_.position();
  for (int block = 0; block < blocks; ++block) out_.U32(0);
  out_.End();
}

void CellTable::WriteRows() {
  for (int row = 1; row <= content_.rows(); row += kRowsInBlock)
    WriteBlock(row, std::min(row + kRowsInBlock - 1, content_.rows()));
}

void CellTable::WriteBlock(int first_row, int last_row) {
  Block block;
  block.rows = out_.position();
  for (int row = first_row; row <= last_row; ++row) WriteRow(row);
  for (int row = first_row; row <= last_row; ++row) {
    block.cells.push_back(out_.position());
    WriteCells(row);
  }
  out_.PatchU32(index_blocks_, out_.position());
  index_blocks_ += sizeof(std::uint32_t);
  WriteDbCell(block);
}

/// [MS-XLS] Row: the height in twips, and whether it is the row's own.
void CellTable::WriteRow(int row) {
  constexpr double kTwipsInPoint = 20;
  constexpr unsigned kHighest = 409 * 20;
  constexpr unsigned kAlwaysSet = 0x0100;
  constexpr unsigned kOwnHeight = 0x0040;
  const bool own = workbook_.row_heights().contains(row);
  const auto twips = static_cast<unsigned>(std::lround(workbook_.RowHeight(row) * kTwipsInPoint));
  out_.Numbers(RecordType::kRow,
               {FromZero(row), 0, static_cast<unsigned>(content_.columns()), std::min(twips, kHighest), 0, 0,
                kAlwaysSet | (own ? kOwnHeight : 0U), kDefaultXf});
}

void CellTable::WriteCells(int row) {
  for (int column = 1; column <= content_.columns(); ++column) {
    if (!workbook_.Text(row, column).empty()) {
      WriteString(row, column);
    } else if (IsBlank(row, column)) {
      column = WriteBlanks(row, column);
    }
  }
}

/// [MS-XLS] LabelSst.
void CellTable::WriteString(int row, int column) {
  out_.Begin(RecordType::kLabelSst);
  out_.U16(FromZero(row));
  out_.U16(FromZero(column));
  out_.U16(XfAt(row, column));
  out_.U32(content_.string_numbers()[next_string_++]);
  out_.End();
}

/// [MS-XLS] Blank, MulBlank: one blank cell, or several beside one another.
int CellTable::WriteBlanks(int row, int first_column) {
  int last_column = first_column;
  while (last_column < content_.columns() && IsBlank(row, last_column + 1)) ++last_column;
  const bool several = last_column > first_column;
  out_.Begin(several ? RecordType::kMulBlank : RecordType::kBlank);
  out_.U16(FromZero(row));
  out_.U16(FromZero(first_column));
  for (int column = first_column; column <= last_column; ++column) out_.U16(XfAt(row, column));
  if (several) out_.U16(FromZero(last_column));
  out_.End();
  return last_column;
}

/// [MS-XLS] DBCell: how far the block's first row lies before this record; then, counted from its second row,
/// the first cell of the first row, and from row to row the first cell of each.
void CellTable::WriteDbCell(const Block& block) {
  const std::uint32_t here = out_.position();
  out_.Begin(RecordType::kDbCell);
  out_.U32(here - block.rows);
  std::uint32_t from = block.rows + kRowRecordSize;
  for (const std::uint32_t cells : block.cells) {
    out_.U16(cells - from);
    from = cells;
  }
  out_.End();
}

bool CellTable::IsBlank(int row, int column) const {
  return workbook_.StyleIdAt(row, column) != 0 && workbook_.Text(row, column).empty();
}

unsigned CellTable::XfAt(int row, int column) const {
  return XfOf(workbook_.StyleIdAt(row, column));
}

}  // namespace ovindra::office
