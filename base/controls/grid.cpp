#include "base/controls/grid.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "base/controls/form.h"
#include "base/runtime_error.h"
#include "base/text/blanks.h"
#include "base/text/utf8.h"

namespace ovindra {
namespace {

std::optional<double> ReadNumber(std::string_view text) {
  text = Trim(text);
  double value = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
  if (text.empty() || read.ec != std::errc{} || read.ptr != text.data() + text.size()) return {};
  return value;
}

/// What a cell is sorted by, read once and not at every comparison. Mixed columns have no consistent order,
/// which the merge sort below bears: it never looks beyond its range.
struct SortKey {
  explicit SortKey(std::string_view text) : number(ReadNumber(text)), lower(LowerCaseLatin(text)) {}

  bool operator<(const SortKey& other) const {
    return number && other.number ? *number < *other.number : lower < other.lower;
  }

  std::optional<double> number;
  std::string lower;
};

}  // namespace

Grid::Grid(Container& container, std::string_view name, std::initializer_list<std::string_view> headings)
    : Control(container, name, ""), rows_{Row(headings.begin(), headings.end()), Row(headings.size())} {}

void Grid::SetRows(int count) {
  if (count < kFixedRows) throw InvalidPropertyValue();
  rows_.resize(static_cast<std::size_t>(count), Row(static_cast<std::size_t>(columns())));
  KeepCurrentInside();
  Changed(Aspect::kItems);
}

void Grid::AddItem(std::string_view tabbed) {
  Row cells;
  cells.reserve(static_cast<std::size_t>(columns()));
  for (bool more = true; more;) {
    const std::size_t tab = tabbed.find('\t');
    cells.emplace_back(tabbed.substr(0, tab));
    more = tab != std::string_view::npos;
    if (more) tabbed.remove_prefix(tab + 1);
  }
  AddRow(std::move(cells));
}

void Grid::AddRow(Row cells) {
  cells.resize(static_cast<std::size_t>(columns()));
  rows_.push_back(std::move(cells));
  Changed(Aspect::kItems);
}

void Grid::RemoveItem(int row) {
  if (row < kFixedRows || row >= rows()) throw InvalidPropertyValue();
  if (rows() == kFixedRows + 1) throw CannotRemoveLastRow();
  rows_.erase(rows_.begin() + row);
  KeepCurrentInside();
  Changed(Aspect::kItems);
}

const std::string& Grid::Cell(int row, int column) const {
  if (!HasCell(row, column)) throw InvalidPropertyValue();
  return rows_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
}

void Grid::SetCell(int row, int column, std::string_view text) {
  if (!HasCell(row, column)) throw InvalidPropertyValue();
  rows_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] = text;
  Changed(Aspect::kItems);
}

const Grid::Row& Grid::RowAt(int row) const {
  if (!HasCell(row, 0)) throw InvalidPropertyValue();
  return rows_[static_cast<std::size_t>(row)];
}

void Grid::SetRow(int row) {
  if (!HasCell(row, 0)) throw InvalidPropertyValue();
  row_ = last_selected_row_ = row;
  Changed(Aspect::kChoice);
}

void Grid::SetColumn(int column) {
  if (!HasCell(0, column)) throw InvalidPropertyValue();
  column_ = column;
  Changed(Aspect::kChoice);
}

void Grid::SelectRows(int first, int last) {
  row_ = std::max(kFixedRows, std::min(first, rows() - 1));
  last_selected_row_ = std::max(row_, std::min(last, rows() - 1));
  Changed(Aspect::kChoice);
}

void Grid::SetRedraw(bool redraw) {
  redraw_ = redraw;
  if (redraw) Changed(Aspect::kItems);
}

void Grid::Sort(SortOrder order) {
  const int first = row_;
  const int last = std::min(last_selected_row_, rows() - 1);
  if (order == SortOrder::kNone || first >= last) return;
  std::vector<std::pair<SortKey, Row>> keyed;
  for (int row = first; row <= last; ++row)
    keyed.emplace_back(SortKey(Cell(row, column_)), std::move(rows_[static_cast<std::size_t>(row)]));
  std::stable_sort(keyed.begin(), keyed.end(), [&](const auto& left, const auto& right) {
    return order == SortOrder::kGenericAscending ? left.first < right.first : right.first < left.first;
  });
  for (std::size_t i = 0; i < keyed.size(); ++i)
    rows_[static_cast<std::size_t>(first) + i] = std::move(keyed[i].second);
  Changed(Aspect::kItems);
}

void Grid::UserClickCell(int row, int column) {
  if (!BeginUserStep(row, column) || row < kFixedRows) return;
  MoveCurrent(row, column);
  click.Fire();
}

void Grid::UserDoubleClickCell(int row, int column) {
  UserClickCell(row, column);
  // The click may have closed the form's question with another list, or taken the focus away.
  if (CanAct() && HasFocus()) double_click.Fire();
}

void Grid::UserSecondClickCell(int row, int column) {
  if (BeginUserStep(row, column)) double_click.Fire();
}

void Grid::UserMoveTo(int row, int column) {
  if (row < kFixedRows || !HasCell(row, column) || !CanAct() || !form().UserFocus(*this)) return;
  MoveCurrent(row, column);
}

void Grid::DoKey(Key key) {
  switch (key.name) {
    case KeyName::kDown:
      UserMoveTo(row_ + 1, column_);
      break;
    case KeyName::kUp:
      UserMoveTo(row_ - 1, column_);
      break;
    case KeyName::kSpace:
      Control::DoKey(key);
      UserClickCell(row_, column_);
      break;
    default:
      Control::DoKey(key);
  }
}

bool Grid::HasCell(int row, int column) const {
  return row >= 0 && row < rows() && column >= 0 && column < columns();
}

bool Grid::BeginUserStep(int row, int column) {
  if (!HasCell(row, column) || !CanAct() || !form().UserFocus(*this)) return false;
  mouse_row_ = row;
  mouse_column_ = column;
  return true;
}

void Grid::MoveCurrent(int row, int column) {
  if (row == row_ && column == column_) return;
  row_ = last_selected_row_ = row;
  column_ = column;
  Changed(Aspect::kChoice);
  cell_moved.Fire();
}

void Grid::KeepCurrentInside() {
  row_ = std::max(kFixedRows, std::min(row_, rows() - 1));
  last_selected_row_ = row_;
}

}  // namespace ovindra
