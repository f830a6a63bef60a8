#include "platform/desktop/paper/sheet_painter.h"

#include <algorithm>

#include "platform/desktop/binder/text.h"

namespace ovindra::desktop {
namespace {

constexpr double kSidePadding = 2.5;
constexpr double kBottomPadding = 2.5;
constexpr double kNarrowestText = 0.85;

QColor InkOf(Colour colour) {
  return {Red(colour), Green(colour), Blue(colour)};
}

bool Holds(const CellRange& range, int row, int column) {
  return row >= range.first_row && row <= range.last_row && column >= range.first_column &&
         column <= range.last_column;
}

Qt::Alignment Across(HorizontalAlign align, bool is_number) {
  switch (align) {
    case HorizontalAlign::kLeft:
      return Qt::AlignLeft;
    case HorizontalAlign::kCentre:
      return Qt::AlignHCenter;
    case HorizontalAlign::kRight:
      return Qt::AlignRight;
    case HorizontalAlign::kGeneral:
      break;
  }
  return is_number ? Qt::AlignRight : Qt::AlignLeft;
}

}  // namespace

SheetPainter::SheetPainter(QPainter& painter, const Workbook& workbook, SheetFonts& fonts, double line,
                           QColor hairline)
    : painter_(painter), workbook_(workbook), fonts_(fonts), line_(line), hairline_(hairline) {}

void SheetPainter::Paint(const SheetPart& part) {
  if (part.last_column < part.first_column) return;
  std::vector<std::vector<Run>> runs;
  runs.reserve(part.rows.size());
  for (const SheetPart::Row& row : part.rows) {
    runs.push_back(RunsOf(part, row.number));
    if (hairline_.isValid()) PaintHairlines(part, row, runs.back());
  }
  for (std::size_t i = 0; i < runs.size(); ++i) {
    for (const Run& run : runs[i]) PaintRun(part, part.rows[i], run);
  }
  for (const SheetPart::Row& row : part.rows) PaintBorders(part, row);
  for (const CellRange& merge : workbook_.merges()) PaintMerge(part, merge);
}

bool SheetPainter::IsMerged(int row, int column) const {
  const auto& merges = workbook_.merges();
  return std::any_of(merges.begin(), merges.end(),
                     [&](const CellRange& merge) { return Holds(merge, row, column); });
}

bool SheetPainter::IsFree(const SheetPart& part, int row, int column) const {
  return column >= 1 && column <= part.columns() && workbook_.Text(row, column).empty() &&
         !IsMerged(row, column);
}

std::vector<SheetPainter::Run> SheetPainter::RunsOf(const SheetPart& part, int row) {
  // A text may begin beside the part and run into it.
  int first = part.first_column;
  while (first > 1 && IsFree(part, row, first)) --first;
  int last = part.last_column;
  while (last < part.columns() && IsFree(part, row, last)) ++last;
  std::vector<Run> runs;
  for (int column = first; column <= last; ++column) {
    if (workbook_.Text(row, column).empty() || IsMerged(row, column)) continue;
    Run run = RunOf(part, row, column);
    if (run.to >= part.first_column && run.from <= part.last_column) runs.push_back(std::move(run));
  }
  return runs;
}

SheetPainter::Run SheetPainter::RunOf(const SheetPart& part, int row, int column) {
  const StyleId style = workbook_.StyleIdAt(row, column);
  const std::string_view text = workbook_.Text(row, column);
  Run run{column, column, column, 0, ToQt(text)};
  const CellAlignment& alignment = workbook_.StyleOf(style).alignment;
  if (alignment.wrapped) return run;
  run.width = fonts_.WidthOf(style, run.text) + 2 * kSidePadding * fonts_.unit();
  const double over = run.width - (part.RightOf(column) - part.LeftOf(column));
  const Qt::Alignment across = Across(alignment.horizontal, ReadsAsNumber(text));
  const bool centred = across == Qt::AlignHCenter;
  const double share = centred ? over / 2 : over;
  if (across != Qt::AlignRight) {
    const double end = part.RightOf(column) + share;
    while (part.RightOf(run.to) < end && IsFree(part, row, run.to + 1)) ++run.to;
  }
  if (across != Qt::AlignLeft) {
    const double begin = part.LeftOf(column) - share;
    while (part.LeftOf(run.from) > begin && IsFree(part, row, run.from - 1)) --run.from;
  }
  return run;
}

void SheetPainter::Line(double left, double top, double width, double height, const QColor& colour) {
  painter_.fillRect(QRectF(left, top, width, height), colour);
}

void SheetPainter::PaintHairlines(const SheetPart& part, const SheetPart::Row& row,
                                  const std::vector<Run>& runs) {
  const double left = part.LeftOf(part.first_column);
  Line(left, row.top + row.height - line_, part.RightOf(part.last_column) - left, line_, hairline_);
  auto run = runs.begin();
  for (int column = part.first_column; column <= part.last_column; ++column) {
    while (run != runs.end() && run->to <= column) ++run;
    const bool runs_over = run != runs.end() && run->from <= column;
    if (!runs_over) Line(part.RightOf(column) - line_, row.top, line_, row.height, hairline_);
  }
}

void SheetPainter::PaintRun(const SheetPart& part, const SheetPart::Row& row, const Run& run) {
  const QRectF cell(part.LeftOf(run.column), row.top, part.RightOf(run.column) - part.LeftOf(run.column),
                    row.height);
  const QRectF room(part.LeftOf(run.from), row.top, part.RightOf(run.to) - part.LeftOf(run.from), row.height);
  PaintText(cell, room, workbook_.StyleIdAt(row.number, run.column), run.text,
            ReadsAsNumber(workbook_.Text(row.number, run.column)), run.width);
}

void SheetPainter::PaintText(const QRectF& cell, const QRectF& room, StyleId style, const QString& text,
                             bool is_number, double width) {
  const CellStyle& look = workbook_.StyleOf(style);
  const double side = kSidePadding * fonts_.unit();
  const double bottom = kBottomPadding * fonts_.unit();
  const Qt::Alignment across = Across(look.alignment.horizontal, is_number);
  const bool middle = look.alignment.vertical == VerticalAlign::kCentre;
  int flags = static_cast<int>(across | (middle ? Qt::AlignVCenter : Qt::AlignBottom));
  flags |= look.alignment.wrapped ? Qt::TextWordWrap : Qt::TextSingleLine | Qt::TextDontClip;
  QRectF box = cell.adjusted(side, 0, -side, middle ? 0 : -bottom);
  if (!look.alignment.wrapped && width > cell.width()) {
    const double over = width - cell.width();
    const double before = across == Qt::AlignLeft ? 0 : across == Qt::AlignRight ? over : over / 2;
    box.adjust(-before, 0, over - before, 0);
  }
  painter_.setFont(fonts_.FontOf(style));
  painter_.setPen(InkOf(look.font.colour));
  if (!look.alignment.wrapped && width <= room.width()) {
    painter_.drawText(box, flags, text);
    return;
  }
  painter_.save();
  const double narrowed = room.width() / width;
  // A number without its first digits is another number; a text that lacks the room for its last letter is
  // better read narrower.
  if (!look.alignment.wrapped && (is_number || narrowed >= kNarrowestText)) {
    const double fixed = across == Qt::AlignRight ? room.right() : room.left();
    painter_.translate(fixed, 0);
    painter_.scale(narrowed, 1);
    painter_.translate(-fixed, 0);
  } else {
    painter_.setClipRect(room.adjusted(0, 0, -line_, -line_), Qt::IntersectClip);
  }
  painter_.drawText(box, flags, text);
  painter_.restore();
}

void SheetPainter::PaintBorders(const SheetPart& part, const SheetPart::Row& row) {
  for (int column = part.first_column; column <= part.last_column; ++column) {
    const CellBorder& border = workbook_.Style(row.number, column).border;
    if (!border.OnAnySide() || IsMerged(row.number, column)) continue;
    PaintBorder({part.LeftOf(column), row.top, part.RightOf(column) - part.LeftOf(column), row.height},
                border, row.number == 1, column == 1);
  }
}

void SheetPainter::PaintBorder(const QRectF& cell, const CellBorder& border, bool is_first_row,
                               bool is_first_column) {
  // Lines lie where the hairlines are, at the far side of an edge; before the first cell there is no room.
  const double left = cell.left() - (is_first_column ? 0 : line_);
  const double top = cell.top() - (is_first_row ? 0 : line_);
  const double width = cell.right() - left;
  const double height = cell.bottom() - top;
  const QColor ink = InkOf(border.colour);
  if (border.left) Line(left, top, line_, height, ink);
  if (border.right) Line(cell.right() - line_, top, line_, height, ink);
  if (border.top) Line(left, top, width, line_, ink);
  if (border.bottom) Line(left, cell.bottom() - line_, width, line_, ink);
}

void SheetPainter::PaintMerge(const SheetPart& part, const CellRange& merge) {
  if (part.rows.empty() || merge.first_column > part.columns()) return;
  const auto first = std::find_if(part.rows.begin(), part.rows.end(), [&](const SheetPart::Row& row) {
    return row.number >= merge.first_row && row.number <= merge.last_row;
  });
  if (first == part.rows.end()) return;
  double top = first->top;
  for (int row = merge.first_row; row < first->number; ++row) top -= fonts_.RowExtent(row);
  double height = 0;
  for (int row = merge.first_row; row <= merge.last_row; ++row) height += fonts_.RowExtent(row);
  const int last_column = std::min(merge.last_column, part.columns());
  const QRectF cell(part.LeftOf(merge.first_column), top,
                    part.RightOf(last_column) - part.LeftOf(merge.first_column), height);
  painter_.fillRect(cell.adjusted(0, 0, -line_, -line_), Qt::white);
  const StyleId style = workbook_.StyleIdAt(merge.first_row, merge.first_column);
  const std::string_view text = workbook_.Text(merge.first_row, merge.first_column);
  const QString shown = ToQt(text);
  const double width = fonts_.WidthOf(style, shown) + 2 * kSidePadding * fonts_.unit();
  PaintText(cell, cell, style, shown, ReadsAsNumber(text), width);
  PaintBorder(cell, workbook_.StyleOf(style).border, merge.first_row == 1, merge.first_column == 1);
}

}  // namespace ovindra::desktop
