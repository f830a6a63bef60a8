#include "platform/desktop/binder/sheet_view.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <algorithm>
#include <cmath>

#include "platform/desktop/theme/roles.h"
#include "platform/desktop/theme/theme.h"

namespace ovindra::desktop {
namespace {

constexpr double kSmallestZoom = 0.5;
constexpr double kLargestZoom = 3;
constexpr double kZoomStep = 0.1;
constexpr int kHeadHeight = 22;
constexpr int kSmallestSection = 4;
constexpr int kRing = 2;
constexpr int kSelectionAlpha = 36;
constexpr int kFindBarMargin = 12;

// Paper is paper, in the dark too.
const theme::Tokens& PaperTokens() {
  return theme::LightTokens();
}

int Rounded(double pixels) {
  return static_cast<int>(std::lround(pixels));
}

}  // namespace

SheetView::SheetView(QWidget* parent) : QTableView(parent) {
  theme::role::Set(*this, theme::role::kEdgeToEdge);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(ContiguousSelection);
  setTabKeyNavigation(false);
  setShowGrid(false);
  setHorizontalScrollMode(ScrollPerPixel);
  setVerticalScrollMode(ScrollPerPixel);
  QHeaderView& letters = *horizontalHeader();
  letters.setMinimumSectionSize(kSmallestSection);
  letters.setFixedHeight(kHeadHeight);
  letters.setHighlightSections(true);
  letters.setSectionsClickable(true);
  QHeaderView& numbers = *verticalHeader();
  numbers.setMinimumSectionSize(kSmallestSection);
  numbers.setSectionResizeMode(QHeaderView::Fixed);
  numbers.setHighlightSections(true);
  numbers.setSectionsClickable(true);
  AddShortcuts();
}

SheetView::~SheetView() = default;

void SheetView::AddShortcuts() {
  const auto add = [this](const QKeySequence& keys, auto act) {
    // Wherever the keyboard is on the form: the sheet is what the form is about.
    auto* shortcut = new QShortcut(keys, this);
    connect(shortcut, &QShortcut::activated, this, act);
  };
  add(QKeySequence::Find, [this] { OpenFindBar(); });
  add(Qt::CTRL | Qt::Key_Plus, [this] { SetZoom(zoom_ + kZoomStep); });
  add(Qt::CTRL | Qt::Key_Equal, [this] { SetZoom(zoom_ + kZoomStep); });
  add(Qt::CTRL | Qt::Key_Minus, [this] { SetZoom(zoom_ - kZoomStep); });
  add(Qt::CTRL | Qt::Key_0, [this] { SetZoom(1); });
}

void SheetView::SetModel(SheetModel& model) {
  sheet_ = &model;
  setModel(&model);
}

double SheetView::Unit() const {
  return fonts_ == nullptr ? zoom_ : fonts_->unit();
}

void SheetView::ShowWorkbook() {
  sheet_->Refresh();
  fonts_ = std::make_unique<SheetFonts>(sheet_->workbook(), zoom_, *viewport());
  clearSpans();
  for (const CellRange& merge : sheet_->workbook().merges()) {
    setSpan(merge.first_row - 1, merge.first_column - 1, merge.last_row - merge.first_row + 1,
            merge.last_column - merge.first_column + 1);
  }
  SetSizes();
  setCurrentIndex(sheet_->index(0, 0));
  scrollToTop();
  horizontalScrollBar()->setValue(0);
}

void SheetView::SetSizes() {
  const Workbook& workbook = sheet_->workbook();
  QHeaderView& numbers = *verticalHeader();
  QHeaderView& letters = *horizontalHeader();
  {
    // A hundred thousand rows would each tell of its new height.
    const QSignalBlocker quiet_rows(numbers);
    const QSignalBlocker quiet_columns(letters);
    numbers.setDefaultSectionSize(Rounded(RowPixels(Workbook::kDefaultRowHeight) * Unit()));
    for (const auto& [row, height] : workbook.OtherHeights()) {
      if (row <= sheet_->rowCount()) numbers.resizeSection(row - 1, Rounded(RowPixels(height) * Unit()));
    }
    for (int column = 1; column <= sheet_->columnCount(); ++column)
      letters.resizeSection(column - 1, Rounded(fonts_->ColumnExtent(column)));
  }
  const QString widest = QString::number(sheet_->rowCount());
  numbers.setFixedWidth(qMax(38, numbers.fontMetrics().horizontalAdvance(widest) + 18));
  updateGeometries();
  numbers.viewport()->update();
  letters.viewport()->update();
  viewport()->update();
}

int SheetView::ShownWidth(int column) const {
  const int told = sheet_->headerData(column - 1, Qt::Horizontal, SheetModel::kWidth).toInt();
  const int shown = columnWidth(column - 1);
  if (shown == Rounded(ColumnPixels(told) * Unit())) return told;
  return Rounded(shown / Unit() / ColumnPixels(1));
}

void SheetView::SetZoom(double zoom) {
  zoom = std::clamp(std::round(zoom / kZoomStep) * kZoomStep, kSmallestZoom, kLargestZoom);
  if (sheet_ == nullptr || fonts_ == nullptr || zoom == zoom_) return;
  const int top = rowAt(0);
  const int left = columnAt(0);
  zoom_ = zoom;
  fonts_ = std::make_unique<SheetFonts>(sheet_->workbook(), zoom_, *viewport());
  SetSizes();
  verticalScrollBar()->setValue(verticalHeader()->sectionPosition(top));
  horizontalScrollBar()->setValue(horizontalHeader()->sectionPosition(left));
}

SheetPart SheetView::PartIn(const QRect& rect) const {
  const auto at = [](int section, int last) { return section < 0 ? last : section; };
  SheetPart part;
  part.first_column = at(columnAt(rect.left()), 0) + 1;
  part.last_column = at(columnAt(rect.right()), sheet_->columnCount() - 1) + 1;
  double edge = columnViewportPosition(0);
  part.edges.push_back(edge);
  for (int column = 0; column < sheet_->columnCount(); ++column)
    part.edges.push_back(edge += columnWidth(column));
  const int last_row = at(rowAt(rect.bottom()), sheet_->rowCount() - 1);
  double top = 0;
  for (int row = at(rowAt(rect.top()), 0); row <= last_row; ++row) {
    if (part.rows.empty()) top = rowViewportPosition(row);
    part.rows.push_back({row + 1, top, static_cast<double>(rowHeight(row))});
    top += part.rows.back().height;
  }
  return part;
}

void SheetView::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  const QRect& rect = event->rect();
  painter.fillRect(rect, theme::Current().window);
  if (sheet_ == nullptr || fonts_ == nullptr) return;
  const SheetPart part = PartIn(rect);
  if (part.rows.empty()) return;
  const SheetPart::Row& last = part.rows.back();
  const QRectF paper(QPointF(part.LeftOf(part.first_column), part.rows.front().top),
                     QPointF(part.RightOf(part.last_column), last.top + last.height));
  painter.fillRect(paper, Qt::white);
  SheetPainter(painter, sheet_->workbook(), *fonts_, 1, PaperTokens().hair).Paint(part);
  PaintSelection(painter);
}

