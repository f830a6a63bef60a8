#include "platform/desktop/binder/sheet_search.h"

#include <QStringMatcher>
#include <algorithm>

#include "platform/desktop/binder/text.h"

namespace ovindra::desktop {
namespace {

QString CopiedCell(std::string_view cell) {
  QString text = ToQt(cell);
  if (cell.find_first_of("\t\r\n\"") == std::string_view::npos) return text;
  return '"' + text.replace('"', "\"\"") + '"';
}

}  // namespace

std::optional<SheetCell> FindInSheet(const Workbook& workbook, const QString& text, SheetCell start,
                                     SearchFrom from) {
  const int rows = workbook.last_row();
  const int columns = workbook.last_column();
  if (text.isEmpty() || rows == 0 || columns == 0) return {};
  const QStringMatcher matcher(text, Qt::CaseInsensitive);
  const auto holds = [&](int row, int column) {
    const std::string_view cell = workbook.Text(row, column);
    return !cell.empty() && matcher.indexIn(ToQt(cell)) >= 0;
  };
  const long cells = static_cast<long>(rows) * columns;
  const int first_row = std::clamp(start.row, 1, rows);
  const int first_column = std::clamp(start.column, 1, columns);
  const long first = static_cast<long>(first_row - 1) * columns + first_column - 1;
  const long step = from == SearchFrom::kPrevious ? cells - 1 : 1;
  long place = from == SearchFrom::kHere ? first : (first + step) % cells;
  for (long looked = 0; looked < cells; ++looked, place = (place + step) % cells) {
    const SheetCell cell{static_cast<int>(place / columns) + 1, static_cast<int>(place % columns) + 1};
    if (holds(cell.row, cell.column)) return cell;
  }
  return {};
}

QString CopiedText(const Workbook& workbook, const CellRange& block) {
  QString copied;
  for (int row = block.first_row; row <= block.last_row; ++row) {
    for (int column = block.first_column; column <= block.last_column; ++column) {
      if (column > block.first_column) copied += '\t';
      copied += CopiedCell(workbook.Text(row, column));
    }
    copied += '\n';
  }
  return copied;
}

}  // namespace ovindra::desktop
