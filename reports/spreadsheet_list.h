// A list that goes to the spreadsheet application instead of the sheet: the hospital's name, lines that tell
// what it is, headings, and rows in boxes, protected against changes.
#pragma once

#include <string>
#include <vector>

#include "base/workbook/workbook.h"

namespace ovindra {

struct SpreadsheetLine {
  int row;
  std::string text;
};

struct SpreadsheetList {
  std::vector<SpreadsheetLine> lines;
  int heading_row = 5;
  std::vector<std::string> headings;
  /// Without the running number, which is made.
  std::vector<std::vector<std::string>> rows;
  /// Stands below the last row where it is not empty.
  std::string closing_line;
};

/// The workbook as it is handed to the application.
Workbook MakeSpreadsheet(const SpreadsheetList& list);

}  // namespace ovindra
