// The arrow over a dialog: whoever is asked does not wait, even when an hourglass stands.
#pragma once

#include <QApplication>
#include <QCursor>

namespace ovindra::desktop {

/// Shows the arrow in place of an hourglass as long as it lives.
class AskingCursor {
 public:
  AskingCursor() : waits_(QApplication::overrideCursor() != nullptr) {
    if (waits_) QApplication::setOverrideCursor(Qt::ArrowCursor);
  }
  ~AskingCursor() {
    if (waits_) QApplication::restoreOverrideCursor();
  }
  AskingCursor(const AskingCursor&) = delete;
  AskingCursor& operator=(const AskingCursor&) = delete;

 private:
  bool waits_;
};

}  // namespace ovindra::desktop
