#include <charconv>
#include <filesystem>

#include "base/controls/buttons.h"
#include "base/controls/combo_box.h"
#include "base/controls/frame.h"
#include "base/controls/grid.h"
#include "base/controls/list_box.h"
#include "base/controls/menu.h"
#include "base/controls/shown.h"
#include "base/text/utf8.h"
#include "tools/driver/language/token.h"
#include "tools/driver/runner/target.h"

namespace ovindra::driver {
namespace {

void Compare(const std::string& what, const std::string& expected, const std::string& found) {
  if (expected != found) throw StepFailure(what + ' ' + Quote(expected), Quote(found));
}

void Compare(const std::string& what, long expected, long found) {
  if (expected != found) throw StepFailure(what + ' ' + std::to_string(expected), std::to_string(found));
}

/// The caption as a person reads it: the mnemonic's mark is no character of it.
std::string WithoutMnemonic(std::string_view caption) {
  std::string read;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && ++i == caption.size()) break;
    read += caption[i];
  }
  return read;
}

bool ShowsCaption(const Control& control) {
  return dynamic_cast<const Button*>(&control) != nullptr ||
         dynamic_cast<const OptionButton*>(&control) != nullptr ||
         dynamic_cast<const CheckBox*>(&control) != nullptr ||
         dynamic_cast<const Frame*>(&control) != nullptr ||
         dynamic_cast<const MenuItem*>(&control) != nullptr ||
         dynamic_cast<const Label*>(&control) != nullptr;
}

/// A panel named as a member of its status bar, `StatusBar1(2)`; false when the name is no panel's.
bool ExpectPanel(Stage& stage, const std::string& name, const std::string& text) {
  const std::size_t bracket = name.find('(');
  if (bracket == std::string::npos) return false;
  const Control* bar = CurrentForm(stage).Find(name.substr(0, bracket));
  if (bar == nullptr) bar = stage.world.Find({"MDIForm1", name.substr(0, bracket)});
  const auto* status_bar = dynamic_cast<const StatusBar*>(bar);
  if (status_bar == nullptr) return false;
  std::size_t panel = 0;
  const char* const digits = name.data() + bracket + 1;
  const auto read = std::from_chars(digits, name.data() + name.size(), panel);
  if (read.ec != std::errc{} || panel >= status_bar->panels().size())
    throw StepFailure(name, std::to_string(status_bar->panels().size()) + " panels");
  Compare(name, text,
          stage.player.PanelText({bar->form().name(), bar->full_name()}, static_cast<int>(panel)));
  return true;
}

void PlayText(Stage& stage, const Step& step) {
  const std::string& text = step.Text(1);
  if (ExpectPanel(stage, step.Text(0), text)) return;
  const Target target = FindTarget(stage, step.Text(0));
  const std::string found = stage.player.Text(target.name);
  if (ShowsCaption(*target.control) && WithoutMnemonic(found) == text) return;
  Compare(step.Text(0), text, found);
}

void PlayCaption(Stage& stage, const Step& step) {
  Compare("caption", step.Text(0), stage.player.FormCaption(CurrentForm(stage).name()));
}

void PlayLabel(Stage& stage, const Step& step) {
  const Target target = FindTarget(stage, step.Text(0));
  Compare("label " + step.Text(0), step.Text(1), stage.player.LabelBeside(target.name));
}

void PlayFocus(Stage& stage, const Step& step) {
  const Target target = FindTarget(stage, step.Text(0));
  const std::string focused = stage.player.FocusedControl(target.name.form);
  if (!SameWithoutCase(focused, target.name.control))
    throw StepFailure("focus " + step.Text(0), focused.empty() ? "none" : focused);
}

void PlayPointer(Stage& stage, const Step& step) {
  const std::string found = stage.player.SeenPointer() == PointerShape::kDefault ? "default" : "hourglass";
  if (found != step.Text(0)) throw StepFailure("pointer " + step.Text(0), found);
}

void PlayOpened(Stage& stage, const Step& step) {
  const bool is_open = stage.world.FindForm(step.Text(1)) != nullptr && stage.player.IsOpen(step.Text(1));
  if (is_open != (step.Text(0) == "opened"))
    throw StepFailure(step.Text(1) + ' ' + step.Text(0), is_open ? "open" : "not open");
}

bool IsOn(Stage& stage, const Target& target) {
  if (dynamic_cast<OptionButton*>(target.control) == nullptr) As<CheckBox>(target, "an option or check box");
  return stage.player.IsOn(target.name);
}

bool HasFocus(Stage& stage, const Target& target) {
  return SameWithoutCase(stage.player.FocusedControl(target.name.form), target.name.control);
}

