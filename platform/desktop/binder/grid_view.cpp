#include "platform/desktop/binder/grid_view.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <vector>

#include "platform/desktop/theme/dressing.h"

namespace ovindra::desktop {
namespace {

// Enough rows to judge a column by; the rest of a long list is not looked at.
constexpr int kRowsJudged = 60;
constexpr int kCellPadding = 22;
constexpr int kWidestStart = 320;
// In a list of captions and values the values begin where the fields of a form do.
constexpr int kCaptionColumn = 116;
// The size a form gives its list when it opens.
constexpr int kUsualColumn = 157;
constexpr int kNarrowest = 320;
constexpr int kWidest = 800;
constexpr int kUsualHeight = 280;

}  // namespace

GridView::GridView(QWidget* parent) : QTableView(parent) {
  theme::DressGrid(*this);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  QHeaderView& head = *horizontalHeader();
  head.setSectionsClickable(true);
  head.setHighlightSections(false);
  connect(&head, &QHeaderView::sectionClicked, this, [this](int column) { emit CellClicked(-1, column); });
  connect(&head, &QHeaderView::sectionDoubleClicked, this,
          [this](int column) { emit CellClickedAgain(-1, column); });
  connect(&head, &QHeaderView::sectionResized, this, [this] {
    // The last column follows the window by itself.
    const bool by_mouse = QGuiApplication::mouseButtons().testFlag(Qt::LeftButton);
    is_dragged_ = is_dragged_ || (by_mouse && !is_fitting_);
  });
}

QSize GridView::sizeHint() const {
  const int columns = model() == nullptr ? 0 : model()->columnCount();
  // Captions and values are as many as the form's file gives room to.
  const int height = horizontalHeader()->isHidden() ? minimumHeight() : kUsualHeight;
  return {qBound(kNarrowest, columns * kUsualColumn, kWidest), height};
}

void GridView::FitColumns() {
  const int columns = model() == nullptr ? 0 : model()->columnCount();
  if (is_dragged_ || columns == 0) return;
  is_fitting_ = true;
  if (horizontalHeader()->isHidden()) {
    setColumnWidth(0, qMax(kCaptionColumn, WantedWidth(0)));
    is_fitting_ = false;
    return;
  }
  std::vector<int> widths;
  int total = 0;
  int text_columns = 0;
  for (int column = 0; column < columns; ++column) {
    widths.push_back(WantedWidth(column));
    total += widths.back();
    if (IsTextColumn(column)) ++text_columns;
  }
  const bool all_share = text_columns == 0;
  const int share = qMax(0, viewport()->width() - total) / (all_share ? columns : text_columns);
  for (int column = 0; column < columns; ++column) {
    const bool shares = all_share || IsTextColumn(column);
    setColumnWidth(column, widths[static_cast<std::size_t>(column)] + (shares ? share : 0));
  }
  is_fitting_ = false;
}

int GridView::WantedWidth(int column) const {
  const QFontMetrics metrics(font());
  int width = metrics.horizontalAdvance(model()->headerData(column, Qt::Horizontal, Qt::EditRole).toString());
  const int rows = qMin(model()->rowCount(), kRowsJudged);
  for (int row = 0; row < rows; ++row) {
    width = qMax(width, metrics.horizontalAdvance(model()->index(row, column).data().toString()));
  }
  return qMin(width + kCellPadding, kWidestStart);
}

bool GridView::IsTextColumn(int column) const {
  const int alignment = model()->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt();
  return (alignment & Qt::AlignLeft) != 0;
}

void GridView::keyPressEvent(QKeyEvent* event) {
  static constexpr struct {
    int key;
    CursorAction action;
  } kMoves[] = {{Qt::Key_Up, MoveUp},       {Qt::Key_Down, MoveDown},     {Qt::Key_Left, MoveLeft},
                {Qt::Key_Right, MoveRight}, {Qt::Key_PageUp, MovePageUp}, {Qt::Key_PageDown, MovePageDown},
                {Qt::Key_Home, MoveHome},   {Qt::Key_End, MoveEnd}};
  for (const auto& move : kMoves) {
    if (move.key != event->key()) continue;
    // Home and End of a list of rows are its ends; the view's own are those of the row.
    const bool to_end = move.action == MoveHome || move.action == MoveEnd;
    const QModelIndex index = moveCursor(move.action, to_end ? Qt::ControlModifier : Qt::NoModifier);
    if (index.isValid()) emit CellReached(index.row(), to_end ? currentIndex().column() : index.column());
    return;
  }
  event->ignore();
}

void GridView::mousePressEvent(QMouseEvent* event) {
  pressed_ = event->button() == Qt::LeftButton ? indexAt(event->position().toPoint()) : QModelIndex();
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
  const QModelIndex index = indexAt(event->position().toPoint());
  const bool clicked = pressed_.isValid() && index == pressed_;
  pressed_ = QModelIndex();
  if (clicked) emit CellClicked(index.row(), index.column());
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
  const QModelIndex index = indexAt(event->position().toPoint());
  if (index.isValid()) emit CellClickedAgain(index.row(), index.column());
}

void GridView::mouseMoveEvent(QMouseEvent* /*event*/) {
  // Dragging over rows chooses none.
}

void GridView::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  FitColumns();
}

}  // namespace ovindra::desktop
