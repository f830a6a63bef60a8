#include "base/workbook/workbook.h"

#include <algorithm>
#include <cassert>

namespace ovindra {
namespace {

std::size_t Place(int number) {
  assert(number >= 1);
  return static_cast<std::size_t>(number) - 1;
}

/// The value for a key, or what holds where none was set.
template <typename Value>
Value ValueOr(const std::map<int, Value>& values, int key, Value otherwise) {
  const auto found = values.find(key);
  return found == values.end() ? otherwise : found->second;
}

}  // namespace

Workbook::Workbook() : styles_(1) {}

int Workbook::last_row() const {
  const auto last = std::find_if(rows_.rbegin(), rows_.rend(), [](const Row& row) { return !row.empty(); });
  return static_cast<int>(rows_.rend() - last);
}

int Workbook::last_column() const {
  std::size_t last = 0;
  for (const Row& row : rows_) last = std::max(last, row.size());
  return static_cast<int>(last);
}

std::string_view Workbook::Text(int row, int column) const {
  const Cell* cell = Find(row, column);
  return cell == nullptr ? std::string_view{} : std::string_view(cell->text);
}

void Workbook::SetText(int row, int column, std::string_view text) {
  ++revision_;
  At(row, column).text = text;
}

StyleId Workbook::StyleIdAt(int row, int column) const {
  const Cell* cell = Find(row, column);
  return cell == nullptr ? StyleId{0} : cell->style;
}

void Workbook::Restyle(const CellRange& range, const std::function<void(CellStyle&)>& change) {
  if (range.last_column < range.first_column) return;
  ++revision_;
  std::map<StyleId, StyleId> changed;
  const auto changed_from = [&](StyleId id) {
    const auto [known, is_new] = changed.try_emplace(id, id);
    if (is_new) {
      CellStyle style = styles_[id];
      change(style);
      known->second = IdOf(style);
    }
    return known->second;
  };
  // Most cells look like the one before them.
  std::optional<std::pair<StyleId, StyleId>> last;
  for (int row = range.first_row; row <= range.last_row; ++row) {
    At(row, range.last_column);
    Row& cells = rows_[Place(row)];
    for (std::size_t place = Place(range.first_column); place <= Place(range.last_column); ++place) {
      StyleId& id = cells[place].style;
      if (!last || last->first != id) last = {id, changed_from(id)};
      id = last->second;
    }
  }
}

void Workbook::Clear(const CellRange& range) {
  ++revision_;
  const std::size_t end_row = std::min(rows_.size(), static_cast<std::size_t>(std::max(range.last_row, 0)));
  for (std::size_t place = Place(range.first_row); place < end_row; ++place) {
    Row& row = rows_[place];
    const std::size_t first = Place(range.first_column);
    const auto end = std::min(row.size(), static_cast<std::size_t>(std::max(range.last_column, 0)));
    if (end == row.size() && first < end) {
      row.resize(first);
    } else {
      for (std::size_t column = first; column < end; ++column) row[column] = Cell{};
    }
  }
}

int Workbook::ColumnWidth(int column) const {
  return ValueOr(column_widths_, column, kDefaultColumnWidth);
}

void Workbook::SetColumnWidth(int column, int width) {
  ++revision_;
  column_widths_[column] = width;
}

double Workbook::RowHeight(int row) const {
  const std::size_t place = Place(row);
  return ValueOr(row_heights_, row, place < rows_.size() ? FontHeight(rows_[place]) : kDefaultRowHeight);
}

std::map<int, double> Workbook::OtherHeights() const {
  std::map<int, double> heights = row_heights_;
  for (std::size_t place = 0; place < rows_.size(); ++place) {
    const double height = FontHeight(rows_[place]);
    if (height > kDefaultRowHeight) heights.try_emplace(static_cast<int>(place) + 1, height);
  }
  return heights;
}

void Workbook::SetRowHeight(int row, double height) {
  ++revision_;
  row_heights_[row] = height;
}

void Workbook::Merge(const CellRange& range) {
  ++revision_;
  merges_.push_back(range);
}

const Workbook::Cell* Workbook::Find(int row, int column) const {
  const std::size_t row_place = Place(row);
  if (row_place >= rows_.size()) return nullptr;
  const std::size_t column_place = Place(column);
  if (column_place >= rows_[row_place].size()) return nullptr;
  return &rows_[row_place][column_place];
}

Workbook::Cell& Workbook::At(int row, int column) {
  const std::size_t row_place = Place(row);
  if (row_place >= rows_.size()) rows_.resize(row_place + 1);
  Row& cells = rows_[row_place];
  const std::size_t column_place = Place(column);
  if (column_place >= cells.size()) {
    // A row is mostly as long as the one above it, and is written from its first cell on.
    if (cells.capacity() == 0 && row_place > 0) cells.reserve(rows_[row_place - 1].size());
    cells.resize(column_place + 1);
  }
  return cells[column_place];
}

double Workbook::FontHeight(const Row& row) const {
  double highest = kDefaultRowHeight;
  for (const Cell& cell : row) highest = std::max(highest, styles_[cell.style].font.size * kLineHeight);
  return highest;
}

StyleId Workbook::IdOf(const CellStyle& style) {
  const auto found = std::find(styles_.begin(), styles_.end(), style);
  if (found != styles_.end()) return static_cast<StyleId>(found - styles_.begin());
  styles_.push_back(style);
  return static_cast<StyleId>(styles_.size() - 1);
}

}  // namespace ovindra
