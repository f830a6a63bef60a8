#include "platform/desktop/services/sheet_printer.h"

#include "platform/desktop/paper/print_sheet.h"

namespace ovindra::desktop {

void SheetPrinter::Print(const Workbook& workbook) {
  PrintSheet(workbook, dialogs_.printer());
}

}  // namespace ovindra::desktop
