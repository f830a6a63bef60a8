#include "base/workbook/text_fit.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "base/text/utf8.h"

namespace ovindra {
namespace {

/// Times Roman from the blank to the tilde, in thousandths of the font's size.
constexpr std::array<std::uint16_t, 95> kWidths = {
    250, 333, 408, 500, 500, 833, 778, 180, 333, 333, 500, 564, 250, 333, 250, 278, 500, 500, 500,
    500, 500, 500, 500, 500, 500, 500, 278, 278, 564, 564, 564, 444, 921, 722, 667, 667, 722, 611,
    556, 722, 722, 333, 389, 722, 611, 889, 722, 722, 556, 722, 667, 556, 611, 722, 722, 944, 722,
    722, 611, 333, 278, 333, 469, 500, 333, 444, 500, 444, 500, 444, 333, 500, 500, 278, 278, 500,
    278, 778, 500, 500, 500, 500, 333, 389, 278, 500, 500, 722, 500, 500, 444, 480, 200, 480, 541};

/// A letter that the table does not hold is taken for a wide one.
constexpr int kOtherWidth = 722;
constexpr double kBoldFactor = 1.08;

/// The widths of the characters that are one byte: a control character has none.
constexpr auto kByteWidths = [] {
  std::array<std::uint16_t, 128> widths{};
  std::copy(kWidths.begin(), kWidths.end(), widths.begin() + ' ');
  widths.back() = kOtherWidth;
  return widths;
}();

/// What a column's unit of one character is in points: the digit of the sheet's own font, 10 points of Times.
constexpr double kPointsPerCharacter = 5;
constexpr int kUnitsPerCharacter = 256;
/// The room that a cell leaves on both sides of its text, in characters.
constexpr double kPadding = 1.2;

int WidthOf(char32_t character) {
  return character < kByteWidths.size() ? kByteWidths[character] : kOtherWidth;
}

double InPoints(int thousandths, const CellFont& font) {
  return static_cast<double>(thousandths) / 1000 * font.size * (font.bold ? kBoldFactor : 1);
}

/// Not less than the text is wide, from its length alone.
double WidthAtMost(std::string_view text, const CellFont& font) {
  static const int kWidest = *std::max_element(kWidths.begin(), kWidths.end());
  return InPoints(kWidest * static_cast<int>(text.size()), font);
}

/// The end of the text's first piece that no line is broken within: behind a slash or a hyphen, or at a
/// blank.
std::size_t EndOfPiece(std::string_view text) {
  const std::size_t end = text.find_first_of(" /-");
  if (end == std::string_view::npos) return text.size();
  return text[end] == ' ' ? end : end + 1;
}

/// The lines of a wrapped text: pieces go on the line while they fit, one that is wider than the room is
/// broken.
int WrappedLines(std::string_view text, const CellFont& font, double room) {
  const double blank = TextWidth(" ", font);
  int lines = 1;
  double used = 0;
  while (!text.empty()) {
    const std::size_t end = EndOfPiece(text);
    const double piece = TextWidth(text.substr(0, end), font);
    if (used > 0 && used + piece > room) {
      ++lines;
      used = 0;
    }
    used += piece;
    while (used > room) {
      used -= room;
      ++lines;
    }
    text.remove_prefix(end);
    if (!text.starts_with(' ')) continue;
    used += blank;
    text.remove_prefix(1);
  }
  return lines;
}

int LinesIn(std::string_view text, const CellStyle& style, int column_width) {
  if (!style.alignment.wrapped) return 1;
  const double room =
      std::max(1.0, static_cast<double>(column_width) / kUnitsPerCharacter - kPadding) * kPointsPerCharacter;
  return WrappedLines(text, style.font, room);
}

}  // namespace

double TextWidth(std::string_view text, const CellFont& font) {
  int thousandths = 0;
  while (!text.empty()) {
    // Most texts are of the letters that are one byte each.
    const auto byte = static_cast<unsigned char>(text.front());
    if (byte < kByteWidths.size()) {
      thousandths += kByteWidths[byte];
      text.remove_prefix(1);
    } else {
      thousandths += WidthOf(TakeCharacter(text));
    }
  }
  return InPoints(thousandths, font);
}

void FitColumnWidths(Workbook& workbook, const CellRange& range) {
  const int last_row = std::min(range.last_row, workbook.last_row());
  if (range.last_column < range.first_column) return;
  std::vector<double> widest(static_cast<std::size_t>(range.last_column - range.first_column) + 1);
  for (int row = range.first_row; row <= last_row; ++row) {
    for (int column = range.first_column; column <= range.last_column; ++column) {
      const std::string_view text = workbook.Text(row, column);
      if (text.empty()) continue;
      const CellFont& font = workbook.Style(row, column).font;
      double& width = widest[static_cast<std::size_t>(column - range.first_column)];
      if (WidthAtMost(text, font) > width) width = std::max(width, TextWidth(text, font));
    }
  }
  for (int column = range.first_column; column <= range.last_column; ++column) {
    const double width = widest[static_cast<std::size_t>(column - range.first_column)];
    if (width == 0) continue;
    workbook.SetColumnWidth(
        column, static_cast<int>(std::lround((width / kPointsPerCharacter + kPadding) * kUnitsPerCharacter)));
  }
}

void FitRowHeights(Workbook& workbook, const CellRange& range) {
  const int last_row = std::min(range.last_row, workbook.last_row());
  for (int row = range.first_row; row <= last_row; ++row) {
    double highest = Workbook::kDefaultRowHeight;
    for (int column = range.first_column; column <= range.last_column; ++column) {
      const std::string_view text = workbook.Text(row, column);
      if (text.empty()) continue;
      const CellStyle& style = workbook.Style(row, column);
      highest = std::max(highest, LinesIn(text, style, workbook.ColumnWidth(column)) * style.font.size *
                                      Workbook::kLineHeight);
    }
    workbook.SetRowHeight(row, highest);
  }
}

}  // namespace ovindra
