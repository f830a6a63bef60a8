#include "platform/desktop/windows/backdrop_area.h"

#include <QMdiSubWindow>
#include <QPaintEvent>
#include <QPainter>

#include "platform/desktop/theme/theme.h"

namespace ovindra::desktop {
namespace {

constexpr QPoint kFirst(14, 4);
constexpr int kStep = 30;

bool IsTaken(const QMdiArea& area, const QMdiSubWindow& child, QPoint place) {
  for (const QMdiSubWindow* other : area.subWindowList()) {
    if (other != &child && other->isVisible() && other->pos() == place) return true;
  }
  return false;
}

}  // namespace

BackdropArea::BackdropArea(QWidget* parent) : QMdiArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void BackdropArea::Place(QMdiSubWindow& child, Height height) {
  const QSize room = viewport()->size();
  QSize size = child.sizeHint().expandedTo(child.minimumSizeHint()).boundedTo(room);
  if (height == Height::kAll) size.setHeight(room.height());
  child.resize(size);
  const QPoint most(room.width() - size.width(), room.height() - size.height());
  const auto inside = [&](QPoint place) {
    return QPoint(qMin(place.x(), most.x()), qMin(place.y(), most.y()));
  };
  QPoint place = inside(kFirst);
  // A window that fills the area has nowhere to go, and the last corner is where the row of them ends.
  for (QPoint next = kFirst; IsTaken(*this, child, place); place = inside(next)) {
    next += QPoint(kStep, kStep);
    if (next.x() > most.x() && next.y() > most.y()) break;
  }
  child.move(place);
}

void BackdropArea::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  const QPixmap& picture = backdrop_.Picture(viewport()->size(), devicePixelRatioF(), theme::Current().dark);
  painter.setClipRegion(event->region());
  painter.drawPixmap(0, 0, picture);
}

}  // namespace ovindra::desktop
