// The fonts and measures that a sheet is drawn with, on the screen and on paper alike. Made for one workbook,
// one scale and one device, whose resolution the fonts follow; the workbook outlives them.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QPaintDevice>
#include <optional>
#include <vector>

#include "base/workbook/workbook.h"

namespace ovindra::desktop {

/// The width of a column in 96ths of an inch.
double ColumnPixels(int width);

/// The height of a row in 96ths of an inch: its text and a little air.
double RowPixels(double points);

/// The font of a cell at that scale; for the reports' Times New Roman whatever of its measures is there.
QFont ScreenFont(const CellFont& font, double scale);

/// Whether a cell aligned in the general way stands right: a number, a percentage.
bool ReadsAsNumber(std::string_view text);

class SheetFonts {
 public:
  /// `scale` is 1 for the size that is told in points.
  SheetFonts(const Workbook& workbook, double scale, const QPaintDevice& device);

  /// Units of the device to a 96th of an inch, the scale included.
  double unit() const { return unit_; }
  double ColumnExtent(int column) const { return ColumnPixels(workbook_.ColumnWidth(column)) * unit_; }
  double RowExtent(int row) const { return RowPixels(workbook_.RowHeight(row)) * unit_; }

  const QFont& FontOf(StyleId style);
  double WidthOf(StyleId style, const QString& text);

 private:
  struct Known {
    QFont font;
    QFontMetricsF metrics;
  };

  Known& Of(StyleId style);

  const Workbook& workbook_;
  double scale_;
  const QPaintDevice& device_;
  double unit_;
  std::vector<std::optional<Known>> known_;
};

}  // namespace ovindra::desktop
