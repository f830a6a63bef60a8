// The hands and eyes of a scenario: how a person's actions reach the program and how what a person sees is
// read back. The runner decides what is done and compares what is seen; a player only does and reads. There
// are two: one on the named controls, one on the widgets of the desktop. One player serves a whole run and
// enters a fresh World for every scenario; it owns neither the World nor the Program.
//
// Names: a form by its name ("frmenroll", letter case does not matter), a control by its form and its full
// name
// ("Text1", "m1(3)"). The runner has made sure that the form is open and the control is one of it; for
// actions also that the control can be seen and is enabled, as the player's own eyes say.
//
// Failure: an action or a reading that can't be done (no such entry in the list, no text on such a control)
// throws StepFailure, never from inside Program::Perform. An action that a validate step prevents is silently
// not done.
#pragma once

#include <exception>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/controls/control.h"
#include "base/date.h"
#include "base/machine/machine.h"
#include "core/startup/program.h"

namespace ovindra::driver {

class World;

/// How the windows look, where there are any.
enum class Look { kLight, kDark };

/// A control as a scenario names it: "frmenroll", "Text1".
struct ControlName {
  std::string form;
  std::string control;
};

/// A step that does not hold or can't be done: what was expected and what was found, each a phrase.
class StepFailure : public std::exception {
 public:
  StepFailure(std::string expected, std::string found)
      : expected_(std::move(expected)), found_(std::move(found)) {}

  const std::string& expected() const { return expected_; }
  const std::string& found() const { return found_; }
  const char* what() const noexcept override { return expected_.c_str(); }

 private:
  std::string expected_;
  std::string found_;
};

/// A message box as a person saw it, and the button it was closed with.
struct SeenMessage {
  Message message;
  Answer answer = Answer::kOk;
};

/// A cell of a report sheet as a person sees it.
struct SeenCell {
  std::string text;
  CellStyle style;
};

class Player {
 public:
  virtual ~Player() = default;

  // The stage. The World calls these.

  /// A scenario begins; the World stands until LeaveWorld. It has no program yet.
  virtual void EnterWorld(World& world) = 0;
  virtual void LeaveWorld() = 0;

  /// A program was made, nothing of it is shown yet. It stands until ProgramGone, which is called just before
  /// it is destroyed; a scenario may have several, one after the other.
  virtual void ProgramMade(Program& program) = 0;
  virtual void ProgramGone() = 0;

  /// The World follows the program itself and passes all that it sees on to this one, where there is one:
  /// what the desktop shows its windows by.
  virtual ProgramObserver* program_observer() { return nullptr; }

  // The machine, as far as it has a face. Called from inside an action of the program.

  /// Shows the box, closes it with that answer and tells what stood in it.
  virtual SeenMessage ShowMessage(const Message& message, Answer answer) { return {message, answer}; }
  /// Shows the pointer over the program's windows.
  virtual void SetPointer(PointerShape shape) = 0;
  /// Shows the save dialog and closes it with that name, which is empty for its Cancel.
  virtual std::string ShowSaveDialog(const std::string& name) { return name; }
  /// Shows the printer dialog and closes it with OK or Cancel.
  virtual bool ShowPrinterDialog(bool ok) { return ok; }

  // Hands. Each brings the focus to the control first, as a click or the Tab key would, where the control
  // takes it. Opening a form and the ticks of a timer are no matter of hands: the runner does them on the
  // program.

  /// The steps go to this form from now on: its window comes to the front.
  virtual void TurnTo(std::string_view form) = 0;

  virtual void Click(const ControlName& control) = 0;
  virtual void DoubleClick(const ControlName& control) = 0;
  virtual void ClickCell(const ControlName& grid, int row, int column) = 0;
  virtual void DoubleClickCell(const ControlName& grid, int row, int column) = 0;
  /// Moves the current cell there by keyboard.
  virtual void MoveToCell(const ControlName& grid, int row, int column) = 0;

  virtual void Focus(const ControlName& control) = 0;
  /// Moves the focus on from the control to the next one.
  virtual void Leave(const ControlName& control) = 0;

  /// Types key by key, at the end of what stands there or over a selected text.
  virtual void Type(const ControlName& control, std::string_view text) = 0;
  /// Inserts as the clipboard does, at the end or over a selected text: no key filter sees it.
  virtual void Paste(const ControlName& control, std::string_view text) = 0;
  /// Selects what stands in the box and deletes it.
  virtual void Clear(const ControlName& control) = 0;
  virtual void Press(const ControlName& control, Key key) = 0;
  /// A key pressed wherever the focus is.
  virtual void PressOnForm(std::string_view form, Key key) = 0;

  /// Picks with the mouse the first entry that reads so.
  virtual void Pick(const ControlName& list, std::string_view entry) = 0;
  virtual void Choose(const ControlName& option) = 0;
  /// Leaves a check box as it is when it is so already.
  virtual void Tick(const ControlName& check, bool on) = 0;
  virtual void SelectTab(const ControlName& tabs, std::string_view caption) = 0;
  virtual void SetDate(const ControlName& picker, Date date) = 0;
  virtual void ClickDay(const ControlName& calendar, Date date) = 0;

  /// Closes the form by its window frame.
  virtual void CloseWindow(std::string_view form) = 0;

  /// Lets what a step has caused come to rest. Called after every step.
  virtual void Settle() {}

  // Eyes.

  virtual bool IsOpen(std::string_view form) = 0;
  virtual std::string FormCaption(std::string_view form) = 0;
  /// The full name of the control that has the focus; empty when none of the form has it.
  virtual std::string FocusedControl(std::string_view form) = 0;
  virtual PointerShape SeenPointer() = 0;

  /// As a person sees them: the states of the frames around are in them.
  virtual bool IsEnabled(const ControlName& control) = 0;
  virtual bool IsVisible(const ControlName& control) = 0;
  /// Option button or check box.
  virtual bool IsOn(const ControlName& control) = 0;

  /// The text of a box, combo box, list (its current entry) or label; the caption of a button, option, check
  /// box, frame or menu item as the code writes it, mnemonic included; the chosen tab's caption; a date as
  /// "mm/dd/yyyy"; the file of a picture.
  virtual std::string Text(const ControlName& control) = 0;
  /// The caption that stands beside a box, combo box, list or date.
  virtual std::string LabelBeside(const ControlName& control) = 0;
  /// A panel of a status bar, counted from 0.
  virtual std::string PanelText(const ControlName& bar, int panel) = 0;
  virtual std::vector<std::string> Items(const ControlName& list) = 0;

  /// The rows of a grid, the header included.
  virtual int GridRows(const ControlName& grid) = 0;
  /// The cells of one row, the header being row 0.
  virtual std::vector<std::string> GridRow(const ControlName& grid, int row) = 0;

  /// A cell of a report sheet, counted from 1; beyond what was written it is empty and plain.
  virtual SeenCell SheetCell(const ControlName& sheet, int row, int column) = 0;
  /// In the sheet's own unit.
  virtual int SheetColumnWidth(const ControlName& sheet, int column) = 0;

  /// A picture of the form's window, where there is one, into that file.
  virtual void TakePicture(std::string_view form, const std::string& file) = 0;
};

std::unique_ptr<Player> MakeControlsPlayer();

}  // namespace ovindra::driver
