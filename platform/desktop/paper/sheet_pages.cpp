#include "platform/desktop/paper/sheet_pages.h"

#include <algorithm>

namespace ovindra::desktop {
namespace {

using Band = std::pair<int, int>;

/// The numbers from `first` to `last` in bands, each as long as fits the room but at least one.
std::vector<Band> Bands(int first, int last, const std::function<double(int)>& length,
                        const std::function<double(int first)>& room) {
  std::vector<Band> bands;
  while (first <= last) {
    const double left = room(first);
    double used = length(first);
    int end = first;
    while (end < last && used + length(end + 1) <= left) used += length(++end);
    bands.emplace_back(first, end);
    first = end + 1;
  }
  return bands;
}

double Sum(int first, int last, const std::function<double(int)>& length) {
  double sum = 0;
  for (int i = first; i <= last; ++i) sum += length(i);
  return sum;
}

}  // namespace

SheetPages LayOut(const SheetSize& sheet, double paper_width, double paper_height) {
  SheetPages laid_out;
  const double columns = Sum(1, sheet.last_column, sheet.column_width);
  const double width = std::max(columns, sheet.text_width) + sheet.heading_width;
  if (width > paper_width) laid_out.scale = std::max(paper_width / width, kSmallestScale);
  // A hair's breadth, since a sum of fractions may come out above the room that it was made for.
  const double page_width = paper_width / laid_out.scale - sheet.heading_width + 0.01;
  const double page_height = paper_height / laid_out.scale - sheet.heading_height + 0.01;
  const Band repeated = sheet.repeated_rows.value_or(Band{1, 0});
  const double repeated_height = Sum(repeated.first, repeated.second, sheet.row_height);
  const bool can_repeat = repeated_height < page_height / 2;
  const auto repeats = [&](int first) {
    return can_repeat && first > repeated.second && repeated_height > 0;
  };
  const auto across = Bands(1, sheet.last_column, sheet.column_width, [&](int) { return page_width; });
  const auto down = Bands(1, sheet.last_row, sheet.row_height,
                          [&](int first) { return page_height - (repeats(first) ? repeated_height : 0); });
  for (const Band& columns_of_page : across) {
    for (const Band& rows : down) {
      laid_out.pages.push_back(
          {rows.first, rows.second, columns_of_page.first, columns_of_page.second, repeats(rows.first)});
    }
  }
  if (laid_out.pages.empty()) laid_out.pages.emplace_back();
  return laid_out;
}

}  // namespace ovindra::desktop
