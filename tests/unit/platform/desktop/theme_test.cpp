// What can break in the look: colours that can't be read, a style sheet that Qt drops, things that move on
// focus.

#include "platform/desktop/theme/theme.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QColor>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QTextCharFormat>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/desktop/art/splash.h"
#include "platform/desktop/theme/dressing.h"
#include "platform/desktop/theme/roles.h"

namespace ovindra::theme {
namespace {

double Linear(double part) {
  return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color) {
  return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) + 0.0722 * Linear(color.blueF());
}

/// Contrast as WCAG 2.1 reckons it: 1 to 21.
double Contrast(const QColor& one, const QColor& other) {
  const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
  return (light + 0.05) / (dark + 0.05);
}

std::vector<std::string> complaints;

void Collect(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text) {
  if (text.contains("stylesheet", Qt::CaseInsensitive) || text.contains("property", Qt::CaseInsensitive)) {
    complaints.push_back(text.toStdString());
  }
}

// One application for the program's tests, in the light theme unless a test asks for the other.
class Look : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "theme_test";
    static char* argv[] = {name, nullptr};
    app_ = std::make_unique<QApplication>(argc, argv);
  }

  // Qt's own statics are gone by the time that the program's would be.
  static void TearDownTestSuite() { app_.reset(); }

  void SetUp() override { Apply(*qApp, Mode::Light); }

  static void ShowActive(QWidget& window) {
    window.show();
    QApplication::setActiveWindow(&window);
    QApplication::processEvents();
  }

 private:
  inline static std::unique_ptr<QApplication> app_;
};

struct Pair {
  const char* what;
  QColor Tokens::*ink;
  QColor Tokens::*ground;
  double least;
};

constexpr double kText = 4.5;
constexpr double kSign = 3.0;

const Pair kPairs[] = {
    {"text on a form", &Tokens::text, &Tokens::window, kText},
    {"text in a field", &Tokens::text, &Tokens::base, kText},
    {"text in a striped row", &Tokens::text, &Tokens::alt, kText},
    {"text in the focused field", &Tokens::text, &Tokens::focus_fill, kText},
    {"text on a card", &Tokens::text, &Tokens::card, kText},
    {"text on a button", &Tokens::text, &Tokens::button, kText},
    {"text on a menu", &Tokens::text, &Tokens::surface, kText},
    {"text on a soft row", &Tokens::text, &Tokens::soft, kText},
    {"label on a form", &Tokens::muted, &Tokens::window, kText},
    {"label on a report bar", &Tokens::muted, &Tokens::surface, kText},
    {"column head", &Tokens::muted, &Tokens::header, kText},
    {"status bar", &Tokens::muted, &Tokens::status, kText},
    {"primary button", &Tokens::on_fill, &Tokens::fill, kText},
    {"hovered primary button", &Tokens::on_fill, &Tokens::title_on, kText},
    {"lock sign", &Tokens::on_accent, &Tokens::accent, kText},
    {"heading on a form", &Tokens::heading, &Tokens::window, kText},
    {"heading on a card", &Tokens::heading, &Tokens::card, kText},
    {"disabled field", &Tokens::dis_text, &Tokens::dis_fill, kText},
    {"disabled menu item", &Tokens::dis_text, &Tokens::surface, kText},
    {"title of the active window", &Tokens::on_title_on, &Tokens::title_on, kText},
    {"title of another window", &Tokens::on_title_off, &Tokens::title_off, kText},
    {"border of a field", &Tokens::line, &Tokens::window, kSign},
    {"border of a card", &Tokens::line, &Tokens::card, kSign},
    {"ring on a form", &Tokens::focus, &Tokens::window, kSign},
    {"ring on a card", &Tokens::focus, &Tokens::card, kSign},
    {"ring on a primary button", &Tokens::ring_on, &Tokens::fill, kSign},
    {"radio button", &Tokens::accent, &Tokens::window, kSign},
    {"critical sign", &Tokens::err, &Tokens::header, kSign},
    {"exclamation sign", &Tokens::warn, &Tokens::header, kSign},
};

TEST(Contrast, EveryInkReadsOnItsGround) {
  for (const Tokens* tokens : {&LightTokens(), &DarkTokens()}) {
    for (const Pair& pair : kPairs) {
      EXPECT_GE(Contrast(tokens->*pair.ink, tokens->*pair.ground), pair.least)
          << pair.what << (tokens->dark ? ", dark" : ", light");
    }
  }
}

