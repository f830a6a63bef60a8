#include "platform/desktop/binder/sheet_model.h"

#include <QColor>
#include <algorithm>

#include "platform/desktop/binder/text.h"
#include "platform/desktop/paper/column_letters.h"
#include "platform/desktop/paper/sheet_fonts.h"

namespace ovindra::desktop {
namespace {

constexpr int kFewestRows = 100;
constexpr int kFewestColumns = 40;
constexpr int kRowsBeyond = 30;
constexpr int kColumnsBeyond = 10;

int AlignmentOf(const CellAlignment& alignment) {
  Qt::Alignment shown = alignment.vertical == VerticalAlign::kCentre ? Qt::AlignVCenter : Qt::AlignBottom;
  if (alignment.horizontal == HorizontalAlign::kLeft) shown |= Qt::AlignLeft;
  if (alignment.horizontal == HorizontalAlign::kCentre) shown |= Qt::AlignHCenter;
  if (alignment.horizontal == HorizontalAlign::kRight) shown |= Qt::AlignRight;
  return static_cast<int>(shown);
}

int LinesOf(const CellBorder& border) {
  Qt::Edges edges;
  edges.setFlag(Qt::LeftEdge, border.left);
  edges.setFlag(Qt::RightEdge, border.right);
  edges.setFlag(Qt::TopEdge, border.top);
  edges.setFlag(Qt::BottomEdge, border.bottom);
  return static_cast<int>(edges);
}

}  // namespace

void SheetModel::Refresh() {
  beginResetModel();
  used_rows_ = workbook_.last_row();
  used_columns_ = workbook_.last_column();
  rows_ = std::max(used_rows_ + kRowsBeyond, kFewestRows);
  columns_ = std::max(used_columns_ + kColumnsBeyond, kFewestColumns);
  endResetModel();
}

QVariant SheetModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const int row = index.row() + 1;
  const int column = index.column() + 1;
  if (role == Qt::DisplayRole) return ToQt(workbook_.Text(row, column));
  const CellStyle& style = workbook_.Style(row, column);
  switch (role) {
    case Qt::FontRole:
      return ScreenFont(style.font, 1);
    case Qt::ForegroundRole:
      return QColor(Red(style.font.colour), Green(style.font.colour), Blue(style.font.colour));
    case Qt::TextAlignmentRole:
      return AlignmentOf(style.alignment);
    case kWrapped:
      return style.alignment.wrapped;
    case kLines:
      return LinesOf(style.border);
    default:
      return {};
  }
}

QVariant SheetModel::headerData(int section, Qt::Orientation orientation, int role) const {
  const bool is_column = orientation == Qt::Horizontal;
  if (role == kWidth && is_column) return workbook_.ColumnWidth(section + 1);
  if (role == Qt::TextAlignmentRole) return static_cast<int>(Qt::AlignCenter);
  if (role != Qt::DisplayRole) return {};
  return is_column ? ColumnLetters(section + 1) : QString::number(section + 1);
}

}  // namespace ovindra::desktop
