// Papers of the program on a desktop: where its own paths lead, and what is handed to the spreadsheet
// application.
#include "app/office_services.h"

#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QUrl>
#include <functional>

#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "platform/desktop/services/documents.h"

namespace ovindra {
namespace {

/// Stands in for the desktop that opens files.
class Opener : public QObject {
  Q_OBJECT

 public:
  QStringList opened;

  Q_SLOT void Open(const QUrl& url) { opened.push_back(url.toLocalFile()); }
};

class OfficeServices : public testing::Test {
 protected:
  OfficeServices() {
    qputenv("HOME", home_.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", home_.path().toUtf8());
    QDesktopServices::setUrlHandler("file", &opener_, "Open");
  }
  ~OfficeServices() override { QDesktopServices::unsetUrlHandler("file"); }

  /// The number of the error that the action ends with; 0 for none.
  static long ErrorOf(const std::function<void()>& action) {
    try {
      action();
    } catch (const RuntimeError& error) {
      return error.number();
    }
    return 0;
  }

  QTemporaryDir home_;
  Opener opener_;
};

TEST_F(OfficeServices, TheProgramsOwnPathsLeadToTheDocuments) {
  Workbook workbook;
  workbook.SetText(1, 1, "x");
  PaperFiles papers;
  EXPECT_EQ(ErrorOf([&] { papers.Write(workbook, ""); }), 75);
  papers.Write(workbook, "C:\\Enroll.xls");
  papers.SaveDocument({12, false, "line\r\n"}, "c:\\worddata.doc");
  EXPECT_TRUE(QFile::exists(desktop::DocumentsFolder() + "/Enroll.xls"));
  EXPECT_TRUE(QFile::exists(desktop::DocumentsFolder() + "/worddata.doc"));
}

TEST_F(OfficeServices, EveryShownWorkbookIsAFileOfItsOwn) {
  DesktopSpreadsheet spreadsheet;
  spreadsheet.ShowWorkbook(Workbook());
  spreadsheet.ShowWorkbook(Workbook());
  ASSERT_EQ(opener_.opened.size(), 2);
  EXPECT_EQ(QFileInfo(opener_.opened[0]).fileName(), "Report.xlsx");
  EXPECT_EQ(QFileInfo(opener_.opened[1]).fileName(), "Report 2.xlsx");
  for (const QString& file : opener_.opened) EXPECT_TRUE(QFile::exists(file));
}

TEST_F(OfficeServices, AMachineWithoutASpreadsheetApplicationSaysSo) {
  const QByteArray path = qgetenv("PATH");
  qputenv("PATH", "");
  DesktopSpreadsheet spreadsheet;
  EXPECT_EQ(ErrorOf([&] { spreadsheet.StartSpreadsheet(); }), 429);
  qputenv("PATH", path);
}

}  // namespace
}  // namespace ovindra

int main(int count, char** arguments) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&count, arguments);
  const QGuiApplication application(count, arguments);
  return RUN_ALL_TESTS();
}

#include "office_services_test.moc"
