#include "tools/driver/window/window_player.h"

#include <QMainWindow>
#include <QMdiSubWindow>
#include <QPainter>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "base/controls/menu.h"
#include "platform/desktop/binder/form_file.h"
#include "platform/desktop/binder/text.h"
#include "tools/driver/window/application.h"
#include "tools/driver/window_player.h"
#include "tools/driver/world/world.h"

namespace ovindra::driver {
namespace {

// The smallest screen that the program is made for.
constexpr QSize kMainWindow(1366, 768);

MessageIcon IconOf(QMessageBox::Icon icon) {
  switch (icon) {
    case QMessageBox::Critical:
      return MessageIcon::kCritical;
    case QMessageBox::Question:
      return MessageIcon::kQuestion;
    case QMessageBox::Warning:
      return MessageIcon::kExclamation;
    case QMessageBox::Information:
      return MessageIcon::kInformation;
    case QMessageBox::NoIcon:
      break;
  }
  return MessageIcon::kPlain;
}

QMessageBox::StandardButton ButtonOf(Answer answer) {
  if (answer == Answer::kYes) return QMessageBox::Yes;
  return answer == Answer::kNo ? QMessageBox::No : QMessageBox::Ok;
}

Message Read(const QMessageBox& box) {
  return {desktop::FromQt(box.text()), desktop::FromQt(box.windowTitle()), IconOf(box.icon()),
          box.button(QMessageBox::Yes) != nullptr ? MessageButtons::kYesNo : MessageButtons::kOk};
}

}  // namespace

WindowPlayer::WindowPlayer(Look look) {
  DesktopApplication(look);
}

void WindowPlayer::ProgramMade(Program& program) {
  program_ = &program;
  const Machine& machine = world_->machine().services();
  desktop_ = std::make_unique<desktop::Desktop>(
      desktop::OfficeServices{machine.workbook_files, machine.spreadsheet, machine.word_processor},
      desktop::ViewSettings{QCoreApplication::applicationDirPath(), desktop::Timers::kStandStill,
                            [this](const Form& form) { world_->trace().FocusMoved(form); }},
      kMainWindow);
  desktop_->Follow(&program);
}

void WindowPlayer::ProgramGone() {
  ClosePopups();
  Settle();
  desktop_.reset();
  program_ = nullptr;
  pointer_.Set(PointerShape::kDefault);
}

SeenMessage WindowPlayer::ShowMessage(const Message& message, Answer answer) {
  desktop_->ShowChanges();
  QWidget* below = QApplication::activeWindow();
  const auto box = desktop::MakeMessageBox(message, below);
  SeenMessage seen;
  QTimer::singleShot(0, box.get(), [&] {
    seen.message = Read(*box);
    QTest::mouseClick(box->button(ButtonOf(answer)), Qt::LeftButton);
  });
  box->exec();
  // Without a window manager nobody else gives the keyboard back.
  if (below != nullptr) QApplication::setActiveWindow(below);
  seen.answer = desktop::AnswerOf(*box);
  return seen;
}

void WindowPlayer::Settle() {
  QApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QApplication::processEvents();
}

/// A list or a menu stays open until the next step, so that a picture can be taken of it.
void WindowPlayer::ClosePopups() {
  while (QWidget* popup = QApplication::activePopupWidget()) popup->close();
}

void WindowPlayer::TakePicture(std::string_view form, const std::string& file) {
  QWidget* window = WindowOf(form).window()->window();
  if (QApplication::activePopupWidget() == nullptr) QApplication::setActiveWindow(window);
  QApplication::processEvents();
  QPixmap picture = window->grab();
  if (QWidget* popup = QApplication::activePopupWidget()) {
    QPainter painter(&picture);
    painter.drawPixmap(window->mapFromGlobal(popup->pos()), popup->grab());
  }
  if (!picture.save(desktop::ToQt(file))) throw StepFailure("a picture in " + file, "it can't be written");
}

desktop::FormWindow& WindowPlayer::WindowOf(std::string_view form) const {
  const Form* open = program_->OpenForm(form);
  desktop::FormWindow* window = open == nullptr ? nullptr : desktop_->WindowOf(*open);
  if (window == nullptr || window->window() == nullptr) {
    throw StepFailure("a window of " + std::string(form), "none on the screen");
  }
  return *window;
}

Control& WindowPlayer::ControlOf(const ControlName& name) const {
  return *WindowOf(name.form).form().Find(name.control);
}

desktop::WidgetBinding& WindowPlayer::BindingOf(const ControlName& name) const {
  desktop::WidgetBinding* binding = WindowOf(name.form).view().BindingOf(ControlOf(name));
  if (binding == nullptr) throw StepFailure("a widget for " + name.control, "none in the form's window");
  return *binding;
}

QAction* WindowPlayer::ActionOf(const ControlName& name) const {
  auto* item = dynamic_cast<MenuItem*>(&ControlOf(name));
  if (item == nullptr) return nullptr;
  auto* action = WindowOf(name.form).view().root()->findChild<QAction*>(desktop::WidgetName(*item));
  if (action == nullptr) throw StepFailure("a menu item " + name.control, "none in the menus");
  return action;
}

const Timer* WindowPlayer::TimerOf(const ControlName& name) const {
  return dynamic_cast<const Timer*>(&ControlOf(name));
}

std::unique_ptr<Player> MakeWindowPlayer(Look look) {
  return std::make_unique<WindowPlayer>(look);
}

}  // namespace ovindra::driver
