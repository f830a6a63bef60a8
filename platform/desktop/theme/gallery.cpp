// Shows every kind of widget in the program's look, for the eyes of whoever changes it. `--pictures DIR
// [--dark]` writes the same as PNG files instead of opening windows; set QT_QPA_PLATFORM=offscreen where
// there is no screen.

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QPaintEvent>
#include <QPainter>
#include <QStatusBar>
#include <QTableView>
#include <cstdio>

#include "platform/desktop/art/backdrop.h"
#include "platform/desktop/art/splash.h"
#include "platform/desktop/theme/gallery_forms.h"
#include "platform/desktop/theme/roles.h"
#include "platform/desktop/theme/theme.h"

namespace {

using namespace ovindra;
namespace role = theme::role;

class BackdropArea : public QMdiArea {
 protected:
  void paintEvent(QPaintEvent* event) override {
    QPainter painter(viewport());
    const QPixmap& picture =
        backdrop_.Picture(viewport()->size(), devicePixelRatioF(), theme::Current().dark);
    painter.setClipRegion(event->region());
    painter.drawPixmap(0, 0, picture);
  }

 private:
  art::Backdrop backdrop_;
};

class SplashView : public QWidget {
 public:
  SplashView() { setFixedSize(art::kSplashSize); }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    art::PaintSplash(painter, art::SplashTitle::Painted);
  }
};

QMenu* FillMenu(QMenuBar& bar) {
  QMenu* entry = bar.addMenu("DATA &ENTRY");
  entry->addAction("Enrolled Child")->setShortcut(QKeySequence("Ctrl+E"));
  entry->addAction("Screened Child")->setShortcut(QKeySequence("Ctrl+S"));
  entry->addAction("Screened School")->setEnabled(false);
  entry->addAction("New Format");
  for (const char* name : {"&REPORT", "&MASTER", "&HELP", "E&XIT"}) bar.addMenu(name);
  return entry;
}

void FillStatus(QStatusBar& bar) {
  const auto lock = [&](const QString& text, const QString& state) {
    auto* label = new QLabel(text);
    role::Set(*label, role::kLock, state);
    bar.addWidget(label);
  };
  bar.setSizeGripEnabled(false);
  lock("CAPS", "on");
  lock("NUM", "off");
  bar.addWidget(theme::Label("Prepared By :- Orvel Tann", role::kPanel), 1);
  bar.addPermanentWidget(theme::Label("24/05/2016", role::kPanel));
  bar.addPermanentWidget(theme::Label("10:42 AM", role::kPanel));
}

struct Gallery {
  QMainWindow window;
  BackdropArea* area = new BackdropArea;
  QMenu* menu = nullptr;
  QMdiSubWindow* entry = nullptr;
  QMdiSubWindow* master = nullptr;
  QMdiSubWindow* report = nullptr;
};

void Build(Gallery& gallery) {
  QMainWindow& window = gallery.window;
  window.setWindowTitle("OVINDRA DESK");
  window.setCentralWidget(gallery.area);
  gallery.area->setFrameShape(QFrame::NoFrame);
  gallery.menu = FillMenu(*window.menuBar());
  FillStatus(*window.statusBar());
  window.resize(1366, 704);
}

void AddChildren(Gallery& gallery) {
  gallery.report = gallery.area->addSubWindow(theme::ReportForm());
  gallery.report->setGeometry(120, 90, 900, 420);
  gallery.report->show();
  gallery.entry = gallery.area->addSubWindow(theme::EntryForm());
  gallery.entry->setGeometry(8, 2, 1350, 645);
  gallery.master = gallery.area->addSubWindow(theme::MasterForm());
  gallery.master->setGeometry(60, 40, 860, 476);
  gallery.entry->show();
  gallery.master->show();
}

