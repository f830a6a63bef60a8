#include "platform/desktop/binder/keys.h"

#include <QString>

namespace ovindra::desktop {
namespace {

struct NamedKey {
  int key;
  KeyName name;
};
constexpr NamedKey kNamedKeys[] = {
    {Qt::Key_Return, KeyName::kEnter},  {Qt::Key_Enter, KeyName::kEnter},
    {Qt::Key_Space, KeyName::kSpace},   {Qt::Key_Backspace, KeyName::kBackspace},
    {Qt::Key_Delete, KeyName::kDelete}, {Qt::Key_Up, KeyName::kUp},
    {Qt::Key_Down, KeyName::kDown},     {Qt::Key_Tab, KeyName::kTab},
    {Qt::Key_Escape, KeyName::kEscape}, {Qt::Key_F8, KeyName::kF8},
    {Qt::Key_F9, KeyName::kF9},
};

bool IsChord(const QKeyEvent& event) {
  // AltGr arrives as Ctrl with Alt on some systems, and enters a character all the same.
  const Qt::KeyboardModifiers held =
      event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  return held != 0 && held != (Qt::ControlModifier | Qt::AltModifier);
}

}  // namespace

std::optional<Key> KeyOf(const QKeyEvent& event) {
  if (IsChord(event)) return {};
  for (const NamedKey& named : kNamedKeys) {
    if (named.key == event.key()) return Key{named.name, 0};
  }
  const QList<uint> characters = event.text().toUcs4();
  if (characters.size() != 1 || !QChar::isPrint(characters.front())) return {};
  return Key::Of(characters.front());
}

bool OpensList(const QKeyEvent& event) {
  if (event.key() == Qt::Key_F4) return event.modifiers() == Qt::NoModifier;
  return (event.key() == Qt::Key_Down || event.key() == Qt::Key_Up) &&
         event.modifiers().testFlag(Qt::AltModifier);
}

}  // namespace ovindra::desktop
