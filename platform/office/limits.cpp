#include "platform/office/limits.h"

namespace ovindra::office {
namespace {

RuntimeError Refusal(std::string text) {
  return {PathFileAccess().number(), std::move(text)};
}

void RequireNoMore(int count, int limit, const char* what, std::string_view extension) {
  if (count <= limit) return;
  std::string text = "The sheet has " + std::to_string(count) + " " + what + ", but an " +
                     std::string(extension) + " workbook holds no more than " + std::to_string(limit) + ".";
  if (extension == kXlsLimits.extension)
    text += " Save it under a name that ends in " + std::string(kXlsxLimits.extension) + ".";
  throw Refusal(std::move(text));
}

}  // namespace

void RequireWithin(const Workbook& workbook, const FormatLimits& limits) {
  RequireNoMore(workbook.last_row(), limits.rows, "rows", limits.extension);
  RequireNoMore(workbook.last_column(), limits.columns, "columns", limits.extension);
}

RuntimeError CellTextTooLong() {
  return Refusal("A cell of a workbook holds no more than " + std::to_string(kLongestCellText) +
                 " characters.");
}

std::string FileSheetName(const Workbook& workbook) {
  std::string_view name = workbook.sheet_name();
  while (name.starts_with('\'')) name.remove_prefix(1);
  while (name.ends_with('\'')) name.remove_suffix(1);
  return name.empty() ? "Sheet1" : std::string(name);
}

}  // namespace ovindra::office
