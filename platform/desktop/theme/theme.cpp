#include "platform/desktop/theme/theme.h"

#include <QEvent>
#include <QFile>
#include <QFont>
#include <QRegularExpression>
#include <cassert>

#include "platform/desktop/art/program_icon.h"
#include "platform/desktop/theme/desktop_style.h"

// Qt's macro may not stand in a namespace; without it the linker drops the resource of a static library.
static void InitThemeResource() {
  Q_INIT_RESOURCE(theme);
}

namespace ovindra::theme {
namespace {

constexpr qreal kPointSize = 10;

const Tokens* current = nullptr;

QFont ProgramFont() {
  QFont font;
  font.setFamilies({"Noto Sans", "Segoe UI", "Open Sans", "DejaVu Sans"});
  font.setPointSizeF(kPointSize);
  return font;
}

void Dress(QApplication& application, const Tokens& tokens) {
  current = &tokens;
  QApplication::setPalette(PaletteFrom(tokens));
  application.setStyleSheet(StyleSheetFrom(tokens));
}

const Tokens& DesktopTokens() {
  return IsDark(QApplication::palette()) ? DarkTokens() : LightTokens();
}

// Dresses the application anew when the desktop tells its windows that its theme is another one.
class DesktopWatcher : public QObject {
 public:
  explicit DesktopWatcher(QApplication& application) : QObject(&application), application_(application) {}

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::ThemeChange && !dressing_) Follow();
    return QObject::eventFilter(watched, event);
  }

 private:
  void Follow() {
    dressing_ = true;
    QApplication::setPalette(QPalette());  // uncovers the desktop's own colours
    const Tokens& wanted = DesktopTokens();
    // Every window tells of the change; the style sheet is only parsed anew for the first.
    if (&wanted == current) {
      QApplication::setPalette(PaletteFrom(wanted));
    } else {
      Dress(application_, wanted);
    }
    dressing_ = false;
  }

  QApplication& application_;
  bool dressing_ = false;
};

}  // namespace

void Apply(QApplication& application, Mode mode) {
  InitThemeResource();
  const Tokens& tokens = mode == Mode::FollowDesktop ? DesktopTokens()
                         : mode == Mode::Dark        ? DarkTokens()
                                                     : LightTokens();
  QApplication::setStyle(new DesktopStyle);
  // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): the application owns the style from here on
  QApplication::setFont(ProgramFont());
  QApplication::setWindowIcon(art::ProgramIcon());
  Dress(application, tokens);
  if (mode == Mode::FollowDesktop) application.installEventFilter(new DesktopWatcher(application));
}

const Tokens& Current() {
  return current == nullptr ? LightTokens() : *current;
}

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
}

QPalette PaletteFrom(const Tokens& tokens) {
  QPalette palette;
  const auto set = [&](QPalette::ColorRole role, const QColor& color, const QColor& disabled) {
    palette.setColor(QPalette::All, role, color);
    palette.setColor(QPalette::Disabled, role, disabled);
  };
  set(QPalette::Window, tokens.window, tokens.window);
  set(QPalette::WindowText, tokens.text, tokens.dis_text);
  set(QPalette::Base, tokens.base, tokens.dis_fill);
  set(QPalette::AlternateBase, tokens.alt, tokens.dis_fill);
  set(QPalette::Text, tokens.text, tokens.dis_text);
  set(QPalette::PlaceholderText, tokens.muted, tokens.dis_text);
  set(QPalette::Button, tokens.button, tokens.dis_fill);
  set(QPalette::ButtonText, tokens.text, tokens.dis_text);
  set(QPalette::BrightText, tokens.err, tokens.dis_text);
  set(QPalette::Highlight, tokens.fill, tokens.dis_line);
  set(QPalette::HighlightedText, tokens.on_fill, tokens.dis_text);
  set(QPalette::Link, tokens.heading, tokens.dis_text);
  set(QPalette::LinkVisited, tokens.heading, tokens.dis_text);
  set(QPalette::ToolTipBase, tokens.card, tokens.card);
  set(QPalette::ToolTipText, tokens.text, tokens.text);
  set(QPalette::Light, tokens.surface, tokens.surface);
  set(QPalette::Midlight, tokens.header, tokens.header);
  set(QPalette::Mid, tokens.hair, tokens.dis_line);
  set(QPalette::Dark, tokens.line, tokens.dis_line);
  set(QPalette::Shadow, tokens.line, tokens.dis_line);
  return palette;
}

QString StyleSheetFrom(const Tokens& tokens) {
  InitThemeResource();
  QFile file(":/ovindra/theme.qss");
  const bool opened = file.open(QIODevice::ReadOnly);
  assert(opened);
  static_cast<void>(opened);
  QString sheet = QString::fromUtf8(file.readAll());
  for (const TokenName& token : kTokenNames) {
    // The word boundary keeps @fill from being found in a longer name that starts the same way.
    const QRegularExpression name(QString("@%1\\b").arg(token.name));
    sheet.replace(name, (tokens.*token.color).name());
  }
  return sheet;
}

}  // namespace ovindra::theme
