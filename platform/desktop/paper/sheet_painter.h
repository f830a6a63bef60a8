// Draws a part of a sheet: hairlines, texts that run over empty neighbours, borders and merged cells. The
// screen and the printer draw with it, so that what is seen is what is printed. It keeps nothing; the
// workbook and the fonts are its caller's.
#pragma once

#include <QPainter>
#include <vector>

#include "platform/desktop/paper/sheet_fonts.h"

namespace ovindra::desktop {

/// What is drawn, and where on the painter's device.
struct SheetPart {
  struct Row {
    int number;
    double top;
    double height;
  };

  /// The left edge of column 1, then the right edge of every column.
  std::vector<double> edges;
  int first_column = 1;
  int last_column = 0;
  /// From the top downwards.
  std::vector<Row> rows;

  int columns() const { return static_cast<int>(edges.size()) - 1; }
  double LeftOf(int column) const { return edges[static_cast<std::size_t>(column) - 1]; }
  double RightOf(int column) const { return edges[static_cast<std::size_t>(column)]; }
};

class SheetPainter {
 public:
  /// `line` is the width of every line. An invalid `hairline` draws none between the cells.
  SheetPainter(QPainter& painter, const Workbook& workbook, SheetFonts& fonts, double line, QColor hairline);

  void Paint(const SheetPart& part);

 private:
  /// A text with the columns that it is given.
  struct Run {
    int column;
    int from;
    int to;
    double width;
    QString text;
  };

  std::vector<Run> RunsOf(const SheetPart& part, int row);
  Run RunOf(const SheetPart& part, int row, int column);
  bool IsFree(const SheetPart& part, int row, int column) const;
  bool IsMerged(int row, int column) const;

  void PaintHairlines(const SheetPart& part, const SheetPart::Row& row, const std::vector<Run>& runs);
  void PaintRun(const SheetPart& part, const SheetPart::Row& row, const Run& run);
  void PaintText(const QRectF& cell, const QRectF& room, StyleId style, const QString& text, bool is_number,
                 double width);
  void PaintBorders(const SheetPart& part, const SheetPart::Row& row);
  void PaintBorder(const QRectF& cell, const CellBorder& border, bool is_first_row, bool is_first_column);
  void PaintMerge(const SheetPart& part, const CellRange& merge);
  void Line(double left, double top, double width, double height, const QColor& colour);

  QPainter& painter_;
  const Workbook& workbook_;
  SheetFonts& fonts_;
  double line_;
  QColor hairline_;
};

}  // namespace ovindra::desktop