QMessageBox* Message(QMessageBox::Icon icon, const QString& text) {
  auto* box = new QMessageBox(icon, "Sure ?", text);
  if (icon == QMessageBox::Question) box->setStandardButtons(QMessageBox::Yes | QMessageBox::No);
  return box;
}

// Writes pictures of windows as they look when they are active, which only a shown window does.
class Pictures {
 public:
  explicit Pictures(const QString& folder) : folder_(folder) { folder_.mkpath("."); }

  void Take(QWidget& widget, const QString& name) {
    QApplication::setActiveWindow(&widget);
    Settle();
    if (!widget.grab().save(folder_.filePath(name + ".png"))) {
      std::fprintf(stderr, "cannot write %s\n", qPrintable(name));
    }
  }

  void TakeWindow(QWidget& widget, const QString& name) {
    widget.show();
    Take(widget, name);
    widget.hide();
  }

  static void Settle() {
    for (int i = 0; i < 4; ++i) QApplication::processEvents();
  }

 private:
  QDir folder_;
};

void TakeForms(Gallery& gallery, Pictures& pictures) {
  QApplication::setActiveWindow(&gallery.window);
  gallery.master->findChild<QTableView*>()->setFocus();
  pictures.Take(gallery.window, "master");
  gallery.area->setActiveSubWindow(gallery.entry);
  gallery.entry->findChild<QLineEdit*>("focused")->setFocus();
  pictures.Take(gallery.window, "entry");
  gallery.entry->findChild<QComboBox*>("typed")->setFocus();
  pictures.Take(gallery.window, "typed");
  theme::AddCards(*gallery.entry->widget());
  pictures.Take(gallery.window, "cards");
  gallery.area->setActiveSubWindow(gallery.report);
  pictures.Take(gallery.window, "report");
  gallery.area->setActiveSubWindow(gallery.entry);
  gallery.entry->showMaximized();
  pictures.Take(gallery.window, "maximised");
  auto* combo = gallery.entry->findChild<QComboBox*>();
  combo->addItems({"GRANT 2015", "GRANT 2014", "SELF"});
  combo->showPopup();
  Pictures::Settle();
  pictures.Take(*combo->view()->window(), "popup");
  combo->hidePopup();
}

void TakeAll(Gallery& gallery, const QString& folder) {
  Pictures pictures(folder);
  gallery.window.show();
  pictures.Take(gallery.window, "main");
  gallery.menu->popup(QPoint(14, 28));
  pictures.Take(*gallery.menu, "menu");
  gallery.menu->hide();
  AddChildren(gallery);
  TakeForms(gallery, pictures);
  SplashView splash;
  pictures.TakeWindow(splash, "splash");
  QDialog* login = theme::LoginWindow();
  login->findChild<QLineEdit*>("password")->setFocus();
  pictures.TakeWindow(*login, "login");
  pictures.TakeWindow(*Message(QMessageBox::Question, "Are You Sure Want to Save it"), "question");
  pictures.TakeWindow(*Message(QMessageBox::Information, "This Record Saved"), "information");
  pictures.TakeWindow(*Message(QMessageBox::Warning, "This Record Already Exist"), "exclamation");
  pictures.TakeWindow(*Message(QMessageBox::Critical, "Incorrect syntax near 'NEIL'."), "critical");
}

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  const bool dark = arguments.contains("--dark");
  const qsizetype pictures = arguments.indexOf("--pictures");
  const bool headless = pictures > 0 && pictures + 1 < arguments.size();
  theme::Apply(app, dark ? theme::Mode::Dark : headless ? theme::Mode::Light : theme::Mode::FollowDesktop);
  Gallery gallery;
  Build(gallery);
  if (headless) {
    TakeAll(gallery, arguments[pictures + 1]);
    return 0;
  }
  AddChildren(gallery);
  gallery.window.show();
  SplashView splash;
  splash.show();
  theme::LoginWindow()->show();
  Message(QMessageBox::Question, "Are You Sure Want to Save it")->show();
  return QApplication::exec();
}
