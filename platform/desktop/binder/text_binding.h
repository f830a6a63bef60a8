// A text box tied to a line of text.
#pragma once

#include <QLineEdit>

#include "base/controls/text_box.h"
#include "platform/desktop/binder/binding.h"
#include "platform/desktop/binder/typed_text.h"

namespace ovindra::desktop {

class TextBinding : public WidgetBinding {
 public:
  TextBinding(FormView& view, TextBox& box, QLineEdit& line);

  void Show(Aspects aspects) override;
  /// Nothing is selected by coming here, unless the form has selected it: the caret goes to the end.
  void FocusArrived() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  bool KeyPressed(QKeyEvent& event) override;
  bool IsClickedAsAWhole() const override { return true; }

 private:
  TextBox& box_;
  QLineEdit& line_;
  TypedText typed_;
};

}  // namespace ovindra::desktop
