// The work area of the main window: child windows over the painted ground. It places new child windows one
// below the other, inside the area.
#pragma once

#include <QMdiArea>

#include "platform/desktop/art/backdrop.h"

namespace ovindra::desktop {

class BackdropArea : public QMdiArea {
 public:
  explicit BackdropArea(QWidget* parent = nullptr);

  /// The height that a form wishes for, or all that the area has.
  enum class Height { kWished, kAll };

  /// Gives the child window the size its form wants, as far as the area has it, and a place that leaves the
  /// titles of the windows below to be seen.
  void Place(QMdiSubWindow& child, Height height);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  art::Backdrop backdrop_;
};

}  // namespace ovindra::desktop