QRect SheetView::RectOf(const QItemSelectionRange& range) const {
  const QRect first = visualRect(range.topLeft());
  const QRect last = visualRect(range.bottomRight());
  return first.united(last);
}

void SheetView::PaintSelection(QPainter& painter) const {
  QColor tint = PaperTokens().fill;
  tint.setAlpha(kSelectionAlpha);
  const QRect current = currentIndex().isValid() ? visualRect(currentIndex()) : QRect();
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    if (range.width() == 1 && range.height() == 1) continue;
    const QRegion region = QRegion(RectOf(range).intersected(viewport()->rect())).subtracted(current);
    for (const QRect& rect : region) painter.fillRect(rect, tint);
  }
  if (current.isNull()) return;
  // Looking for a text is done in the sheet: its cell is the one in use.
  const bool in_use = hasFocus() || (find_bar_ != nullptr && find_bar_->edit().hasFocus());
  painter.setPen(QPen(in_use ? PaperTokens().focus : PaperTokens().line, kRing));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(current.adjusted(0, 0, -1, -1));
}

void SheetView::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    Copy();
    return;
  }
  const bool finds = event->key() == Qt::Key_F3 && find_bar_ != nullptr;
  if (finds) {
    Look(event->modifiers().testFlag(Qt::ShiftModifier) ? SearchFrom::kPrevious : SearchFrom::kNext);
    return;
  }
  QTableView::keyPressEvent(event);
}

