#include "platform/desktop/desktop.h"

#include <QApplication>
#include <algorithm>
#include <utility>

#include "base/controls/shown.h"

namespace ovindra::desktop {

Message EndMessage(const RuntimeError& error) {
  return {"Run-time error '" + std::to_string(error.number()) + "':\n\n" + error.text(), "Ovindra Desk",
          MessageIcon::kCritical, MessageButtons::kOk};
}

Desktop::Desktop(const OfficeServices& office, ViewSettings settings, QSize main_size)
    : settings_(std::move(settings)),
      main_size_(main_size),
      message_box_([this] { ShowChanges(); }),
      machine_{message_box_,
               pointer_,
               dialogs_,
               clock_,
               folder_,
               calculator_,
               office.workbook_files,
               printer_,
               office.spreadsheet,
               office.word_processor} {
  if (settings_.pictures.isEmpty()) settings_.pictures = QCoreApplication::applicationDirPath();
}

Desktop::~Desktop() {
  Follow(nullptr);
}

void Desktop::Follow(Program* program) {
  to_show_.clear();
  // Child windows first: the main window's area owns them.
  while (!windows_.empty()) windows_.pop_back();
  program_ = program;
  has_ended_ = false;
  error_.reset();
}

int Desktop::Run(Program& program, Splash splash) {
  QApplication::setQuitOnLastWindowClosed(false);
  Follow(&program);
  program.Observe(this);
  is_skipping_splash_ = splash == Splash::kSkip;
  program.Start();
  if (is_skipping_splash_) SkipSplash();
  QEventLoop loop;
  loop_ = &loop;
  if (!has_ended_) loop.exec();
  loop_ = nullptr;
  program.Observe(nullptr);
  const bool failed = error_.has_value();
  if (failed) MakeMessageBox(EndMessage(*error_), nullptr)->exec();
  Follow(nullptr);
  return failed ? 1 : 0;
}

void Desktop::SkipSplash() {
  constexpr auto kSplash = "frmflash";
  while (Form* splash = program_->OpenForm(kSplash)) {
    auto* timer = dynamic_cast<Timer*>(splash->Find("Timer1"));
    if (timer == nullptr || has_ended_) break;
    program_->Perform([timer] { timer->Tick(); });
  }
  is_skipping_splash_ = false;
  ActionEnded();
}

void Desktop::ShowChanges() {
  if (is_skipping_splash_) return;
  for (FormWindow* window : std::exchange(to_show_, {})) window->Show(Area());
  for (const auto& window : windows_) window->view().ShowChanges();
}

FormWindow* Desktop::WindowOf(const Form& form) const {
  const auto found = std::find_if(windows_.begin(), windows_.end(),
                                  [&](const auto& window) { return &window->form() == &form; });
  return found == windows_.end() ? nullptr : found->get();
}

void Desktop::FormMade(Form& form) {
  const auto perform = [this](const std::function<void()>& action) {
    if (program_ == nullptr) return;
    program_->Perform(action);
    // An action within another, a timer below an open message box, has not ended in the program's sense.
    ShowChanges();
  };
  const auto close = [this](Form& closing) { program_->Perform([&] { program_->UserClose(closing); }); };
  windows_.push_back(std::make_unique<FormWindow>(form, perform, settings_, main_size_, close));
}

void Desktop::FormShown(Form& form) {
  FormWindow* window = WindowOf(form);
  std::erase(to_show_, window);
  if (window != nullptr) to_show_.push_back(window);
}

void Desktop::FormUnloaded(Form& form) {
  const auto found = std::find_if(windows_.begin(), windows_.end(),
                                  [&](const auto& window) { return &window->form() == &form; });
  if (found == windows_.end()) return;
  std::erase(to_show_, found->get());
  // Its widgets may be the ones that are handling the event which led here.
  FormWindow* window = found->release();
  windows_.erase(found);
  window->Retire();
  window->deleteLater();
}

void Desktop::ActionEnded() {
  ShowChanges();
  TakeFirstFocus();
}

void Desktop::TakeFirstFocus() {
  if (is_skipping_splash_ || has_ended_ || program_->has_ended()) return;
  for (Form* form : program_->OpenForms()) {
    FormWindow* window = WindowOf(*form);
    if (window != nullptr && window->window() != nullptr) window->view().TakeFirstFocus();
  }
}

void Desktop::Ended(const std::optional<RuntimeError>& error) {
  if (has_ended_) return;
  has_ended_ = true;
  error_ = error;
  to_show_.clear();
  for (const auto& window : windows_) {
    if (window->window() != nullptr) window->window()->hide();
  }
  // Quitting the application would ask the windows first and get a no from each.
  if (loop_ != nullptr) loop_->quit();
}

BackdropArea* Desktop::Area() const {
  for (const auto& window : windows_) {
    if (BackdropArea* area = window->area()) return area;
  }
  return nullptr;
}

}  // namespace ovindra::desktop
