#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/dates.h"
#include "base/controls/grid.h"
#include "base/controls/list_box.h"
#include "base/controls/shown.h"
#include "base/controls/tabs.h"
#include "base/controls/text_box.h"
#include "tools/driver/runner/target.h"

namespace ovindra::driver {
namespace {

struct Cell {
  int row;
  int column;
};

/// The cell that the step names, which must be one of the grid.
Cell CellOf(Stage& stage, const Step& step, const Target& target) {
  const Grid& grid = As<Grid>(target, "a grid");
  const Cell cell{step.Int(1), step.Has(2) ? step.Int(2) : 0};
  const int rows = stage.player.GridRows(target.name);
  if (cell.row < 0 || cell.row >= rows)
    throw StepFailure(step.Text(0) + " row " + std::to_string(cell.row), std::to_string(rows) + " rows");
  if (cell.column < 0 || cell.column >= grid.columns()) {
    throw StepFailure(step.Text(0) + " column " + std::to_string(cell.column),
                      std::to_string(grid.columns()) + " columns");
  }
  return cell;
}

/// A control that can have the focus.
Target FindFocusable(Stage& stage, const Step& step) {
  Target target = FindUsable(stage, step.Text(0));
  if (!target.control->TakesFocus()) throw StepFailure(step.Text(0) + " to take the focus", "it takes none");
  return target;
}

/// A box that can be typed into, or with keys only: a drop-down list takes keys, but no text.
Target FindBox(Stage& stage, const Step& step) {
  Target target = FindUsable(stage, step.Text(0));
  As<TextControl>(target, "a box");
  return target;
}

Target FindEditable(Stage& stage, const Step& step) {
  Target target = FindBox(stage, step);
  const auto* combo = dynamic_cast<ComboBox*>(target.control);
  if (combo != nullptr && combo->style() == ComboStyle::kDropDownList)
    throw StepFailure(step.Text(0) + " to be a box that takes a text", "a list to pick from");
  return target;
}

void PlayOpen(Stage& stage, const Step& step) {
  if (stage.world.program().has_ended()) throw StepFailure("the program running", "it has ended");
  if (!stage.world.Open(step.Text(0))) throw StepFailure("a form " + step.Text(0), "none of that name");
}

void PlayClick(Stage& stage, const Step& step) {
  stage.player.Click(FindUsable(stage, step.Text(0)).name);
}

void PlayClickCell(Stage& stage, const Step& step) {
  const Target target = FindUsable(stage, step.Text(0));
  const Cell cell = CellOf(stage, step, target);
  stage.player.ClickCell(target.name, cell.row, cell.column);
}

void PlayDoubleClick(Stage& stage, const Step& step) {
  stage.player.DoubleClick(FindUsable(stage, step.Text(0)).name);
}

void PlayDoubleClickCell(Stage& stage, const Step& step) {
  const Target target = FindUsable(stage, step.Text(0));
  const Cell cell = CellOf(stage, step, target);
  stage.player.DoubleClickCell(target.name, cell.row, cell.column);
}

void PlayMove(Stage& stage, const Step& step) {
  const Target target = FindUsable(stage, step.Text(0));
  const Cell cell = CellOf(stage, step, target);
  if (cell.row < As<Grid>(target, "a grid").fixed_rows())
    throw StepFailure(step.Text(0) + " row " + std::to_string(cell.row) + " to move to", "a header row");
  stage.player.MoveToCell(target.name, cell.row, cell.column);
}

void PlayFocus(Stage& stage, const Step& step) {
  stage.player.Focus(FindFocusable(stage, step).name);
}

void PlayLeave(Stage& stage, const Step& step) {
  stage.player.Leave(FindFocusable(stage, step).name);
}

void PlayType(Stage& stage, const Step& step) {
  stage.player.Type(FindBox(stage, step).name, step.Text(1));
}

void PlayPaste(Stage& stage, const Step& step) {
  stage.player.Paste(FindEditable(stage, step).name, step.Text(1));
}

void PlayClear(Stage& stage, const Step& step) {
  stage.player.Clear(FindEditable(stage, step).name);
}

void PlayPress(Stage& stage, const Step& step) {
  stage.player.Press(FindFocusable(stage, step).name, step.KeyOf(1));
}

void PlayPressForm(Stage& stage, const Step& step) {
  stage.player.PressOnForm(CurrentForm(stage).name(), step.KeyOf(0));
}

void PlayPick(Stage& stage, const Step& step) {
  const Target target = FindUsable(stage, step.Text(0));
  if (dynamic_cast<ComboBox*>(target.control) == nullptr) As<ListBox>(target, "a combo box or list");
  stage.player.Pick(target.name, step.Text(1));
}

void PlayChoose(Stage& stage, const Step& step) {
  const Target target = FindUsable(stage, step.Text(0));
  As<OptionButton>(target, "an option button");
  stage.player.Choose(target.name);
}

void Tick(Stage& stage, const Step& step, bool on) {
  const Target target = FindUsable(stage, step.Text(0));
  As<CheckBox>(target, "a check box");
  stage.player.Tick(target.name, on);
}

void PlayTick(Stage& stage, const Step& step) {
  Tick(stage, step, true);
}

void PlayUntick(Stage& stage, const Step& step) {
  Tick(stage, step, false);
}

void PlayTab(Stage& stage, const Step& step) {
  const Target target = FindUsable(stage, step.Text(0));
  As<TabStrip>(target, "a tab strip");
  stage.player.SelectTab(target.name, step.Text(1));
}

void PlayDate(Stage& stage, const Step& step) {
  const Target target = FindUsable(stage, step.Text(0));
  As<DatePicker>(target, "a date picker");
  stage.player.SetDate(target.name, step.DateOf(1));
}

void PlayDay(Stage& stage, const Step& step) {
  const Target target = FindUsable(stage, step.Text(0));
  As<MonthView>(target, "a month calendar");
  stage.player.ClickDay(target.name, step.DateOf(1));
}

/// Time passes for the program, whatever is shown: each tick is an action of its own. The form may close
/// meanwhile.
void PlayTickTimer(Stage& stage, const Step& step) {
  const Target target = FindTarget(stage, step.Text(0));
  auto& timer = As<Timer>(target, "a timer");
  if (!target.control->IsEnabledNow()) throw StepFailure(step.Text(0) + " enabled", "disabled");
  Program& program = stage.world.program();
  const std::string form = target.name.form;
  const Form* ticking = stage.world.FindForm(form);
  for (long tick = 0; tick < step.Number(1) && stage.world.FindForm(form) == ticking; ++tick)
    program.Perform([&] { timer.Tick(); });
}

void PlayCloseWindow(Stage& stage, const Step&) {
  stage.player.CloseWindow(CurrentForm(stage).name());
}

}  // namespace

const std::vector<HandlerRow>& ActionHandlers() {
  static const std::vector<HandlerRow> rows = {
      {StepKind::kOpen, PlayOpen},
      {StepKind::kClick, PlayClick},
      {StepKind::kClickCell, PlayClickCell},
      {StepKind::kDoubleClick, PlayDoubleClick},
      {StepKind::kDoubleClickCell, PlayDoubleClickCell},
      {StepKind::kMove, PlayMove},
      {StepKind::kFocus, PlayFocus},
      {StepKind::kLeave, PlayLeave},
      {StepKind::kType, PlayType},
      {StepKind::kPaste, PlayPaste},
      {StepKind::kClear, PlayClear},
      {StepKind::kPress, PlayPress},
      {StepKind::kPressForm, PlayPressForm},
      {StepKind::kPick, PlayPick},
      {StepKind::kChoose, PlayChoose},
      {StepKind::kTick, PlayTick},
      {StepKind::kUntick, PlayUntick},
      {StepKind::kTab, PlayTab},
      {StepKind::kDate, PlayDate},
      {StepKind::kDay, PlayDay},
      {StepKind::kTickTimer, PlayTickTimer},
      {StepKind::kCloseWindow, PlayCloseWindow},
  };
  return rows;
}

}  // namespace ovindra::driver
