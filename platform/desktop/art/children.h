// Children as silhouettes, for the splash and the ground of the main window. A figure says where its hands
// are, so that neighbours can share a point and stand hand in hand. Pure painting; nothing is owned.
#pragma once

#include <QColor>
#include <QPainter>
#include <QPointF>

namespace ovindra::art {

/// One child: where it stands, how tall it is, and the points its hands reach.
struct Child {
  enum class Kind { Girl, Boy };
  Kind kind;
  QPointF foot;
  qreal height;
  QPointF left_hand;
  QPointF right_hand;
};

/// Fills the child's silhouette.
void DrawChild(QPainter& painter, const Child& child, const QColor& color);

}  // namespace ovindra::art
