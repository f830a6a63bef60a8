// The printer of the desktop: sheets on the printer that the person was last asked for.
#pragma once

#include "base/machine/machine.h"
#include "platform/desktop/services/desktop_services.h"

namespace ovindra::desktop {

class SheetPrinter : public Printer {
 public:
  /// The dialogs hold the printer and outlive this.
  explicit SheetPrinter(WindowDialogs& dialogs) : dialogs_(dialogs) {}

  /// Error 482 when the printer takes nothing.
  void Print(const Workbook& workbook) override;

 private:
  WindowDialogs& dialogs_;
};

}  // namespace ovindra::desktop
