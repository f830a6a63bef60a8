#include "platform/desktop/binder/cards.h"

#include <QEvent>
#include <QVariant>

namespace ovindra::desktop {
namespace {

constexpr int kGap = 4;

class CardPlace : public QObject {
 public:
  CardPlace(QWidget& form, QWidget& card, QWidget& anchor, bool is_over)
      : QObject(&card), form_(form), card_(card), anchor_(anchor), is_over_(is_over) {
    card.installEventFilter(this);
    form.installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool shown = watched == &card_ && event->type() == QEvent::Show;
    const bool resized = watched == &form_ && event->type() == QEvent::Resize;
    if (shown || (resized && card_.isVisible())) Place();
    return QObject::eventFilter(watched, event);
  }

 private:
  void Place() {
    card_.adjustSize();
    const QRect anchor(anchor_.mapTo(&form_, QPoint()), anchor_.size());
    QRect place(anchor.bottomLeft() + QPoint(0, kGap), card_.size());
    if (is_over_) {
      place.moveCenter(anchor.center());
    } else if (place.bottom() > form_.height() - kGap) {
      place.moveBottom(anchor.top() - kGap);
    }
    place.moveLeft(qMax(kGap, qMin(place.left(), form_.width() - place.width() - kGap)));
    place.moveTop(qMax(kGap, place.top()));
    card_.setGeometry(place);
    card_.raise();
  }

  QWidget& form_;
  QWidget& card_;
  QWidget& anchor_;
  bool is_over_;
};

}  // namespace

void PlaceCards(QWidget& form) {
  for (QWidget* card : form.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    const QString over = card->property("over").toString();
    const QString name = over.isEmpty() ? card->property("below").toString() : over;
    QWidget* anchor = name.isEmpty() ? nullptr : form.findChild<QWidget*>(name);
    if (anchor != nullptr) new CardPlace(form, *card, *anchor, !over.isEmpty());
  }
}

}  // namespace ovindra::desktop
