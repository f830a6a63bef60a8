#include "platform/office/biff/sheet.h"

#include <algorithm>
#include <string>

#include "platform/office/biff/cell_table.h"
#include "platform/office/biff/globals.h"
#include "platform/office/biff/password.h"
#include "platform/office/biff/styles.h"
#include "platform/office/biff/text.h"
#include "platform/office/limits.h"

namespace ovindra::office {
namespace {

/// How formulas would be calculated; required, though the sheet has none.
void WriteCalculation(RecordStream& out) {
  out.Numbers(RecordType::kCalcMode, {1});
  out.Numbers(RecordType::kCalcCount, {100});
  out.Numbers(RecordType::kCalcRefMode, {1});
  out.Numbers(RecordType::kCalcIter, {0});
  out.Begin(RecordType::kCalcDelta);
  out.F64(0.001);
  out.End();
  out.Numbers(RecordType::kCalcSaveRecalc, {1});
}

/// [MS-XLS] WsBool: outline buttons below and to the right, as in every new sheet.
constexpr unsigned kWsBoolFlags = 0x04C1;

void WriteSheetSettings(RecordStream& out, const PageSetup& setup) {
  constexpr unsigned kTwipsInPoint = 20;
  out.Numbers(RecordType::kPrintRowCol, {setup.headings ? 1U : 0U});
  out.Numbers(RecordType::kPrintGrid, {setup.grid_lines ? 1U : 0U});
  out.Numbers(RecordType::kGridSet, {1});
  out.Numbers(RecordType::kGuts, {0, 0, 0, 0});
  // no flag: a reader may make a row that was given no height as high as its texts need
  out.Numbers(RecordType::kDefaultRowHeight,
              {0, static_cast<unsigned>(Workbook::kDefaultRowHeight * kTwipsInPoint)});
  out.Numbers(RecordType::kWsBool, {kWsBoolFlags});
}

/// [MS-XLS] Header, Footer: an empty body where there is none.
void WriteHeaderOrFooter(RecordStream& out, RecordType type, const std::string& text) {
  out.Begin(type);
  if (!text.empty()) BiffText(text).Write(out);
  out.End();
}

void WriteMargin(RecordStream& out, RecordType type, double inches) {
  out.Begin(type);
  out.F64(inches);
  out.End();
}

/// [MS-XLS] Setup: A4, at its own size, upright, printed once.
void WriteSetup(RecordStream& out) {
  constexpr unsigned kA4 = 9;
  constexpr unsigned kPercent = 100;
  constexpr unsigned kUpright = 0x0002;
  constexpr unsigned kDotsPerInch = 600;
  constexpr double kHeaderInches = 0.5;
  out.Begin(RecordType::kSetup);
  for (const unsigned value : {kA4, kPercent, 1U, 1U, 1U, kUpright, kDotsPerInch, kDotsPerInch})
    out.U16(value);
  out.F64(kHeaderInches);
  out.F64(kHeaderInches);
  out.U16(1);
  out.End();
}

void WritePageSetup(RecordStream& out, const PageSetup& setup) {
  WriteHeaderOrFooter(out, RecordType::kHeader, setup.header);
  WriteHeaderOrFooter(out, RecordType::kFooter, setup.footer);
  out.Numbers(RecordType::kHCenter, {setup.centred ? 1U : 0U});
  out.Numbers(RecordType::kVCenter, {0});
  WriteMargin(out, RecordType::kLeftMargin, setup.left_margin);
  WriteMargin(out, RecordType::kRightMargin, setup.right_margin);
  WriteMargin(out, RecordType::kTopMargin, setup.top_margin);
  WriteMargin(out, RecordType::kBottomMargin, setup.bottom_margin);
  WriteSetup(out);
}

/// Contents and scenarios are protected, drawing objects are not: they would have a record of their own.
void WriteProtection(RecordStream& out, const Workbook& workbook) {
  if (!workbook.protection()) return;
  out.Numbers(RecordType::kProtect, {1});
  out.Numbers(RecordType::kScenarioProtect, {1});
  out.Numbers(RecordType::kPassword, {PasswordVerifier(*workbook.protection())});
}

/// [MS-XLS] ColInfo: the width in 256ths of a character, set by the user.
void WriteColumns(RecordStream& out, const Workbook& workbook) {
  constexpr unsigned kDefaultCharacters = 8;
  constexpr unsigned kUserSet = 0x0002;
  constexpr int kWidest = 255 * 256;
  out.Numbers(RecordType::kDefColWidth, {kDefaultCharacters});
  for (const auto& [column, width] : workbook.column_widths()) {
    if (column > kXlsLimits.columns) break;
    const auto place = static_cast<unsigned>(column - 1);
    out.Numbers(RecordType::kColInfo, {place, place, static_cast<unsigned>(std::clamp(width, 0, kWidest)),
                                       kDefaultXf, kUserSet, 0});
  }
}

/// [MS-XLS] Dimensions: the rows and columns in use, from the first to the one behind the last.
void WriteDimensions(RecordStream& out, const SheetContent& content) {
  out.Begin(RecordType::kDimensions);
  out.U32(0);
  out.U32(static_cast<std::uint32_t>(content.rows()));
  out.U16(0);
  out.U16(static_cast<unsigned>(content.columns()));
  out.U16(0);
  out.End();
}

/// [MS-XLS] Window2, Selection: grid, headings and zeros shown, the sheet current, the first cell selected.
void WriteWindow2(RecordStream& out) {
  constexpr unsigned kShown = 0x06B6;
  constexpr unsigned kGridColour = 64;
  constexpr unsigned kOnlyPane = 3;
  out.Numbers(RecordType::kWindow2, {kShown, 0, 0, kGridColour, 0, 0, 0, 0, 0});
  out.Begin(RecordType::kSelection);
  out.U8(kOnlyPane);
  for (const unsigned value : {0U, 0U, 0U, 1U, 0U, 0U, 0U}) out.U16(value);
  out.End();
}

/// [MS-XLS] MergeCells: no more than 1026 ranges in a record.
void WriteMerges(RecordStream& out, const std::vector<CellRange>& merges) {
  constexpr std::size_t kInRecord = 1026;
  for (std::size_t first = 0; first < merges.size(); first += kInRecord) {
    const std::size_t end = std::min(merges.size(), first + kInRecord);
    out.Begin(RecordType::kMergeCells);
    out.U16(static_cast<unsigned>(end - first));
    for (std::size_t i = first; i < end; ++i) {
      const CellRange& range = merges[i];
      for (const int place : {range.first_row, range.last_row, range.first_column, range.last_column})
        out.U16(static_cast<unsigned>(place - 1));
    }
    out.End();
  }
}

}  // namespace

SheetContent::SheetContent(const Workbook& workbook)
    : rows_(workbook.last_row()), columns_(workbook.last_column()) {
  for (const auto& [row, height] : workbook.row_heights()) {
    if (row <= kXlsLimits.rows) rows_ = std::max(rows_, row);
  }
  for (int row = 1; row <= rows_; ++row) {
    for (int column = 1; column <= columns_; ++column) {
      const std::string_view text = workbook.Text(row, column);
      if (!text.empty()) string_numbers_.push_back(strings_.Add(text));
    }
  }
}

void WriteSheet(RecordStream& out, const Workbook& workbook, const SheetContent& content) {
  WriteBof(out, SubstreamKind::kSheet);
  CellTable cells(out, workbook, content);
  cells.WriteIndex();
  WriteCalculation(out);
  WriteSheetSettings(out, workbook.page_setup);
  WritePageSetup(out, workbook.page_setup);
  WriteProtection(out, workbook);
  cells.ColumnsBegin();
  WriteColumns(out, workbook);
  WriteDimensions(out, content);
  cells.WriteRows();
  WriteWindow2(out);
  WriteMerges(out, workbook.merges());
  out.Numbers(RecordType::kEof, {});
}

}  // namespace ovindra::office
