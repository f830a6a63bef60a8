#include "platform/desktop/binder/totals.h"

#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>
#include <QVariant>

namespace ovindra::desktop {
namespace {

constexpr int kGap = 8;

class TotalsPlace : public QObject {
 public:
  TotalsPlace(QWidget& row, QTableView& grid) : QObject(&row), row_(row), head_(*grid.horizontalHeader()) {
    int height = 0;
    for (const QWidget* total : Totals()) height = qMax(height, total->sizeHint().height());
    row.setFixedHeight(height);
    row.installEventFilter(this);
    connect(&head_, &QHeaderView::sectionResized, this, [this] { Place(); });
    connect(&head_, &QHeaderView::geometriesChanged, this, [this] { Place(); });
    connect(grid.horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] { Place(); });
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Resize || event->type() == QEvent::Show) Place();
    return QObject::eventFilter(watched, event);
  }

 private:
  QList<QWidget*> Totals() const {
    return row_.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
  }

  void Place() {
    const QWidget& columns = *head_.viewport();
    const int start = columns.mapTo(row_.window(), QPoint()).x() - row_.mapTo(row_.window(), QPoint()).x();
    int column = 0;
    for (QWidget* total : Totals()) {
      const int left = start + head_.sectionViewportPosition(column);
      const int gap = column == 0 ? 0 : kGap;
      total->setGeometry(left + gap, 0, head_.sectionSize(column) - gap, row_.height());
      ++column;
    }
  }

  QWidget& row_;
  QHeaderView& head_;
};

}  // namespace

void PlaceTotals(QWidget& form) {
  for (QWidget* row : form.findChildren<QWidget*>()) {
    const QString under = row->property("under").toString();
    auto* grid = under.isEmpty() ? nullptr : form.findChild<QTableView*>(under);
    if (grid != nullptr) new TotalsPlace(*row, *grid);
  }
}

}  // namespace ovindra::desktop
