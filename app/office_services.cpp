#include "app/office_services.h"

#include "base/runtime_error.h"

namespace ovindra {

void PaperFiles::Write(const Workbook&, std::string_view) {
  throw PathFileAccess();
}

void PaperFiles::StartWordProcessor() {
  throw CannotCreateObject();
}

void PaperFiles::SaveDocument(const Document&, std::string_view) {
  throw PathFileAccess();
}

void DesktopSpreadsheet::StartSpreadsheet() {
  throw CannotCreateObject();
}

void DesktopSpreadsheet::ShowWorkbook(const Workbook&) {
  throw CannotCreateObject();
}

}  // namespace ovindra