TEST_F(Look, DisabledTextStaysReadableThroughThePalette) {
  for (const Tokens* tokens : {&LightTokens(), &DarkTokens()}) {
    const QPalette palette = PaletteFrom(*tokens);
    EXPECT_GE(Contrast(palette.color(QPalette::Disabled, QPalette::Text),
                       palette.color(QPalette::Disabled, QPalette::Base)),
              kText);
    EXPECT_GE(Contrast(palette.color(QPalette::Disabled, QPalette::WindowText),
                       palette.color(QPalette::Disabled, QPalette::Window)),
              kText);
  }
}

TEST_F(Look, TheStyleSheetIsFilledAndTakenByQt) {
  complaints.clear();
  const QtMessageHandler before = qInstallMessageHandler(Collect);
  for (const Mode mode : {Mode::Light, Mode::Dark}) {
    Apply(*qApp, mode);
    QComboBox any;
    any.ensurePolished();
    EXPECT_FALSE(qApp->styleSheet().contains('@'));
    EXPECT_TRUE(qApp->styleSheet().contains(Current().focus_fill.name()));
  }
  qInstallMessageHandler(before);
  EXPECT_EQ(complaints, std::vector<std::string>{});
}

TEST_F(Look, FollowsTheDesktopAtTheStartAndWhenItChanges) {
  QPalette desktop;
  desktop.setColor(QPalette::Window, Qt::black);
  desktop.setColor(QPalette::WindowText, Qt::white);
  QApplication::setPalette(desktop);
  Apply(*qApp, Mode::FollowDesktop);
  EXPECT_TRUE(Current().dark);
  EXPECT_EQ(QApplication::palette().color(QPalette::Window), DarkTokens().window);
  QWidget window;
  QEvent change(QEvent::ThemeChange);  // the desktop under the tests is a light one
  QApplication::sendEvent(&window, &change);
  EXPECT_FALSE(Current().dark);
  EXPECT_EQ(QApplication::palette().color(QPalette::Window), LightTokens().window);
}

TEST_F(Look, AnAskedForModeIsNotTheDesktops) {
  Apply(*qApp, Mode::Dark);
  EXPECT_TRUE(Current().dark);
  EXPECT_EQ(QApplication::palette().color(QPalette::Window), DarkTokens().window);
}

struct Focusable {
  const char* what;
  std::function<std::unique_ptr<QWidget>()> make;
  int height;
};

template <class Kind>
std::unique_ptr<QWidget> Primary() {
  auto widget = std::make_unique<Kind>("Save");
  role::Set(*widget, role::kPrimary);
  return widget;
}

std::unique_ptr<QWidget> Combo() {
  auto combo = std::make_unique<QComboBox>();
  combo->addItem("HIGH MYOPIA");
  return combo;
}

std::unique_ptr<QWidget> TypedCombo() {
  auto combo = Combo();
  static_cast<QComboBox&>(*combo).setEditable(true);
  return combo;
}

// The first column within the widget's border where something is written on its ground.
int LeftOfInk(QWidget& widget) {
  constexpr int kBorder = 4;
  const QImage picture = widget.grab().toImage();
  const QColor ground = picture.pixelColor(kBorder, kBorder);
  for (int x = kBorder; x < picture.width() - kBorder; ++x) {
    for (int y = kBorder; y < picture.height() - kBorder; ++y) {
      if (Contrast(picture.pixelColor(x, y), ground) > 2) return x;
    }
  }
  return -1;
}

TEST_F(Look, FieldsHaveOneHeightAndNothingMovesOnFocus) {
  const Focusable kinds[] = {
      {"text", [] { return std::make_unique<QLineEdit>("HIGH MYOPIA"); }, kFieldHeight},
      {"combo", Combo, kFieldHeight},
      {"typed combo", TypedCombo, kFieldHeight},
      {"radio", [] { return std::make_unique<QRadioButton>("Male"); }, kFieldHeight},
      {"button", [] { return std::make_unique<QPushButton>("Save"); }, kButtonHeight},
      {"primary button", Primary<QPushButton>, kButtonHeight},
  };
  for (const Focusable& kind : kinds) {
    QWidget window;
    auto* column = new QVBoxLayout(&window);
    auto* other = new QLineEdit;
    QWidget* widget = kind.make().release();
    column->addWidget(other);
    column->addWidget(widget, 0, Qt::AlignLeft);
    ShowActive(window);
    other->setFocus();
    const QSize size = widget->size();
    const int ink = LeftOfInk(*widget);
    widget->setFocus();
    ASSERT_TRUE(widget->hasFocus()) << kind.what;
    widget->updateGeometry();
    QApplication::processEvents();
    EXPECT_EQ(widget->size(), size) << kind.what;
    EXPECT_EQ(LeftOfInk(*widget), ink) << kind.what;
    EXPECT_GT(ink, 0) << kind.what;
    EXPECT_EQ(widget->height(), kind.height) << kind.what;
  }
}

