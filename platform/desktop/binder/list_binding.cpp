#include "platform/desktop/binder/list_binding.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include "platform/desktop/binder/form_view.h"

namespace ovindra::desktop {

ListBinding::ListBinding(FormView& view, ListBox& list, QListView& shown)
    : WidgetBinding(view, list, shown), list_(list), shown_(shown), items_(list.items()) {
  shown.setModel(&items_);
  shown.setUniformItemSizes(true);
  shown.setEditTriggers(QAbstractItemView::NoEditTriggers);
  shown.setTabKeyNavigation(false);
  connect(&shown, &QListView::clicked, this,
          [this](const QModelIndex& index) { Act([&] { list_.UserPick(index.row()); }); });
  connect(&shown, &QListView::doubleClicked, this, [this] { Act([&] { list_.UserSecondClick(); }); });
}

void ListBinding::Show(Aspects aspects) {
  WidgetBinding::Show(aspects);
  if (Has(aspects, Aspect::kItems)) items_.Refresh();
  shown_.setCurrentIndex(items_.index(list_.list_index()));
}

bool ListBinding::eventFilter(QObject* watched, QEvent* event) {
  if (WidgetBinding::eventFilter(watched, event)) return true;
  // Dragging over a list would choose without a click.
  return event->type() == QEvent::MouseMove && watched == shown_.viewport();
}

bool ListBinding::KeyPressed(QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
      Step(event);
      return true;
    default:
      return WidgetBinding::KeyPressed(event);
  }
}

void ListBinding::Step(const QKeyEvent& event) {
  const int last = list_.items().count() - 1;
  if (last < 0) return;
  const int page = qMax(1, shown_.viewport()->height() / qMax(1, shown_.sizeHintForRow(0)) - 1);
  const int here = list_.list_index();
  const int to = event.key() == Qt::Key_Home     ? 0
                 : event.key() == Qt::Key_End    ? last
                 : event.key() == Qt::Key_PageUp ? here - page
                                                 : here + page;
  const int row = qBound(0, to, last);
  if (row != here) Act([&] { list_.UserMoveTo(row); });
}

}  // namespace ovindra::desktop
