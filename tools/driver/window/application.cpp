#include "tools/driver/window/application.h"

#include <cstdio>

#include "platform/desktop/theme/theme.h"

namespace ovindra::driver {
namespace {

/// Offscreen there is nothing to raise a window over, which Qt never tires of telling.
void PassOn(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (text.startsWith("This plugin does not support")) return;
  std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, text)));
}

void GoOffscreenWithoutDisplay() {
  if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) return;
#ifndef Q_OS_WIN
  if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
#endif
}

}  // namespace

QApplication& DesktopApplication(Look look) {
  static char name[] = "ovindra-drive";
  static char* arguments[] = {name, nullptr};
  static int count = 1;
  static QApplication* application = nullptr;
  if (application == nullptr) {
    GoOffscreenWithoutDisplay();
    qInstallMessageHandler(PassOn);
    // Lives as long as the process, since windows of a player may still be on their way out.
    application = new QApplication(count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    theme::Apply(*application, look == Look::kDark ? theme::Mode::Dark : theme::Mode::Light);
  }
  return *application;
}

}  // namespace ovindra::driver