TEST_F(Look, TheWholeFocusedFieldHasTheGroundOfTheFocus) {
  QWidget window;
  auto* column = new QVBoxLayout(&window);
  auto* typed = new QComboBox;
  typed->setEditable(true);
  auto* date = new QDateEdit;
  auto* text = new QLineEdit;
  for (QWidget* field : std::initializer_list<QWidget*>{typed, date, text}) column->addWidget(field);
  ShowActive(window);
  for (QWidget* field : std::initializer_list<QWidget*>{typed, date, text}) {
    field->setFocus();
    QApplication::processEvents();
    // Just inside the ring, where neither text nor cursor stands.
    const QImage picture = field->grab().toImage();
    for (const int x : {4, 40, field->width() / 2}) {
      EXPECT_EQ(picture.pixelColor(x, 4), LightTokens().focus_fill)
          << field->metaObject()->className() << " at " << x;
    }
  }
}

TEST_F(Look, TheSelectedRowIsStrongOnlyWhileItsGridHasTheFocus) {
  QWidget window;
  auto* column = new QVBoxLayout(&window);
  auto* field = new QLineEdit;
  auto* grid = new QTableView;
  QStandardItemModel model(3, 2);
  DressGrid(*grid);
  grid->setModel(&model);
  grid->selectRow(1);
  column->addWidget(field);
  column->addWidget(grid);
  ShowActive(window);
  const auto row_color = [&] {
    QApplication::processEvents();
    const QRect cell = grid->visualRect(model.index(1, 0));
    return grid->viewport()->grab().toImage().pixelColor(cell.center());
  };
  grid->setFocus();
  EXPECT_EQ(row_color(), LightTokens().fill);
  field->setFocus();
  EXPECT_EQ(row_color(), LightTokens().soft);
  EXPECT_EQ(grid->rowHeight(0), kGridRowHeight);
}

TEST_F(Look, TheCalendarStartsOnMondayWithoutWeekNumbersOrRedDays) {
  QCalendarWidget calendar;
  calendar.ensurePolished();
  EXPECT_EQ(calendar.firstDayOfWeek(), Qt::Monday);
  EXPECT_EQ(calendar.verticalHeaderFormat(), QCalendarWidget::NoVerticalHeader);
  for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday}) {
    EXPECT_EQ(calendar.weekdayTextFormat(day).foreground().color(), LightTokens().text);
  }
}

TEST_F(Look, MessageBoxesPutYesBeforeNoAndShowNoIconsOnButtons) {
  QMessageBox box(QMessageBox::Question, "Sure ?", "Are You Sure Want to Save it",
                  QMessageBox::No | QMessageBox::Yes);
  ShowActive(box);
  EXPECT_LT(box.button(QMessageBox::Yes)->x(), box.button(QMessageBox::No)->x());
  EXPECT_TRUE(box.button(QMessageBox::Yes)->icon().isNull());
  EXPECT_FALSE(box.iconPixmap().isNull());
}

TEST_F(Look, TheSplashKeepsPlainPlacesForItsLabels) {
  QImage picture(art::kSplashSize, QImage::Format_RGB32);
  QPainter painter(&picture);
  art::PaintSplash(painter, art::SplashTitle::LeftToLabel);
  painter.end();
  struct Place {
    const char* what;
    QRect rect;
    QColor ink;
    double least;
  };
  const Place places[] = {
      {"title, white", art::kSplashTitle, Qt::white, kText},
      {"title, red", art::kSplashTitle, Qt::red, kSign},
      {"institute", art::kSplashInstitute, Qt::white, kText},
      {"version", art::kSplashVersion, art::kSplashPale, kText},
      {"credit line", art::kSplashCredit, art::kSplashPale, kText},
  };
  for (const Place& place : places) {
    ASSERT_TRUE(picture.rect().contains(place.rect)) << place.what;
    double worst = 21;
    for (int y = place.rect.top(); y <= place.rect.bottom(); ++y) {
      for (int x = place.rect.left(); x <= place.rect.right(); ++x) {
        worst = std::min(worst, Contrast(place.ink, picture.pixelColor(x, y)));
      }
    }
    EXPECT_GE(worst, place.least) << place.what;
  }
}

}  // namespace
}  // namespace ovindra::theme
