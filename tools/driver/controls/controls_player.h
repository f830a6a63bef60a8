// The player on the named controls alone: no window, every action and every reading is one on the model.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tools/driver/player.h"

namespace ovindra::driver {

class ControlsPlayer : public Player, private ProgramObserver {
 public:
  ControlsPlayer();
  ~ControlsPlayer() override;

  void EnterWorld(World& world) override { world_ = &world; }
  void LeaveWorld() override { world_ = nullptr; }
  void ProgramMade(Program& program) override;
  void ProgramGone() override;
  ProgramObserver* program_observer() override { return this; }

  void SetPointer(PointerShape shape) override { pointer_ = shape; }

  void TurnTo(std::string_view) override {}
  void Click(const ControlName& name) override;
  void DoubleClick(const ControlName& name) override;
  void ClickCell(const ControlName& name, int row, int column) override;
  void DoubleClickCell(const ControlName& name, int row, int column) override;
  void MoveToCell(const ControlName& name, int row, int column) override;
  void Focus(const ControlName& name) override;
  void Leave(const ControlName& name) override;
  void Type(const ControlName& name, std::string_view text) override;
  void Paste(const ControlName& name, std::string_view text) override;
  void Clear(const ControlName& name) override;
  void Press(const ControlName& name, Key key) override;
  void PressOnForm(std::string_view form, Key key) override;
  void Pick(const ControlName& name, std::string_view entry) override;
  void Choose(const ControlName& name) override;
  void Tick(const ControlName& name, bool on) override;
  void SelectTab(const ControlName& name, std::string_view caption) override;
  void SetDate(const ControlName& name, Date date) override;
  void ClickDay(const ControlName& name, Date date) override;
  void CloseWindow(std::string_view form) override;

  bool IsOpen(std::string_view form) override;
  std::string FormCaption(std::string_view form) override;
  std::string FocusedControl(std::string_view form) override;
  PointerShape SeenPointer() override { return pointer_; }
  bool IsEnabled(const ControlName& name) override;
  bool IsVisible(const ControlName& name) override;
  bool IsOn(const ControlName& name) override;
  std::string Text(const ControlName& name) override;
  std::string LabelBeside(const ControlName& name) override;
  std::string PanelText(const ControlName& bar, int panel) override;
  std::vector<std::string> Items(const ControlName& name) override;
  int GridRows(const ControlName& name) override;
  std::vector<std::string> GridRow(const ControlName& name, int row) override;
  SeenCell SheetCell(const ControlName& sheet, int row, int column) override;
  int SheetColumnWidth(const ControlName& sheet, int column) override;
  void TakePicture(std::string_view, const std::string&) override {}

 private:
  class FocusTracer;

  void FormMade(Form& form) override;
  void FormShown(Form&) override {}
  void FormUnloaded(Form&) override {}
  void ActionEnded() override {}
  void Ended(const std::optional<RuntimeError>&) override {}

  Form& FormOf(std::string_view name) const;
  Control& Find(const ControlName& name) const;
  template <typename Kind>
  Kind& FindAs(const ControlName& name) const;

  /// Brings the focus to the control and acts, unless a validate step keeps the focus elsewhere. What fails
  /// in the action is thrown when the program has come to rest.
  void Act(Control& control, const std::function<void()>& action);

  World* world_ = nullptr;
  Program* program_ = nullptr;
  PointerShape pointer_ = PointerShape::kDefault;
  /// One for each form that the program has made, whether it is still there or not.
  std::vector<std::unique_ptr<FocusTracer>> tracers_;
};

}  // namespace ovindra::driver
