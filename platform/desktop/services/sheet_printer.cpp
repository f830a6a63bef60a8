#include "platform/desktop/services/sheet_printer.h"

#include <QPainter>

#include "base/runtime_error.h"

namespace ovindra::desktop {

void SheetPrinter::Print(const Workbook& workbook) {
  QPainter painter;
  if (!painter.begin(&dialogs_.printer())) throw PrinterError();
  painter.drawText(painter.window(), Qt::AlignTop | Qt::AlignLeft,
                   QString::fromStdString(workbook.sheet_name()));
}

}  // namespace ovindra::desktop
