#include "platform/desktop/binder/cards.h"

#include <QEvent>
#include <QVariant>

namespace ovindra::desktop {
namespace {

constexpr int kGap = 4;

/// Where a card opens: the property of its form file that names its anchor.
enum class Side { kBelow, kBeside, kOver };

struct SideName {
  const char* property;
  Side side;
};

constexpr SideName kSides[] = {{"below", Side::kBelow}, {"beside", Side::kBeside}, {"over", Side::kOver}};

class CardPlace : public QObject {
 public:
  CardPlace(QWidget& form, QWidget& card, QWidget& anchor, Side side)
      : QObject(&card), form_(form), card_(card), anchor_(anchor), side_(side) {
    card.installEventFilter(this);
    form.installEventFilter(this);
    anchor.installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool shown = watched == &card_ && event->type() == QEvent::Show;
    const bool resized = watched == &form_ && event->type() == QEvent::Resize;
    if (shown || (resized && card_.isVisible())) Place();
    // Of several cards that stand open, the one of the box in hand lies on top.
    if (watched == &anchor_ && event->type() == QEvent::FocusIn) card_.raise();
    return QObject::eventFilter(watched, event);
  }

 private:
  void Place() {
    card_.adjustSize();
    const QRect anchor(anchor_.mapTo(&form_, QPoint()), anchor_.size());
    QRect place(anchor.bottomLeft() + QPoint(0, kGap), card_.size());
    switch (side_) {
      case Side::kOver:
        place.moveCenter(anchor.center());
        break;
      case Side::kBeside:
        place.moveTopLeft(anchor.topRight() + QPoint(3 * kGap, 0));
        place.moveTop(qMin(place.top(), form_.height() - place.height() - kGap));
        break;
      case Side::kBelow:
        if (place.bottom() > form_.height() - kGap) place.moveBottom(anchor.top() - kGap);
    }
    place.moveLeft(qMax(kGap, qMin(place.left(), form_.width() - place.width() - kGap)));
    place.moveTop(qMax(kGap, place.top()));
    card_.setGeometry(place);
    card_.raise();
  }

  QWidget& form_;
  QWidget& card_;
  QWidget& anchor_;
  Side side_;
};

}  // namespace

void PlaceCards(QWidget& form) {
  for (QWidget* card : form.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    for (const auto& [property, side] : kSides) {
      const QString name = card->property(property).toString();
      QWidget* anchor = name.isEmpty() ? nullptr : form.findChild<QWidget*>(name);
      if (anchor != nullptr) new CardPlace(form, *card, *anchor, side);
    }
  }
}

}  // namespace ovindra::desktop
