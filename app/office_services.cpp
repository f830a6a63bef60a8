#include "app/office_services.h"

#include <QDesktopServices>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QUrl>
#include <filesystem>

#include "base/runtime_error.h"
#include "platform/desktop/services/documents.h"
#include "platform/office/office_files.h"
#include "platform/office/program_path.h"

namespace ovindra {
namespace {

std::filesystem::path PathOf(const QString& text) {
  return {text.toStdU16String()};
}

std::filesystem::path FileOf(std::string_view path) {
  if (path.empty()) throw PathFileAccess();
  return office::ProgramPath(path, PathOf(desktop::DocumentsFolder()));
}

/// Whether the desktop knows what to open a workbook with.
bool HasSpreadsheetApplication() {
#ifdef Q_OS_WIN
  return !QSettings("HKEY_CLASSES_ROOT\\.xlsx", QSettings::NativeFormat).value(".").toString().isEmpty();
#elif defined(Q_OS_MACOS)
  return true;
#else
  const QString asker = QStandardPaths::findExecutable("xdg-mime");
  if (asker.isEmpty()) return false;
  QProcess query;
  query.start(asker,
              {"query", "default", "application/vnd.openxmlformats-officedocument.spreadsheetml.sheet"});
  return query.waitForFinished() && !query.readAllStandardOutput().trimmed().isEmpty();
#endif
}

}  // namespace

void PaperFiles::Write(const Workbook& workbook, std::string_view path) {
  office::WriteWorkbook(workbook, FileOf(path));
}

void PaperFiles::SaveDocument(const Document& document, std::string_view path) {
  office::WriteDocument(document, FileOf(path));
}

void DesktopSpreadsheet::StartSpreadsheet() {
  if (!HasSpreadsheetApplication()) throw CannotCreateObject();
}

void DesktopSpreadsheet::ShowWorkbook(const Workbook& workbook) {
  const QString file = desktop::FreshDocument("Report", "xlsx");
  office::WriteWorkbook(workbook, PathOf(file));
  if (!QDesktopServices::openUrl(QUrl::fromLocalFile(file))) throw CannotCreateObject();
}

}  // namespace ovindra
