#include "platform/desktop/binder/text_binding.h"

#include <QCoreApplication>
#include <QEvent>

#include "platform/desktop/binder/form_view.h"
#include "platform/desktop/theme/roles.h"

namespace ovindra::desktop {

TextBinding::TextBinding(FormView& view, TextBox& box, QLineEdit& line)
    : WidgetBinding(view, box, line),
      box_(box),
      line_(line),
      typed_(line, box, [this](const auto& action) { return Act(action); }) {
  if (const auto character = box.password_character()) {
    line.setEchoMode(QLineEdit::Password);
    line.setProperty(theme::role::kPasswordCharacter, static_cast<int>(*character));
    // A line asks for its character when it is made and when its style changes.
    QEvent restyled(QEvent::StyleChange);
    QCoreApplication::sendEvent(&line, &restyled);
  }
}

void TextBinding::Show(Aspects aspects) {
  WidgetBinding::Show(aspects);
  typed_.Show(box_.max_length());
  if (Has(aspects, Aspect::kSelection) && box_.is_selected()) line_.selectAll();
}

void TextBinding::FocusArrived() {
  if (box_.is_selected()) {
    line_.selectAll();
  } else {
    line_.end(false);
  }
}

bool TextBinding::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::InputMethod && !view().IsRetired() &&
      typed_.TextComposed(static_cast<QInputMethodEvent&>(*event))) {
    return true;
  }
  return WidgetBinding::eventFilter(watched, event);
}

bool TextBinding::KeyPressed(QKeyEvent& event) {
  return typed_.KeyPressed(event);
}

}  // namespace ovindra::desktop
