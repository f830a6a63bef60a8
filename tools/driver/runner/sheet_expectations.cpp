// What a person sees of the report sheet of the form, and how the last print was set up.
#include <algorithm>
#include <cstdio>

#include "base/controls/report_sheet.h"
#include "tools/driver/language/token.h"
#include "tools/driver/runner/target.h"

namespace ovindra::driver {
namespace {

/// The one report sheet of the current form.
ControlName SheetOf(Stage& stage) {
  const Form& form = CurrentForm(stage);
  for (const Control* control : form.controls()) {
    if (dynamic_cast<const ReportSheet*>(control) != nullptr) return {form.name(), control->full_name()};
  }
  throw StepFailure("a report sheet", "none on " + form.name());
}

/// A number of a row or a column, which count from 1.
int Place(const Step& step, std::size_t i) {
  if (step.Number(i) < 1) throw StepFailure("rows and columns from 1", std::to_string(step.Number(i)));
  return step.Int(i);
}

SeenCell CellOf(Stage& stage, const Step& step) {
  return stage.player.SheetCell(SheetOf(stage), Place(step, 0), Place(step, 1));
}

/// "cell 6 2", the beginning of every report of a cell.
std::string CellName(const Step& step) {
  return "cell " + std::to_string(step.Number(0)) + ' ' + std::to_string(step.Number(1)) + ' ';
}

/// A number as a scenario writes it: no more digits than it needs.
std::string NumberText(double number) {
  char text[32];
  std::snprintf(text, sizeof text, "%.10g", number);
  return text;
}

void PlayCell(Stage& stage, const Step& step) {
  const std::string found = CellOf(stage, step).text;
  if (found != step.Text(2)) throw StepFailure(CellName(step) + Quote(step.Text(2)), Quote(found));
}

/// The cells of a row from column 1 on, as many as are expected.
void PlaySheetRow(Stage& stage, const Step& step) {
  const ControlName sheet = SheetOf(stage);
  const int row = Place(step, 0);
  const std::vector<std::string> expected = step.Texts(1);
  std::vector<std::string> found;
  for (int column = 1; column <= static_cast<int>(expected.size()); ++column)
    found.push_back(stage.player.SheetCell(sheet, row, column).text);
  if (found != expected)
    throw StepFailure("sheet row " + std::to_string(row) + ' ' + QuoteAll(expected), QuoteAll(found));
}

void PlayCellEmpty(Stage& stage, const Step& step) {
  const std::string found = CellOf(stage, step).text;
  if (!found.empty()) throw StepFailure(CellName(step) + "empty", Quote(found));
}

void PlayCellContains(Stage& stage, const Step& step) {
  const std::string found = CellOf(stage, step).text;
  if (found.find(step.Text(2)) == std::string::npos)
    throw StepFailure(CellName(step) + "contains " + Quote(step.Text(2)), Quote(found));
}

/// A word for a look, and whether a cell has it.
struct LookWord {
  const char* word;
  bool (*holds)(const CellStyle& style);
};

constexpr LookWord kFontWords[] = {
    {"bold", [](const CellStyle& style) { return style.font.bold; }},
    {"plain", [](const CellStyle& style) { return !style.font.bold; }},
    {"italic", [](const CellStyle& style) { return style.font.italic; }},
    {"underline", [](const CellStyle& style) { return style.font.underline; }},
};

constexpr LookWord kAlignmentWords[] = {
    {"general",
     [](const CellStyle& style) { return style.alignment.horizontal == HorizontalAlign::kGeneral; }},
    {"left", [](const CellStyle& style) { return style.alignment.horizontal == HorizontalAlign::kLeft; }},
    {"centre", [](const CellStyle& style) { return style.alignment.horizontal == HorizontalAlign::kCentre; }},
    {"right", [](const CellStyle& style) { return style.alignment.horizontal == HorizontalAlign::kRight; }},
    {"wrapped", [](const CellStyle& style) { return style.alignment.wrapped; }},
    {"middle", [](const CellStyle& style) { return style.alignment.vertical == VerticalAlign::kCentre; }},
};

template <std::size_t kCount>
bool Holds(const LookWord (&words)[kCount], const std::string& word, const CellStyle& style) {
  const auto found = std::find_if(std::begin(words), std::end(words),
                                  [&](const LookWord& look) { return word == look.word; });
  return found != std::end(words) && found->holds(style);
}

/// All words of the table that the style answers to.
template <std::size_t kCount>
std::string Words(const LookWord (&words)[kCount], const CellStyle& style) {
  std::string all;
  for (const LookWord& look : words) {
    if (look.holds(style)) all += std::string(all.empty() ? "" : " ") + look.word;
  }
  return all;
}

void PlayCellFont(Stage& stage, const Step& step) {
  const CellStyle style = CellOf(stage, step).style;
  const CellFont& font = style.font;
  bool holds = !step.Has(2) || step.Number(2) == font.size;
  std::string expected = CellName(step) + "font";
  if (step.Has(2)) expected += ' ' + std::to_string(step.Number(2));
  for (const std::string& word : step.Texts(3)) {
    holds = holds && Holds(kFontWords, word, style);
    expected += ' ' + word;
  }
  if (step.Has(4)) {
    holds = holds && step.Number(4) == static_cast<long>(font.colour);
    expected += " colour " + std::to_string(step.Number(4));
  }
  if (!holds) {
    throw StepFailure(expected, "font " + std::to_string(font.size) + ' ' + Words(kFontWords, style) +
                                    " colour " + std::to_string(font.colour));
  }
}

void PlayCellAlignment(Stage& stage, const Step& step) {
  const CellStyle style = CellOf(stage, step).style;
  bool holds = true;
  std::string expected = CellName(step) + "align";
  for (const std::string& word : step.Texts(3)) {
    holds = holds && Holds(kAlignmentWords, word, style);
    expected += ' ' + word;
  }
  if (!holds) throw StepFailure(expected, Words(kAlignmentWords, style));
}

void PlayCellBorder(Stage& stage, const Step& step) {
  const CellBorder border = CellOf(stage, step).style.border;
  const bool none = step.Has(2);
  if (none ? !border.OnAnySide() : border.OnAllSides()) return;
  std::string found;
  const std::pair<bool, const char*> sides[] = {
      {border.left, "left"}, {border.right, "right"}, {border.top, "top"}, {border.bottom, "bottom"}};
  for (const auto& [is_there, side] : sides) {
    if (is_there) found += std::string(found.empty() ? "" : " ") + side;
  }
  throw StepFailure(CellName(step) + (none ? "no border" : "border"),
                    found.empty() ? "no border" : "a border " + found);
}

void PlayColumnWidth(Stage& stage, const Step& step) {
  const int found = stage.player.SheetColumnWidth(SheetOf(stage), Place(step, 0));
  if (step.Decimal(1) != found) {
    throw StepFailure("column " + std::to_string(step.Number(0)) + " width " + NumberText(step.Decimal(1)),
                      std::to_string(found));
  }
}

double MarginOf(const PageSetup& setup, const std::string& side) {
  if (side == "left") return setup.left_margin;
  if (side == "right") return setup.right_margin;
  return side == "top" ? setup.top_margin : setup.bottom_margin;
}

/// What the step expects of a print, and what it was, in the words of a scenario. `centred` has no argument.
std::pair<std::string, std::string> PrintSetting(const PageSetup& setup, const Step& step) {
  if (!step.Has(0)) return {"centred", setup.centred ? "centred" : "not centred"};
  const std::string& name = step.Text(0);
  if (name == "gridlines") return {name + ' ' + step.Text(1), name + (setup.grid_lines ? " on" : " off")};
  if (name == "headings") return {name + ' ' + step.Text(1), name + (setup.headings ? " on" : " off")};
  if (name == "header" || name == "footer") {
    return {name + ' ' + Quote(step.Text(1)),
            name + ' ' + Quote(name == "header" ? setup.header : setup.footer)};
  }
  const std::string margin = "margin " + name + ' ';
  return {margin + NumberText(step.Decimal(1)), margin + NumberText(MarginOf(setup, name))};
}

void PlayPrint(Stage& stage, const Step& step) {
  const auto& setup = stage.world.machine().last_print();
  const auto [expected, found] = PrintSetting(setup.value_or(PageSetup{}), step);
  if (!setup) throw StepFailure("print " + expected, "nothing printed");
  if (found != expected) throw StepFailure("print " + expected, found);
}

}  // namespace

const std::vector<HandlerRow>& SheetExpectations() {
  static const std::vector<HandlerRow> rows = {
      {StepKind::kExpectCell, PlayCell},
      {StepKind::kExpectSheetRow, PlaySheetRow},
      {StepKind::kExpectCellEmpty, PlayCellEmpty},
      {StepKind::kExpectCellContains, PlayCellContains},
      {StepKind::kExpectCellFont, PlayCellFont},
      {StepKind::kExpectCellAlignment, PlayCellAlignment},
      {StepKind::kExpectCellBorder, PlayCellBorder},
      {StepKind::kExpectColumnWidth, PlayColumnWidth},
      {StepKind::kExpectPrint, PlayPrint},
  };
  return rows;
}

}  // namespace ovindra::driver
