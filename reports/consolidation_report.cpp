#include "reports/consolidation_report.h"

#include <cassert>

#include "base/text/utf8.h"
#include "core/text/text.h"
#include "reports/percent.h"

namespace ovindra {
namespace {

constexpr int kHeadingRow = 5;
constexpr int kFirstRow = 6;
constexpr int kSerial = 1;
constexpr int kParticulars = 2;
constexpr int kData = 3;
constexpr int kParticularsWidth = 20000;

}  // namespace

void ConsolidationReport::WriteHeadings(Sheet sheet) {
  sheet.SetCellText(kHeadingRow, kSerial, "Sr.");
  sheet.SetCellText(kHeadingRow, kParticulars, "Particulars");
  sheet.SetCellText(kHeadingRow, kData, "Data");
  sheet.SetColumnWidth(kParticulars, kParticularsWidth);
}

void ConsolidationReport::Build() {
  row_ = kFirstRow;
  for (const RowGroup& group : table_.groups) {
    for (const ConsolidationRow& row : group.rows) WriteRow(row, group.examiner);
  }
  Format();
}

void ConsolidationReport::WriteRow(const ConsolidationRow& row, Examiner examiner) {
  switch (row.kind) {
    case RowKind::kBlockList:
    case RowKind::kBlockListWithoutTotal:
      WriteBlockList(row);
      break;
    case RowKind::kCount:
      WriteCount(row, examiner);
      break;
    case RowKind::kMissed:
      WriteMissed(row);
      break;
    case RowKind::kPercent:
      WritePercent(row);
      break;
    case RowKind::kHeading:
      WriteHeading(row);
      break;
  }
  ++serial_;
}

void ConsolidationReport::WriteBlockList(const ConsolidationRow& row) {
  list_labels_.push_back(row_);
  WriteLabel(row.label);
  ++row_;
  double total = 0;
  for (Recordset blocks = database_.Execute(BlockListStatement(row)); !blocks.Eof();
       blocks.MoveNext(), ++row_) {
    sheet_.SetCellText(row_, kParticulars, LowerCaseLatin(Trim(blocks["Block_Name"])));
    const std::string figure = Trim(blocks["Total"]);
    sheet_.SetCellText(row_, kData, figure);
    total += Val(figure);
  }
  if (row.kind == RowKind::kBlockListWithoutTotal) return;
  totals_.push_back(row_);
  sheet_.SetCellText(row_, kParticulars, "Total :- ");
  sheet_.SetCellText(row_, kData, total);
  ++row_;
}

void ConsolidationReport::WriteCount(const ConsolidationRow& row, Examiner examiner) {
  std::string label(row.label);
  if (row.names_examiner) label += examiner == Examiner::kAssistant ? "OA" : "OS";
  WriteLabel(label);
  const Recordset result = database_.Execute(StatementOf(row, examiner));
  const Field total = result["Total"];
  const std::string text = total.AsText();
  WriteFigure(row, total.AsNumber(), Trim(text));
}

void ConsolidationReport::WriteMissed(const ConsolidationRow& row) {
  WriteLabel(row.label);
  const double missed = Val(WrittenText(Figure::kEnrolled)) - Val(WrittenText(Figure::kScreened));
  WriteFigure(row, missed, NumberText(missed));
}

void ConsolidationReport::WritePercent(const ConsolidationRow& row) {
  WriteLabel(row.label);
  sheet_.SetCellText(row_, kData, NumberText(Percent(ValueOf(row.figure), ValueOf(row.over))) + "%");
  ++row_;
}

void ConsolidationReport::WriteHeading(const ConsolidationRow& row) {
  sheet_.SetCellText(row_, kParticulars, row.label);
  sheet_.SelectCells(row_, kParticulars, row_, kParticulars);
  sheet_.SetSelectionFont(SubtotalStyle());
  ++row_;
}

void ConsolidationReport::WriteLabel(std::string_view label) {
  sheet_.SetCellText(row_, kSerial, serial_);
  sheet_.SetCellText(row_, kParticulars, label);
}

void ConsolidationReport::WriteFigure(const ConsolidationRow& row, double figure, std::string_view text) {
  sheet_.SetCellText(row_, kData, text);
  ValueOf(row.figure) = figure;
  rows_[static_cast<std::size_t>(row.figure)] = row_;
  ++row_;
}

std::string_view ConsolidationReport::WrittenText(Figure figure) const {
  return sheet_.GetCellText(rows_[static_cast<std::size_t>(figure)], kData);
}

SqlText ConsolidationReport::StatementOf(const ConsolidationRow& row, Examiner examiner) const {
  switch (row.source) {
    case Source::kChildren:
      return ChildCount(coverage_, row.tail);
    case Source::kEnrolled:
      return EnrolledCount(coverage_);
    case Source::kAttended:
      return AttendedCount(coverage_);
    case Source::kExaminations:
      return ExamCount(coverage_, examiner, row.tail);
    case Source::kCategory:
      return table_.categories == CategoryFamily::kChildren ? CategoryCount(coverage_, examiner, row.code)
                                                            : PlainCategoryCount(coverage_, row.code);
    case Source::kTreatment:
      return TreatmentCount(coverage_, examiner, row.code);
    case Source::kTreatmentRows:
      return TreatmentRowCount(coverage_, row.code);
    case Source::kTurnup:
      return TurnupCount(coverage_, row.code);
    case Source::kRegisterEnrolled:
      return SchoolRegisterSum(coverage_, RegisterColumns::kEnrolled);
    case Source::kRegisterScreened:
      return SchoolRegisterSum(coverage_, RegisterColumns::kScreened);
    case Source::kCenters:
    case Source::kTrainedPeople:
    case Source::kNone:
      break;
  }
  assert(false);
  return {};
}

SqlText ConsolidationReport::BlockListStatement(const ConsolidationRow& row) const {
  const BlockFigure figure =
      row.source == Source::kCenters ? BlockFigure::kCenters : BlockFigure::kTrainedPeople;
  switch (table_.block_lists) {
    case BlockLists::kAnganwadiCenters:
      return AnganwadiList(coverage_, figure);
    case BlockLists::kProgrammeSchools:
      return ProgrammeSchoolList(coverage_, figure);
    case BlockLists::kSchoolRegister:
      break;
  }
  return SchoolList(coverage_, figure);
}

void ConsolidationReport::Format() {
  const int last = row_ - 1;
  sheet_.SelectCells(kHeadingRow, kSerial, kHeadingRow, kData);
  sheet_.SetSelectionFont(HeaderStyle());
  sheet_.SetSelectionAlignment(HorizontalAlign::kCentre, Wrap::kOn);
  sheet_.SelectCells(kFirstRow, kSerial, last, kSerial);
  sheet_.SetSelectionFont(SubtotalStyle());
  sheet_.SetSelectionAlignment(HorizontalAlign::kCentre, Wrap::kOn);
  sheet_.SelectCells(kFirstRow, kData, last, kData);
  sheet_.SetSelectionAlignment(HorizontalAlign::kRight, Wrap::kOn, VerticalAlign::kCentre);
  sheet_.SelectCells(kFirstRow, kParticulars, last, kData);
  sheet_.SetSelectionFont(BodyStyle());
  for (const auto* rows : {&totals_, &list_labels_}) {
    for (const int row : *rows) {
      sheet_.SelectCells(row, kParticulars, row, kParticulars);
      sheet_.SetSelectionFont(rows == &totals_ ? HeaderStyle() : SubtotalStyle());
      sheet_.SetSelectionAlignment(HorizontalAlign::kCentre, Wrap::kOff);
    }
  }
  sheet_.SelectCells(kHeadingRow, kSerial, last, kData);
  sheet_.SetSelectionBorder();
  if (table_.styles_row_35) {
    constexpr int kUsualCampRow = 35;
    sheet_.SelectCells(kUsualCampRow, kParticulars, kUsualCampRow, kParticulars);
    sheet_.SetSelectionFont(SubtotalStyle());
  }
}

}  // namespace ovindra
