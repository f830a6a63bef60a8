// The machine's services for papers that are no matter of windows: workbooks and documents as files, and the
// spreadsheet application of the desktop.
#pragma once

#include "base/machine/machine.h"

namespace ovindra {

class PaperFiles : public WorkbookFiles, public WordProcessor {
 public:
  void Write(const Workbook& workbook, std::string_view path) override;
  void StartWordProcessor() override;
  void SaveDocument(const Document& document, std::string_view path) override;
};

class DesktopSpreadsheet : public SpreadsheetApplication {
 public:
  void StartSpreadsheet() override;
  void ShowWorkbook(const Workbook& workbook) override;
  void CloseWorkbooks() override {}
};

}  // namespace ovindra
