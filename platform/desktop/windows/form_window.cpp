#include "platform/desktop/windows/form_window.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QLayout>
#include <QMainWindow>
#include <QMdiSubWindow>
#include <QScreen>
#include <QVariant>
#include <utility>

#include "platform/desktop/binder/sheet_view.h"

namespace ovindra::desktop {
namespace {

// A form's file says how its window is to be, without naming a toolkit's flag.
constexpr auto kWindowKind = "window";

void Centre(QWidget& window) {
  if (const QScreen* screen = window.screen()) {
    window.move(screen->availableGeometry().center() - window.rect().center());
  }
}

}  // namespace

FormWindow::FormWindow(Form& form, const Perform& perform, const ViewSettings& settings, QSize main_size,
                       std::function<void(Form&)> close)
    : view_(form, perform, settings), main_size_(main_size), close_(std::move(close)) {}

FormWindow::~FormWindow() {
  Retire();
  delete window_.data();
}

BackdropArea* FormWindow::area() const {
  auto* main = qobject_cast<QMainWindow*>(window_.data());
  return main == nullptr ? nullptr : dynamic_cast<BackdropArea*>(main->centralWidget());
}

void FormWindow::Show(BackdropArea* area) {
  view_.Build();
  view_.ShowChanges();
  const bool is_new = window_ == nullptr;
  if (is_new) MakeWindow(area);
  if (window_->isMinimized()) window_->showNormal();
  auto* child = qobject_cast<QMdiSubWindow*>(window_.data());
  if (is_new && child == nullptr) {
    ShowAlone(view_.root()->property(kWindowKind).toString());
  } else {
    window_->show();
  }
  window_->raise();
  if (child != nullptr) {
    child->mdiArea()->setActiveSubWindow(child);
  } else {
    window_->activateWindow();
  }
  view_.ShowFocus();
}

void FormWindow::MakeWindow(BackdropArea* area) {
  QWidget& root = *view_.root();
  const bool is_child =
      root.property(kWindowKind).toString().isEmpty() && qobject_cast<QMainWindow*>(&root) == nullptr;
  if (area != nullptr && is_child) {
    MakeChild(*area);
  } else {
    window_ = &root;
  }
  window_->installEventFilter(this);
}

void FormWindow::MakeChild(BackdropArea& area) {
  auto* child = new QMdiSubWindow;
  child->setWidget(view_.root());
  child->setAttribute(Qt::WA_DeleteOnClose, false);
  area.addSubWindow(child);
  window_ = child;
  connect(&area, &QMdiArea::subWindowActivated, &view_, [this, child](const QMdiSubWindow* active) {
    if (active == child) view_.ShowFocus();
  });
  // A sheet is read from its top to its end, and every row that is in sight helps.
  const bool is_report = view_.root()->findChild<SheetView*>() != nullptr;
  area.Place(*child, is_report ? BackdropArea::Height::kAll : BackdropArea::Height::kWished);
}

void FormWindow::ShowAlone(const QString& kind) {
  if (qobject_cast<QMainWindow*>(window_.data()) != nullptr) {
    if (main_size_.isEmpty()) {
      window_->showMaximized();
    } else {
      window_->resize(main_size_);
      window_->show();
    }
    return;
  }
  if (kind == "splash") window_->setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
  if (!kind.isEmpty() && window_->layout() != nullptr)
    window_->layout()->setSizeConstraint(QLayout::SetFixedSize);
  window_->adjustSize();
  Centre(*window_);
  window_->show();
}

void FormWindow::Retire() {
  if (view_.IsRetired()) return;
  view_.Retire();
  if (window_ == nullptr) return;
  window_->removeEventFilter(this);
  window_->hide();
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Close && watched == window_ && !view_.IsRetired()) {
    event->ignore();
    close_(form());
    return true;
  }
  if (event->type() == QEvent::WindowActivate && watched == window_) {
    QMetaObject::invokeMethod(&view_, &FormView::ShowFocus, Qt::QueuedConnection);
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace ovindra::desktop
