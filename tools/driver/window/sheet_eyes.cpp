// What a person sees of a report sheet, read back from the view that shows it.
#include <QColor>
#include <QFont>

#include "platform/desktop/binder/sheet_view.h"
#include "platform/desktop/binder/text.h"
#include "tools/driver/window/find_widget.h"

namespace ovindra::driver {

using desktop::FromQt;
using desktop::SheetModel;
using desktop::SheetView;

namespace {

HorizontalAlign HorizontalOf(Qt::Alignment alignment) {
  if (alignment.testFlag(Qt::AlignLeft)) return HorizontalAlign::kLeft;
  if (alignment.testFlag(Qt::AlignHCenter)) return HorizontalAlign::kCentre;
  return alignment.testFlag(Qt::AlignRight) ? HorizontalAlign::kRight : HorizontalAlign::kGeneral;
}

Colour ColourOf(const QColor& colour) {
  return static_cast<Colour>(colour.red() | colour.green() << 8 | colour.blue() << 16);
}

CellFont FontOf(const QModelIndex& cell) {
  const auto shown = cell.data(Qt::FontRole).value<QFont>();
  CellFont font;
  font.name = FromQt(shown.family());
  font.size = qRound(shown.pointSizeF());
  font.bold = shown.bold();
  font.italic = shown.italic();
  font.underline = shown.underline();
  font.strikeout = shown.strikeOut();
  font.colour = ColourOf(cell.data(Qt::ForegroundRole).value<QColor>());
  return font;
}

CellStyle StyleOf(const QModelIndex& cell) {
  CellStyle style;
  style.font = FontOf(cell);
  const Qt::Alignment alignment(cell.data(Qt::TextAlignmentRole).toInt());
  style.alignment = {HorizontalOf(alignment), cell.data(SheetModel::kWrapped).toBool(),
                     alignment.testFlag(Qt::AlignVCenter) ? VerticalAlign::kCentre : VerticalAlign::kBottom};
  const Qt::Edges lines(cell.data(SheetModel::kLines).toInt());
  style.border.left = lines.testFlag(Qt::LeftEdge);
  style.border.right = lines.testFlag(Qt::RightEdge);
  style.border.top = lines.testFlag(Qt::TopEdge);
  style.border.bottom = lines.testFlag(Qt::BottomEdge);
  return style;
}

}  // namespace

SeenCell WindowPlayer::SheetCell(const ControlName& name, int row, int column) {
  const QModelIndex cell = WidgetOf<SheetView>(name).model()->index(row - 1, column - 1);
  // Beyond the paper that is shown there is more of the same.
  if (!cell.isValid()) return {};
  return {FromQt(cell.data().toString()), StyleOf(cell)};
}

int WindowPlayer::SheetColumnWidth(const ControlName& name, int column) {
  const auto& sheet = WidgetOf<SheetView>(name);
  return column > sheet.model()->columnCount() ? Workbook::kDefaultColumnWidth : sheet.ShownWidth(column);
}

}  // namespace ovindra::driver
