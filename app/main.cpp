// The program: puts its parts together and runs it on the desktop.
#include <QApplication>
#include <QCommandLineParser>
#include <QStandardPaths>
#include <QTimer>

#include "app/data_sources.h"
#include "app/forms.h"
#include "app/freed_memory.h"
#include "app/office_services.h"
#include "platform/desktop/desktop.h"
#include "platform/desktop/theme/theme.h"

namespace {

using namespace ovindra;

struct CommandLine {
  std::vector<std::filesystem::path> folders;
  desktop::Desktop::Splash splash = desktop::Desktop::Splash::kShow;
  bool ends_at_login = false;
};

std::filesystem::path PathOf(const QString& text) {
  return {text.toStdU16String()};
}

CommandLine ReadCommandLine(const QApplication& application) {
  const QCommandLineOption database("database", "The folder of the two database files, ZQR.db and ward.db.",
                                    "folder");
  const QCommandLineOption no_splash("no-splash", "Start with the login window at once.");
  const QCommandLineOption until_login("until-login",
                                       "End when the login window stands, to measure the start.");
  QCommandLineParser parser;
  parser.setApplicationDescription("Child eye screening");
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addOptions({database, no_splash, until_login});
  parser.process(application);
  CommandLine line;
  if (parser.isSet(database)) {
    line.folders = {PathOf(parser.value(database))};
  } else {
    const QString data =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/ovindra-desk";
    line.folders = {PathOf(QCoreApplication::applicationDirPath()), PathOf(data)};
  }
  if (parser.isSet(no_splash)) line.splash = desktop::Desktop::Splash::kSkip;
  line.ends_at_login = parser.isSet(until_login);
  return line;
}

}  // namespace

int main(int argc, char** argv) {
  KeepFreedMemory();
  QApplication application(argc, argv);
  QApplication::setApplicationName("ovindra-desk");
  QApplication::setApplicationVersion(OVINDRA_VERSION);
  const CommandLine line = ReadCommandLine(application);
  theme::Apply(application);
  desktop::UseSystemShortDateForm();
  ConfiguredDataSources sources(line.folders);
  PaperFiles papers;
  DesktopSpreadsheet spreadsheet;
  desktop::Desktop windows({papers, spreadsheet, papers});
  Program program(windows.machine(), sources, AllForms());
  if (line.ends_at_login) {
    QTimer::singleShot(0, [&] { program.Perform([&] { program.End(); }); });
  }
  return windows.Run(program, line.splash);
}
