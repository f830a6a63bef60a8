#include "reports/report_title.h"

#include <algorithm>
#include <cassert>
#include <string>

namespace ovindra {
namespace {

constexpr std::string_view kHospital = "Lanvik Eye Institute";
constexpr int kClearedRows = 1000;
constexpr int kClearedColumns = 100;

/// How the name of the hospital stands.
enum class NameStyle { kPlain, kCentredInWideColumn };

struct ReportTitle {
  std::string_view form;
  std::string_view line;
  int column = 3;  // of the hospital's name
  CellRange selected_last{4, 3, 4, 3};
  CellRange fitted_rows{1, 3, 3, 3};
  int heading_row = 5;
  int last_heading_row = 5;
  std::string_view second_line = {};
  NameStyle name = NameStyle::kPlain;
};

constexpr CellRange kThirdRow{3, 3, 3, 3};
constexpr CellRange kNoRows{1, 1, 0, 0};

constexpr ReportTitle kTitles[] = {
    {.form = "frmconsolidation",
     .line = "School eye screening program consolidation report  From : {from} To :{to}",
     .column = 2,
     .fitted_rows = kNoRows,
     .name = NameStyle::kCentredInWideColumn},
    {.form = "frmsankulwiserpt", .line = "Sankul Name :- {place}", .selected_last = kThirdRow},
    {.form = "frmenrollrpt",
     .line = "List of children enrolled in school & Screened by teachers from : {from} To : {to}"},
    {.form = "frmdefected", .line = "List of children found with eye defects From : {from} To :{to}"},
    {.form = "Form3", .line = "Turnup Child List From : {from} To :{to}"},
    {.form = "frmreferallist",
     .line = "LIST OF CHILDREN :- {selection} From : {from} To :{to}",
     .selected_last = kThirdRow},
    {.form = "frmspectacle",
     .line = "List of Children Prescribed Spectacles Through School Eye Screening Program From : {from} To "
             ":{to}"},
    {.form = "frmturnup", .line = "Turnup Child List From : {from} To :{to}"},
    {.form = "frmspectaclepwr",
     .line = "Spectacle Power Report From : {from} To :{to}",
     .heading_row = 6,
     .last_heading_row = 7,
     .second_line = "SCREENED BY :- {selection}"},
    {.form = "frmenrolllist", .line = "List of Enrolled Child From : {from} To :{to}"},
    {.form = "frmscreenedlist", .line = "List of Screened Child From : {from} To :{to}"},
    {.form = "frmtrainedPerlist",
     .line = "LIST OF TRAINED {selection} OF {place}",
     .column = 2,
     .selected_last = {4, 2, 4, 2},
     .fitted_rows = {1, 2, 3, 3}},
    {.form = "Form1", .line = "List of Children who Missed Examination by Opthalmic Assistant"},
};

/// The line with its values in place of their names.
std::string Filled(std::string_view line, const TitleValues& values) {
  const struct {
    std::string_view name;
    std::string_view value;
  } kNames[] = {{"{from}", values.from},
                {"{to}", values.to},
                {"{selection}", values.selection},
                {"{place}", values.place}};
  std::string text;
  while (!line.empty()) {
    const auto name = std::find_if(std::begin(kNames), std::end(kNames),
                                   [&](const auto& n) { return line.starts_with(n.name); });
    if (name == std::end(kNames)) {
      text += line.front();
      line.remove_prefix(1);
    } else {
      text += name->value;
      line.remove_prefix(name->name.size());
    }
  }
  return text;
}

void WriteHospital(Sheet& sheet, const ReportTitle& title) {
  sheet.SetCellText(1, title.column, kHospital);
  sheet.SelectCells(1, title.column, 1, title.column);
  sheet.SetSelectionFont(HospitalStyle());
  if (title.name == NameStyle::kCentredInWideColumn) {
    sheet.SetColumnWidth(title.column, 20000);
    sheet.SetSelectionAlignment(HorizontalAlign::kCentre, Wrap::kOn, VerticalAlign::kCentre);
  }
}

void StyleAsTitle(Sheet& sheet, const CellRange& cells) {
  sheet.SelectCells(cells.first_row, cells.first_column, cells.last_row, cells.last_column);
  sheet.SetSelectionFont(TitleStyle());
}

}  // namespace

void WriteReportTitle(Sheet& sheet, std::string_view form_name, const TitleValues& values) {
  const auto title = std::find_if(std::begin(kTitles), std::end(kTitles),
                                  [&](const ReportTitle& row) { return row.form == form_name; });
  assert(title != std::end(kTitles));
  sheet.ClearCells(1, 1, kClearedRows, kClearedColumns);
  WriteHospital(sheet, *title);
  sheet.SetCellText(3, 1, Filled(title->line, values));
  if (!title->second_line.empty()) {
    sheet.SetCellText(4, 1, Filled(title->second_line, values));
    StyleAsTitle(sheet, {4, 1, 4, 3});
  }
  StyleAsTitle(sheet, {3, 1, 3, 8});
  StyleAsTitle(sheet, title->selected_last);
  sheet.RepeatOnPages(title->heading_row, title->last_heading_row);
  const CellRange& fitted = title->fitted_rows;
  if (fitted.first_row <= fitted.last_row)
    sheet.FitRows(fitted.first_row, fitted.first_column, fitted.last_row, fitted.last_column);
}

}  // namespace ovindra
