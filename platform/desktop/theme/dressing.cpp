#include "platform/desktop/theme/dressing.h"

#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QComboBox>
#include <QGraphicsDropShadowEffect>
#include <QHeaderView>
#include <QTextCharFormat>
#include <QToolButton>

#include "platform/desktop/theme/icons.h"
#include "platform/desktop/theme/roles.h"
#include "platform/desktop/theme/row_delegate.h"
#include "platform/desktop/theme/theme.h"

namespace ovindra::theme {
namespace {

// Only Qt's own delegates are replaced; whoever set another one knows why.
bool HasDefaultDelegate(const QAbstractItemView& view) {
  const QAbstractItemDelegate* delegate = view.itemDelegate();
  if (delegate == nullptr) return true;
  const QByteArray kind = delegate->metaObject()->className();
  return kind == "QStyledItemDelegate" || kind == "QComboBoxDelegate" || kind == "QComboMenuDelegate";
}

void DressView(QAbstractItemView& view) {
  if (HasDefaultDelegate(view)) view.setItemDelegate(new RowDelegate(&view));
}

void DressCombo(QComboBox& combo) {
  if (combo.itemDelegate()->metaObject()->className() == QByteArray("QComboBoxDelegate")) {
    combo.setItemDelegate(new RowDelegate(&combo));
  }
}

void SetArrow(const QCalendarWidget& calendar, const char* name, art::Glyph glyph) {
  if (auto* button = calendar.findChild<QToolButton*>(name); button != nullptr)
    button->setIcon(GlyphIcon(glyph));
}

void DressCalendar(QCalendarWidget& calendar) {
  const Tokens& tokens = Current();
  calendar.setFirstDayOfWeek(Qt::Monday);
  calendar.setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  calendar.setHorizontalHeaderFormat(QCalendarWidget::ShortDayNames);
  QTextCharFormat head;
  head.setForeground(tokens.text);
  head.setBackground(tokens.header);
  calendar.setHeaderTextFormat(head);
  QTextCharFormat day;
  day.setForeground(tokens.text);
  calendar.setWeekdayTextFormat(Qt::Saturday, day);
  calendar.setWeekdayTextFormat(Qt::Sunday, day);
  SetArrow(calendar, "qt_calendar_prevmonth", art::Glyph::ChevronLeft);
  SetArrow(calendar, "qt_calendar_nextmonth", art::Glyph::ChevronRight);
  if (calendar.property(role::kCard).toBool()) calendar.setContentsMargins(7, 2, 7, 11);
}

void DressCard(QWidget& card) {
  card.setAttribute(Qt::WA_StyledBackground);
  auto* shadow = qobject_cast<QGraphicsDropShadowEffect*>(card.graphicsEffect());
  if (shadow == nullptr) {
    shadow = new QGraphicsDropShadowEffect(&card);
    shadow->setBlurRadius(28);
    shadow->setOffset(0, 6);
    card.setGraphicsEffect(shadow);
  }
  shadow->setColor(Current().dark ? QColor(0, 0, 0, 170) : QColor(0x0C, 0x2A, 0x31, 90));
}

}  // namespace

void DressWidget(QWidget& widget) {
  if (auto* calendar = qobject_cast<QCalendarWidget*>(&widget); calendar != nullptr) DressCalendar(*calendar);
  if (auto* view = qobject_cast<QAbstractItemView*>(&widget); view != nullptr) DressView(*view);
  if (auto* combo = qobject_cast<QComboBox*>(&widget); combo != nullptr) DressCombo(*combo);
  if (widget.property(role::kCard).toBool()) DressCard(widget);
  if (widget.property(role::kReportBar).toBool()) widget.setAttribute(Qt::WA_StyledBackground);
}

void DressGrid(QTableView& grid) {
  grid.setAlternatingRowColors(true);
  grid.setShowGrid(false);
  grid.setSelectionBehavior(QAbstractItemView::SelectRows);
  grid.setSelectionMode(QAbstractItemView::SingleSelection);
  grid.setTabKeyNavigation(false);
  grid.setWordWrap(false);
  grid.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  grid.verticalHeader()->hide();
  // A section is never made smaller than the minimum, so that has to come down first.
  grid.verticalHeader()->setMinimumSectionSize(kGridRowHeight);
  grid.verticalHeader()->setDefaultSectionSize(kGridRowHeight);
  QHeaderView& head = *grid.horizontalHeader();
  head.setMinimumSectionSize(40);
  head.setFixedHeight(kGridHeadHeight);
  head.setHighlightSections(false);
  head.setStretchLastSection(true);
  head.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

}  // namespace ovindra::theme
