// What has become paper: saved workbooks, the workbook in the spreadsheet application, the document in the
// word processor.
#include <cmath>
#include <sstream>
#include <string>

#include "tools/driver/language/token.h"
#include "tools/driver/papers/saved_sheet.h"
#include "tools/driver/runner/stage.h"

namespace ovindra::driver {
namespace {

std::string CellName(int row, int column) {
  return "cell " + std::to_string(row) + " " + std::to_string(column);
}

void Require(bool holds, const std::string& expected, const std::string& found) {
  if (!holds) throw StepFailure(expected, found);
}

SavedSheet SheetIn(Stage& stage, const Step& step) {
  const auto file = stage.world.machine().papers().WrittenFile(step.Text(0));
  if (!file) throw StepFailure("workbook " + Quote(step.Text(0)), "no such file written");
  return ReadSavedSheet(*file);
}

void PlayWorkbookCell(Stage& stage, const Step& step) {
  const std::string found = SheetIn(stage, step).Text(step.Int(1), step.Int(2));
  Require(found == step.Text(3),
          "workbook " + Quote(step.Text(0)) + " " + CellName(step.Int(1), step.Int(2)) + " " +
              Quote(step.Text(3)),
          Quote(found));
}

void PlayWorkbookSheet(Stage& stage, const Step& step) {
  const std::string found = SheetIn(stage, step).name;
  Require(found == step.Text(1), "workbook " + Quote(step.Text(0)) + " sheet " + Quote(step.Text(1)),
          Quote(found));
}

const Workbook& ShownWorkbook(Stage& stage) {
  const auto& workbook = stage.world.machine().shown_workbook();
  if (!workbook) throw StepFailure("a workbook in the spreadsheet application", "none");
  return *workbook;
}

void PlaySpreadsheetCell(Stage& stage, const Step& step) {
  const std::string found(ShownWorkbook(stage).Text(step.Int(0), step.Int(1)));
  Require(found == step.Text(2),
          "spreadsheet " + CellName(step.Int(0), step.Int(1)) + " " + Quote(step.Text(2)), Quote(found));
}

/// "A", "Z", "AA".
std::string ColumnLetters(int column) {
  std::string letters;
  for (; column > 0; column = (column - 1) / 26)
    letters.insert(0, 1, static_cast<char>('A' + (column - 1) % 26));
  return letters;
}

std::string RangeName(const CellRange& range) {
  return ColumnLetters(range.first_column) + std::to_string(range.first_row) + ":" +
         ColumnLetters(range.last_column) + std::to_string(range.last_row);
}

void PlaySpreadsheetMerged(Stage& stage, const Step& step) {
  std::string found;
  for (const CellRange& range : ShownWorkbook(stage).merges()) {
    if (RangeName(range) == step.Text(0)) return;
    found += (found.empty() ? "" : ", ") + Quote(RangeName(range));
  }
  throw StepFailure("spreadsheet merged " + Quote(step.Text(0)), found.empty() ? "nothing merged" : found);
}

/// Widths are compared to the two decimals in which they are written; 256 units are a character.
void PlaySpreadsheetWidth(Stage& stage, const Step& step) {
  constexpr double kHundredth = 100;
  constexpr double kUnitsInCharacter = 256;
  const double expected = step.Decimal(1);
  const double found =
      std::round(ShownWorkbook(stage).ColumnWidth(step.Int(0)) * kHundredth / kUnitsInCharacter) / kHundredth;
  std::ostringstream expected_text;
  std::ostringstream found_text;
  expected_text << "spreadsheet width " << step.Int(0) << ' ' << expected;
  found_text << found;
  Require(std::abs(found - expected) < 0.5 / kHundredth, expected_text.str(), found_text.str());
}

void PlaySpreadsheetState(Stage& stage, const Step& step) {
  const auto& workbook = stage.world.machine().shown_workbook();
  if (step.Text(0) == "none") {
    Require(!workbook, "spreadsheet none", "a workbook");
  } else {
    Require(ShownWorkbook(stage).protection().has_value(), "spreadsheet protected", "not protected");
  }
}

/// The lines of the document, without their ends.
std::vector<std::string> LinesOf(const Document& document) {
  std::vector<std::string> lines;
  std::istringstream text(document.text);
  for (std::string line; std::getline(text, line);) {
    if (line.ends_with('\r')) line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

void PlayDocument(Stage& stage, const Step& step) {
  const bool refused = step.Has(0);
  const std::string& line = step.Text(1);
  const auto& document = stage.world.machine().saved_document();
  std::string found;
  bool has_line = false;
  for (const std::string& other : document ? LinesOf(*document) : std::vector<std::string>()) {
    has_line = has_line || other == line;
    found += (found.empty() ? "" : ", ") + Quote(other);
  }
  Require(has_line != refused, std::string(refused ? "no " : "") + "document " + Quote(line),
          document ? found : "no document");
}

}  // namespace

const std::vector<HandlerRow>& PaperExpectations() {
  static const std::vector<HandlerRow> rows = {
      {StepKind::kExpectWorkbookCell, PlayWorkbookCell},
      {StepKind::kExpectWorkbookSheet, PlayWorkbookSheet},
      {StepKind::kExpectSpreadsheetCell, PlaySpreadsheetCell},
      {StepKind::kExpectSpreadsheetMerged, PlaySpreadsheetMerged},
      {StepKind::kExpectSpreadsheetWidth, PlaySpreadsheetWidth},
      {StepKind::kExpectSpreadsheetState, PlaySpreadsheetState},
      {StepKind::kExpectDocument, PlayDocument},
  };
  return rows;
}

}  // namespace ovindra::driver
