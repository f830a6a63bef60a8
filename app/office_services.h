// The machine's services for papers that are no matter of windows: workbooks and documents as files, and the
// spreadsheet application of the desktop. Bound to the running QApplication; keeps nothing of its callers.
#pragma once

#include "base/machine/machine.h"

namespace ovindra {

/// Files by the program's own paths. Documents are written without a word processor, so that none is ever
/// missing.
class PaperFiles : public WorkbookFiles, public WordProcessor {
 public:
  void Write(const Workbook& workbook, std::string_view path) override;
  void StartWordProcessor() override {}
  void SaveDocument(const Document& document, std::string_view path) override;
};

/// Whatever the desktop opens workbooks with. It is handed each one as a new file of the documents folder.
class DesktopSpreadsheet : public SpreadsheetApplication {
 public:
  void StartSpreadsheet() override;
  void ShowWorkbook(const Workbook& workbook) override;
  /// What the application shows is the person's by then.
  void CloseWorkbooks() override {}
};

}  // namespace ovindra