QModelIndex SheetView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  // To the end of what is written, not of the empty paper behind it.
  if (action != MoveEnd || sheet_ == nullptr) return QTableView::moveCursor(action, modifiers);
  const int row = modifiers.testFlag(Qt::ControlModifier) ? sheet_->used_rows() - 1 : currentIndex().row();
  return sheet_->index(qMax(row, 0), qMax(sheet_->used_columns() - 1, 0));
}

void SheetView::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) {
    QTableView::wheelEvent(event);
    return;
  }
  // A fine wheel or a touch pad turns by parts of a notch.
  turned_ += event->angleDelta().y();
  const int notches = turned_ / QWheelEvent::DefaultDeltasPerStep;
  turned_ -= notches * QWheelEvent::DefaultDeltasPerStep;
  if (notches != 0) SetZoom(zoom_ + notches * kZoomStep);
  event->accept();
}

void SheetView::Copy() const {
  const QItemSelection selection = selectionModel()->selection();
  if (sheet_ == nullptr || selection.isEmpty()) return;
  const QItemSelectionRange& range = selection.front();
  // Whole columns end with what is written.
  const CellRange block{range.top() + 1, range.left() + 1,
                        std::min(range.bottom() + 1, std::max(sheet_->used_rows(), range.top() + 1)),
                        std::min(range.right() + 1, std::max(sheet_->used_columns(), range.left() + 1))};
  QString text = CopiedText(sheet_->workbook(), block);
  if (block.first_row == block.last_row && block.first_column == block.last_column) text.chop(1);
  QGuiApplication::clipboard()->setText(text);
}

void SheetView::OpenFindBar() {
  if (sheet_ == nullptr) return;
  if (find_bar_ == nullptr) {
    find_bar_ = new SheetFindBar(this);
    connect(find_bar_, &SheetFindBar::TextChanged, this, [this] { Look(SearchFrom::kHere); });
    connect(find_bar_, &SheetFindBar::NextAsked, this, [this] { Look(SearchFrom::kNext); });
    connect(find_bar_, &SheetFindBar::PreviousAsked, this, [this] { Look(SearchFrom::kPrevious); });
    connect(find_bar_, &SheetFindBar::CloseAsked, this, &SheetView::CloseFindBar);
  }
  find_bar_->show();
  PlaceFindBar();
  find_bar_->edit().selectAll();
  find_bar_->edit().setFocus();
  emit FindBarOpened();
}

void SheetView::CloseFindBar() {
  if (find_bar_ == nullptr || !find_bar_->isVisible()) return;
  find_bar_->hide();
  emit FindBarClosed();
}

void SheetView::Look(SearchFrom from) {
  const QString text = find_bar_->edit().text();
  const QModelIndex current = currentIndex();
  const SheetCell start{current.row() + 1, current.column() + 1};
  const auto found = FindInSheet(sheet_->workbook(), text, start, from);
  find_bar_->ShowFound(found.has_value() || text.isEmpty());
  PlaceFindBar();
  if (!found) return;
  const QModelIndex index = sheet_->index(found->row - 1, found->column - 1);
  setCurrentIndex(index);
  // Not below the bar itself.
  if (visualRect(index).intersects(find_bar_->geometry().translated(-viewport()->pos())))
    scrollTo(index, PositionAtCenter);
}

void SheetView::PlaceFindBar() {
  if (find_bar_ == nullptr) return;
  find_bar_->adjustSize();
  const QRect room = viewport()->geometry();
  find_bar_->move(room.right() - find_bar_->width() - kFindBarMargin, room.top() + kFindBarMargin);
  find_bar_->raise();
}

void SheetView::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  PlaceFindBar();
}

}  // namespace ovindra::desktop
