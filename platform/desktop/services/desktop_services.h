// The services of the machine on the desktop, message boxes apart: pointer, dialogs, clock, the files beside
// the program, the calculator. Each is bound to the running QApplication and keeps nothing of its callers.
#pragma once

#include <QPrinter>
#include <memory>

#include "base/machine/machine.h"

namespace ovindra::desktop {

/// The pointer over all windows of the program.
class WindowPointer : public Pointer {
 public:
  void Set(PointerShape shape) override;
  PointerShape shape() const { return shape_; }

 private:
  PointerShape shape_ = PointerShape::kDefault;
};

class WindowDialogs : public Dialogs {
 public:
  std::string AskSaveName() override;
  /// Where the machine has no printer a PDF file in the documents folder stands in for one, and the person is
  /// told its name.
  bool AskPrinter() override;

  /// The printer that was last asked for.
  QPrinter& printer();

 private:
  bool AskForPaperFile();

  std::unique_ptr<QPrinter> printer_;
  /// Where the last workbook went.
  QString save_folder_;
};

class SystemClock : public Clock {
 public:
  Moment Now() const override;
};

/// The folder of the program's file.
class FolderBesideProgram : public ProgramFolder {
 public:
  std::optional<std::string> FirstLine(std::string_view name) const override;
  bool Has(std::string_view name) const override;
};

class DesktopCalculator : public Calculator {
 public:
  void Start() override;
};

/// Takes the machine's short date form over, with four digits for the year; one that is not made of numbers
/// alone is left aside.
void UseSystemShortDateForm();

}  // namespace ovindra::desktop
