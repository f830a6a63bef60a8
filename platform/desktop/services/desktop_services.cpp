#include "platform/desktop/services/desktop_services.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include "base/runtime_error.h"
#include "platform/desktop/binder/text.h"
#include "platform/desktop/services/asking_cursor.h"
#include "platform/desktop/services/documents.h"

namespace ovindra::desktop {
namespace {

constexpr const char* kCalculators[] = {
    "calc.exe",  "gnome-calculator", "kcalc",       "qalculate-gtk",     "qalculate-qt", "galculator",
    "mate-calc", "lxqt-calculator",  "speedcrunch", "deepin-calculator", "xcalc",
};

QString BesideProgram(std::string_view name) {
  return QCoreApplication::applicationDirPath() + ToQt(name).replace('\\', '/');
}

}  // namespace

void WindowPointer::Set(PointerShape shape) {
  if (shape == shape_) return;
  shape_ = shape;
  if (shape == PointerShape::kHourglass) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

std::string WindowDialogs::AskSaveName() {
  const AskingCursor cursor;
  if (save_folder_.isEmpty()) save_folder_ = DocumentsFolder();
  const QString name =
      QFileDialog::getSaveFileName(QApplication::activeWindow(), "Save As", save_folder_,
                                   "Excel Files (*.xls);;Excel workbook (*.xlsx);;All files (*)");
  if (!name.isEmpty()) save_folder_ = QFileInfo(name).path();
  return FromQt(name);
}

bool WindowDialogs::AskPrinter() {
  // A range of pages or a file of the last time must not go on silently.
  printer_.reset();
  const AskingCursor cursor;
  if (QPrinterInfo::availablePrinterNames().isEmpty()) return AskForPaperFile();
  QPrintDialog dialog(&printer(), QApplication::activeWindow());
  return dialog.exec() == QDialog::Accepted;
}

bool WindowDialogs::AskForPaperFile() {
  const QString file = FreshDocument("Report", "pdf");
  QMessageBox box(QMessageBox::Information, "Print",
                  "This computer has no printer. The report is written as a PDF file:\n\n" +
                      QDir::toNativeSeparators(file),
                  QMessageBox::Ok | QMessageBox::Cancel, QApplication::activeWindow());
  if (box.exec() != QMessageBox::Ok) return false;
  printer().setOutputFormat(QPrinter::PdfFormat);
  printer().setOutputFileName(file);
  return true;
}

QPrinter& WindowDialogs::printer() {
  // Asking the printing system takes a while; most days nobody prints.
  if (printer_ == nullptr) printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
  return *printer_;
}

Moment SystemClock::Now() const {
  const QDateTime now = QDateTime::currentDateTime();
  return StartOf(FromQt(now.date())) + std::chrono::seconds(QTime(0, 0).secsTo(now.time()));
}

std::optional<std::string> FolderBesideProgram::FirstLine(std::string_view name) const {
  QFile file(BesideProgram(name));
  if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) return {};
  QByteArray line = file.readLine();
  if (line.endsWith('\n')) line.chop(1);
  return line.toStdString();
}

bool FolderBesideProgram::Has(std::string_view name) const {
  return QFile::exists(BesideProgram(name));
}

void DesktopCalculator::Start() {
  for (const char* name : kCalculators) {
    const QString program = QStandardPaths::findExecutable(name);
    if (!program.isEmpty() && QProcess::startDetached(program, {})) return;
  }
  throw FileNotFound();
}

void UseSystemShortDateForm() {
  static const QRegularExpression kNumbersAlone("^(?=.*d)(?=.*M)(?=.*y)(d{1,2}|M{1,2}|yy|yyyy|[-./ ])+$");
  QString form = QLocale::system().dateFormat(QLocale::ShortFormat);
  if (!kNumbersAlone.match(form).hasMatch() || form.contains("ddd") || form.contains("MMM")) return;
  if (!form.contains("yyyy")) form.replace("yy", "yyyy");
  UseShortDateForm(FromQt(form));
}

}  // namespace ovindra::desktop
