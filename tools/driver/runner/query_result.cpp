#include "tools/driver/runner/query_result.h"

#include <algorithm>

#include "base/text/blanks.h"

namespace ovindra::driver {
namespace {

constexpr std::string_view kRowMark = " ; ";

std::string FieldText(const Field& field) {
  if (field.IsNull()) return "NULL";
  const std::string text = YearFirstText(field);
  return std::string(Trim(std::string_view(text)));
}

std::string NormalRow(std::string_view row) {
  std::string normal;
  for (bool more = true; more;) {
    const std::size_t mark = row.find('|');
    normal += Trim(row.substr(0, mark));
    more = mark != std::string_view::npos;
    if (!more) break;
    normal += '|';
    row.remove_prefix(mark + 1);
  }
  return normal;
}

}  // namespace

std::string RowsAsText(Recordset rows) {
  std::string text;
  for (bool is_first = true; !rows.Eof(); rows.MoveNext(), is_first = false) {
    if (!is_first) text += kRowMark;
    for (std::size_t i = 0; i < rows.columns().size(); ++i) {
      if (i > 0) text += '|';
      text += FieldText(rows.At(i));
    }
  }
  return text;
}

std::string NormalRows(std::string_view expected) {
  // The blank behind the last row's mark may have gone with the line's end.
  std::string rest = std::string(Trim(expected)) + ' ';
  std::string normal;
  for (std::size_t mark = rest.find(kRowMark); mark != std::string::npos; mark = rest.find(kRowMark)) {
    normal += NormalRow(std::string_view(rest).substr(0, mark));
    normal += kRowMark;
    rest.erase(0, mark + kRowMark.size());
  }
  return normal + NormalRow(rest);
}

}  // namespace ovindra::driver
