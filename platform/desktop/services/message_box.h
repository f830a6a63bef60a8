// Message boxes on the desktop. The text is shown as it is, letter for letter; Enter gives the first answer,
// Escape the last.
#pragma once

#include <QMessageBox>
#include <functional>
#include <memory>

#include "base/machine/machine.h"

namespace ovindra::desktop {

/// The box of a message, not shown yet, over `parent`.
std::unique_ptr<QMessageBox> MakeMessageBox(const Message& message, QWidget* parent);

/// The answer that closed the box.
Answer AnswerOf(const QMessageBox& box);

class WindowMessageBox : public MessageBox {
 public:
  /// `before` is called before each box, to show on the windows what the form has done so far.
  explicit WindowMessageBox(std::function<void()> before) : before_(std::move(before)) {}

  Answer Show(const Message& message) override;

 private:
  std::function<void()> before_;
};

}  // namespace ovindra::desktop
