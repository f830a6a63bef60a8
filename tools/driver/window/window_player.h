// The player on the widgets of the desktop program: its hands press keys and mouse buttons on them, its eyes
// read what they show. Windows are those of the desktop itself, with a program of the World behind them;
// timers stand still, since scenarios let them tick. It owns the desktop of the program that runs.
#pragma once

#include <memory>

#include "base/controls/shown.h"
#include "platform/desktop/binder/binding.h"
#include "platform/desktop/desktop.h"
#include "tools/driver/player.h"

namespace ovindra::driver {

class WindowPlayer : public Player {
 public:
  explicit WindowPlayer(Look look);

  void EnterWorld(World& world) override { world_ = &world; }
  void LeaveWorld() override { world_ = nullptr; }
  void ProgramMade(Program& program) override;
  void ProgramGone() override;
  ProgramObserver* program_observer() override { return desktop_.get(); }

  SeenMessage ShowMessage(const Message& message, Answer answer) override;
  void SetPointer(PointerShape shape) override { pointer_.Set(shape); }

  void TurnTo(std::string_view form) override;
  void Click(const ControlName& name) override;
  void DoubleClick(const ControlName& name) override;
  void ClickCell(const ControlName& grid, int row, int column) override;
  void DoubleClickCell(const ControlName& grid, int row, int column) override;
  void MoveToCell(const ControlName& grid, int row, int column) override;
  void Focus(const ControlName& name) override;
  void Leave(const ControlName& name) override;
  void Type(const ControlName& name, std::string_view text) override;
  void Paste(const ControlName& name, std::string_view text) override;
  void Clear(const ControlName& name) override;
  void Press(const ControlName& name, Key key) override;
  void PressOnForm(std::string_view form, Key key) override;
  void Pick(const ControlName& list, std::string_view entry) override;
  void Choose(const ControlName& option) override { Click(option); }
  void Tick(const ControlName& check, bool on) override;
  void SelectTab(const ControlName& tabs, std::string_view caption) override;
  void SetDate(const ControlName& picker, Date date) override;
  void ClickDay(const ControlName& calendar, Date date) override;
  void CloseWindow(std::string_view form) override;
  void Settle() override;

  bool IsOpen(std::string_view form) override;
  std::string FormCaption(std::string_view form) override;
  std::string FocusedControl(std::string_view form) override;
  PointerShape SeenPointer() override;
  bool IsEnabled(const ControlName& name) override;
  bool IsVisible(const ControlName& name) override;
  bool IsOn(const ControlName& name) override;
  std::string Text(const ControlName& name) override;
  std::string LabelBeside(const ControlName& name) override;
  std::string PanelText(const ControlName& bar, int panel) override;
  std::vector<std::string> Items(const ControlName& list) override;
  int GridRows(const ControlName& grid) override;
  std::vector<std::string> GridRow(const ControlName& grid, int row) override;
  SeenCell SheetCell(const ControlName& sheet, int row, int column) override;
  int SheetColumnWidth(const ControlName& sheet, int column) override;
  void TakePicture(std::string_view form, const std::string& file) override;

 private:
  desktop::FormWindow& WindowOf(std::string_view form) const;
  Control& ControlOf(const ControlName& name) const;
  desktop::WidgetBinding& BindingOf(const ControlName& name) const;
  /// The widget that shows the control, of the kind that such controls have.
  template <typename Kind>
  Kind& WidgetOf(const ControlName& name) const;
  /// The menu item as it stands in its menu; null when the control is none.
  QAction* ActionOf(const ControlName& name) const;
  /// The timer, which shows nothing; null for all else.
  const Timer* TimerOf(const ControlName& name) const;
  void ChooseFromMenu(QAction& action);

  void ClosePopups();
  void Activate(std::string_view form);
  /// Moves the focus there by keyboard. False when a validate step has prevented it.
  bool BringFocus(const ControlName& name);
  /// Presses the key on the widget that has the keyboard.
  void PressKey(Key key);
  void PickFromCombo(const ControlName& name, int index);

  std::unique_ptr<desktop::Desktop> desktop_;
  desktop::WindowPointer pointer_;
  World* world_ = nullptr;
  Program* program_ = nullptr;
};

}  // namespace ovindra::driver
