// The program on the desktop: a window for each open form, the services of the machine, and the event loop.
// It follows one program at a time; QApplication and program belong to the caller. What a form has changed is
// shown when the action has ended, or before a message box opens. An error that ends the program is shown in
// one last box.
#pragma once

#include <QEventLoop>
#include <QObject>
#include <QPointer>
#include <memory>
#include <optional>
#include <vector>

#include "base/machine/machine.h"
#include "core/startup/program.h"
#include "platform/desktop/services/desktop_services.h"
#include "platform/desktop/services/message_box.h"
#include "platform/desktop/services/sheet_printer.h"
#include "platform/desktop/windows/form_window.h"

namespace ovindra::desktop {

/// The machine's services for papers that are no matter of windows. Their owner keeps them as long as the
/// desktop.
struct OfficeServices {
  WorkbookFiles& workbook_files;
  SpreadsheetApplication& spreadsheet;
  WordProcessor& word_processor;
};

class Desktop : public QObject, public ProgramObserver {
 public:
  /// `main_size` is the size of the main window, which fills the screen when it is empty.
  explicit Desktop(const OfficeServices& office, ViewSettings settings = {}, QSize main_size = {});
  ~Desktop() override;

  /// The services of this machine, for whoever makes the program.
  Machine& machine() { return machine_; }

  /// Shows the program's windows from now on. Null lets go of the one before, its windows with it.
  void Follow(Program* program);

  /// Starts the program, with the splash animation or past it, and runs until it ends. Gives the exit code: 1
  /// when an error has ended the program.
  enum class Splash { kShow, kSkip };
  int Run(Program& program, Splash splash);

  /// Shows all that has changed so far.
  void ShowChanges();

  /// The window of an open form; null when there is none.
  FormWindow* WindowOf(const Form& form) const;

  void FormMade(Form& form) override;
  void FormShown(Form& form) override;
  void FormUnloaded(Form& form) override;
  void ActionEnded() override;
  void Ended(const std::optional<RuntimeError>& error) override;

 private:
  BackdropArea* Area() const;
  void SkipSplash();
  void TakeFirstFocus();

  ViewSettings settings_;
  QSize main_size_;
  WindowMessageBox message_box_;
  WindowPointer pointer_;
  WindowDialogs dialogs_;
  SystemClock clock_;
  FolderBesideProgram folder_;
  DesktopCalculator calculator_;
  SheetPrinter printer_{dialogs_};
  Machine machine_;
  Program* program_ = nullptr;
  std::vector<std::unique_ptr<FormWindow>> windows_;
  /// Forms to be brought up, in the order in which they were shown.
  std::vector<FormWindow*> to_show_;
  bool is_skipping_splash_ = false;
  bool has_ended_ = false;
  QEventLoop* loop_ = nullptr;
  std::optional<RuntimeError> error_;
};

/// The box of a run-time error that ends the program.
Message EndMessage(const RuntimeError& error);

}  // namespace ovindra::desktop