/// The word for the state of which the given word tells one side.
std::string StateFound(Stage& stage, const Target& target, const std::string& word) {
  if (word == "enabled" || word == "disabled")
    return stage.player.IsEnabled(target.name) ? "enabled" : "disabled";
  if (word == "visible" || word == "hidden")
    return stage.player.IsVisible(target.name) ? "visible" : "hidden";
  if (word == "on" || word == "off") return IsOn(stage, target) ? "on" : "off";
  return HasFocus(stage, target) ? "focused" : "not focused";
}

void PlayState(Stage& stage, const Step& step) {
  const Target target = FindTarget(stage, step.Text(0));
  std::string expected;
  std::string found;
  for (const std::string& word : step.Texts(1)) {
    const std::string state = StateFound(stage, target, word);
    if (state == word) continue;
    expected += ' ' + word;
    found += (found.empty() ? "" : " ") + state;
  }
  if (!expected.empty()) throw StepFailure(step.Text(0) + expected, found);
}

std::vector<std::string> ItemsOf(Stage& stage, const Step& step) {
  const Target target = FindTarget(stage, step.Text(0));
  if (dynamic_cast<ComboBox*>(target.control) == nullptr) As<ListBox>(target, "a combo box or list");
  return stage.player.Items(target.name);
}

void CompareItems(Stage& stage, const Step& step, const std::vector<std::string>& expected) {
  const std::vector<std::string> items = ItemsOf(stage, step);
  if (items != expected) throw StepFailure(step.Text(0) + " items " + QuoteAll(expected), QuoteAll(items));
}

void PlayItems(Stage& stage, const Step& step) {
  CompareItems(stage, step, step.Texts(1));
}

void PlayNoItems(Stage& stage, const Step& step) {
  CompareItems(stage, step, {});
}

void PlayItemCount(Stage& stage, const Step& step) {
  Compare(step.Text(0) + " items", step.Number(1), static_cast<long>(ItemsOf(stage, step).size()));
}

ControlName GridOf(Stage& stage, const Step& step) {
  const Target target = FindTarget(stage, step.Text(0));
  As<Grid>(target, "a grid");
  return target.name;
}

/// The cells of a row, which must be there.
std::vector<std::string> RowOf(Stage& stage, const Step& step) {
  const ControlName grid = GridOf(stage, step);
  const int rows = stage.player.GridRows(grid);
  if (step.Int(1) < 0 || step.Int(1) >= rows)
    throw StepFailure(step.Text(0) + " row " + std::to_string(step.Int(1)), std::to_string(rows) + " rows");
  return stage.player.GridRow(grid, step.Int(1));
}

void PlayGridRows(Stage& stage, const Step& step) {
  Compare(step.Text(0) + " rows", step.Number(1), stage.player.GridRows(GridOf(stage, step)));
}

void PlayGridRow(Stage& stage, const Step& step) {
  const std::vector<std::string> expected = step.Texts(2);
  std::vector<std::string> found = RowOf(stage, step);
  if (found.size() > expected.size()) found.resize(expected.size());
  if (found != expected) {
    throw StepFailure(step.Text(0) + " row " + std::to_string(step.Int(1)) + ' ' + QuoteAll(expected),
                      QuoteAll(found));
  }
}

void PlayGridCell(Stage& stage, const Step& step) {
  const std::vector<std::string> row = RowOf(stage, step);
  const std::string what =
      step.Text(0) + " cell " + std::to_string(step.Int(1)) + ' ' + std::to_string(step.Int(2));
  if (step.Int(2) < 0 || step.Int(2) >= static_cast<int>(row.size()))
    throw StepFailure(what, std::to_string(row.size()) + " columns");
  Compare(what, step.Text(3), row[static_cast<std::size_t>(step.Int(2))]);
}

void PlayPicture(Stage& stage, const Step& step) {
  const std::filesystem::path file = std::filesystem::path(stage.picture_folder) / step.Text(0);
  stage.player.TakePicture(CurrentForm(stage).name(), file.string());
}

}  // namespace

const std::vector<HandlerRow>& ControlExpectations() {
  static const std::vector<HandlerRow> rows = {
      {StepKind::kExpectText, PlayText},           {StepKind::kExpectCaption, PlayCaption},
      {StepKind::kExpectFocus, PlayFocus},         {StepKind::kExpectPointer, PlayPointer},
      {StepKind::kExpectOpened, PlayOpened},       {StepKind::kExpectState, PlayState},
      {StepKind::kExpectItems, PlayItems},         {StepKind::kExpectNoItems, PlayNoItems},
      {StepKind::kExpectItemCount, PlayItemCount}, {StepKind::kExpectGridRows, PlayGridRows},
      {StepKind::kExpectGridRow, PlayGridRow},     {StepKind::kExpectGridCell, PlayGridCell},
      {StepKind::kExpectLabel, PlayLabel},         {StepKind::kPicture, PlayPicture},
  };
  return rows;
}

}  // namespace ovindra::driver
