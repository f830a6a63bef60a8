// The block at the top of every report: the hospital's name and the report's title line. Each report has its
// own variant; the table holds them all.
#pragma once

#include <string_view>

#include "reports/sheet.h"

namespace ovindra {

/// What a title line names: the period as the machine writes dates, and what was chosen.
struct TitleValues {
  std::string_view from;
  std::string_view to;
  std::string_view selection;
  std::string_view place;
};

/// Clears the sheet, as far as row 1000 and column 100, and writes the title block of that form. A form that
/// is not in the table is our own mistake.
void WriteReportTitle(Sheet& sheet, std::string_view form_name, const TitleValues& values);

}  // namespace ovindra
