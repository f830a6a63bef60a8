// How a sheet falls into pages: which rows and columns stand on which page, and how much it is made smaller
// so that its columns fit the paper's width. Pure reckoning; nothing is owned.
#pragma once

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace ovindra::desktop {

/// All lengths in one unit, those of the sheet before it is made smaller.
struct SheetSize {
  int last_row = 0;
  int last_column = 0;
  std::function<double(int row)> row_height;
  std::function<double(int column)> column_width;
  /// Texts that run beyond the last column, measured from the left edge of the first one.
  double text_width = 0;
  /// The room of row numbers and column letters, where they are printed.
  double heading_width = 0;
  double heading_height = 0;
  std::optional<std::pair<int, int>> repeated_rows;
};

struct SheetPage {
  int first_row = 1;
  int last_row = 0;
  int first_column = 1;
  int last_column = 0;
  /// The repeated rows stand above those of the page itself.
  bool repeats_rows = false;
};

struct SheetPages {
  double scale = 1;
  std::vector<SheetPage> pages;
};

/// Below this a text of ten points can't be read: the columns then go on beside the page.
inline constexpr double kSmallestScale = 0.45;

/// Every page holds at least one row and one column. An empty sheet is one empty page.
SheetPages LayOut(const SheetSize& sheet, double paper_width, double paper_height);

}  // namespace ovindra::desktop
