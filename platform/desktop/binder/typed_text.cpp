#include "platform/desktop/binder/typed_text.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/desktop/binder/keys.h"
#include "platform/desktop/binder/text.h"

namespace ovindra::desktop {
namespace {

constexpr int kNoLimit = 32767;

}  // namespace

TypedText::TypedText(QLineEdit& line, TextControl& control, Act act)
    : line_(&line), control_(control), act_(std::move(act)) {
  QObject::connect(&line, &QLineEdit::textEdited, &line, [this](const QString& text) { Edited(text); });
}

bool TypedText::KeyPressed(QKeyEvent& event) {
  const auto key = KeyOf(event);
  if (!key) return false;
  switch (key->name) {
    case KeyName::kCharacter:
      Enter(key->character);
      return true;
    case KeyName::kSpace: {
      bool goes_on = false;
      if (act_([&] { goes_on = control_.UserKeyDown(KeyName::kSpace); }) && goes_on) Enter(U' ');
      return true;
    }
    case KeyName::kBackspace: {
      bool passes = false;
      const bool alive = act_([&] {
        passes = control_.UserKeyDown(KeyName::kBackspace) && control_.UserPassKey(kBackspaceKey).has_value();
      });
      return !alive || !passes;
    }
    case KeyName::kDelete: {
      bool goes_on = false;
      return !act_([&] { goes_on = control_.UserKeyDown(KeyName::kDelete); }) || !goes_on;
    }
    case KeyName::kTab:
      return false;
    default:
      act_([&] { control_.UserKey(*key); });
      return true;
  }
}

bool TypedText::TextComposed(const QInputMethodEvent& event) {
  if (event.commitString().isEmpty()) return false;
  QInputMethodEvent rest(event.preeditString(), event.attributes());
  line_->event(&rest);
  for (const uint character : event.commitString().toUcs4()) {
    if (!Enter(character)) break;
  }
  return true;
}

void TypedText::Show(std::size_t limit) {
  const QString text = ToQt(control_.text());
  const int most = limit == 0 ? kNoLimit : static_cast<int>(limit);
  const int length = std::max(most, static_cast<int>(text.size()));
  // Setting it anew would undo the selection.
  if (line_->maxLength() != length) line_->setMaxLength(length);
  if (line_->text() == text) return;
  const bool at_end = line_->cursorPosition() == line_->text().size();
  const int caret = line_->cursorPosition();
  line_->setText(text);
  line_->setCursorPosition(at_end ? static_cast<int>(text.size()) : caret);
}

bool TypedText::Enter(char32_t character) {
  std::optional<char32_t> passed;
  if (!act_([&] { passed = control_.UserPassKey(character); }) || line_ == nullptr) return false;
  if (passed && *passed >= U' ') line_->insert(QString::fromUcs4(&*passed, 1));
  return true;
}

void TypedText::Edited(const QString& text) {
  act_([&] { control_.UserEdit(FromQt(text)); });
}

}  // namespace ovindra::desktop
