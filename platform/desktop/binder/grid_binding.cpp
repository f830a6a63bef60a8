#include "platform/desktop/binder/grid_binding.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <algorithm>
#include <string>

#include "base/text/blanks.h"
#include "platform/desktop/binder/form_view.h"
#include "platform/desktop/binder/keys.h"
#include "platform/desktop/binder/text.h"
#include "platform/desktop/theme/theme.h"

namespace ovindra::desktop {
namespace {

constexpr int kRowsJudged = 60;
constexpr qsizetype kFewLetters = 2;

bool IsNumber(const QString& text) {
  bool is_number = false;
  text.toDouble(&is_number);
  return is_number;
}

}  // namespace

void GridModel::Refresh() {
  beginResetModel();
  rows_ = grid_.rows() - grid_.fixed_rows();
  alignment_.clear();
  for (int column = 0; column < grid_.columns(); ++column) alignment_.push_back(Judge(column));
  endResetModel();
}

bool GridModel::HasHeadings() const {
  for (int column = 0; column < grid_.columns(); ++column) {
    if (!Trim(grid_.Cell(0, column)).empty()) return true;
  }
  return false;
}

Qt::Alignment GridModel::Judge(int column) const {
  bool numbers = true;
  bool letters = true;
  bool any = false;
  const int last = std::min(grid_.rows(), grid_.fixed_rows() + kRowsJudged);
  for (int row = grid_.fixed_rows(); row < last; ++row) {
    const QString text = ToQt(grid_.Cell(row, column)).trimmed();
    if (text.isEmpty()) continue;
    any = true;
    numbers = numbers && IsNumber(text);
    letters = letters && text.size() <= kFewLetters;
  }
  const Qt::Alignment across = !any      ? Qt::AlignLeft
                               : numbers ? Qt::AlignRight
                               : letters ? Qt::AlignHCenter
                                         : Qt::AlignLeft;
  return across | Qt::AlignVCenter;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  const int row = index.row() + grid_.fixed_rows();
  if (!index.isValid() || row >= grid_.rows() || index.column() >= grid_.columns()) return {};
  if (role == Qt::DisplayRole) return ToQt(grid_.Cell(row, index.column()));
  if (role == Qt::TextAlignmentRole) {
    return static_cast<int>(alignment_[static_cast<std::size_t>(index.column())]);
  }
  // Without headings the first column holds the captions of the others.
  if (role == Qt::ForegroundRole && index.column() == 0 && !HasHeadings()) return theme::Current().muted;
  return {};
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
  // Blanks behind a heading make its column wide; shown, they would push it away from its numbers.
  if (role == Qt::DisplayRole) return ToQt(grid_.Cell(0, section)).trimmed();
  if (role == Qt::EditRole) return ToQt(grid_.Cell(0, section));
  if (role == Qt::TextAlignmentRole) return static_cast<int>(alignment_[static_cast<std::size_t>(section)]);
  return {};
}

GridBinding::GridBinding(FormView& view, Grid& grid, GridView& shown)
    : WidgetBinding(view, grid, shown), grid_(grid), shown_(shown), model_(grid) {
  shown.setModel(&model_);
  // Dragging a column is no step in the form; a click on a heading is one by itself.
  shown.horizontalHeader()->viewport()->removeEventFilter(this);
  shown.horizontalHeader()->removeEventFilter(this);
  const int fixed = grid.fixed_rows();
  connect(&shown, &GridView::CellClicked, this,
          [this, fixed](int row, int column) { Act([&] { grid_.UserClickCell(row + fixed, column); }); });
  connect(&shown, &GridView::CellClickedAgain, this, [this, fixed](int row, int column) {
    Act([&] { grid_.UserSecondClickCell(row + fixed, column); });
  });
  connect(&shown, &GridView::CellReached, this,
          [this, fixed](int row, int column) { Act([&] { grid_.UserMoveTo(row + fixed, column); }); });
}

void GridBinding::Show(Aspects aspects) {
  WidgetBinding::Show(aspects);
  const int before = model_.rowCount();
  if (Has(aspects, Aspect::kItems)) {
    model_.Refresh();
    shown_.horizontalHeader()->setVisible(model_.HasHeadings());
    shown_.FitColumns();
    is_reloaded_ = true;
  }
  ShowCurrent();
  // Who adds row by row looks for the last one.
  if (model_.rowCount() == before + 1 && !grid_.HasFocus()) shown_.scrollToBottom();
}

void GridBinding::FocusArrived() {
  ShowCurrent();
}

void GridBinding::ShowCurrent() {
  if (grid_.HasFocus()) {
    is_visited_ = true;
  } else if (is_reloaded_) {
    is_visited_ = false;
  }
  is_reloaded_ = false;
  const QModelIndex current = model_.index(grid_.row() - grid_.fixed_rows(), grid_.column());
  QItemSelectionModel& selection = *shown_.selectionModel();
  if (is_visited_) {
    shown_.setCurrentIndex(current);
  } else {
    selection.setCurrentIndex(current, QItemSelectionModel::Clear);
  }
}

bool GridBinding::KeyPressed(QKeyEvent& event) {
  const auto key = KeyOf(event);
  if (!key || key->name == KeyName::kTab) return false;
  if (key->name != KeyName::kUp && key->name != KeyName::kDown) return WidgetBinding::KeyPressed(event);
  // The step itself is the view's, which says where it leads.
  bool goes_on = false;
  return !Act([&] { goes_on = grid_.UserKeyDown(key->name); }) || !goes_on;
}

}  // namespace ovindra::desktop
