#include "base/controls/list_box.h"

#include <algorithm>

#include "base/controls/form.h"
#include "base/text/utf8.h"

namespace ovindra {

std::string ListBox::text() const {
  return list_index() == ListItems::kNone ? std::string() : items_.Text(list_index());
}

void ListBox::AddItem(std::string_view text, long data) {
  items_.Add(text, data);
  Changed(Aspect::kItems);
}

void ListBox::RemoveItem(int index) {
  const bool was_current = index == list_index();
  items_.Remove(index);
  if (was_current) removed_at_ = index;
  Changed(Aspect::kItems);
}

void ListBox::SetItemData(int index, long data) {
  items_.SetData(index, data);
}

void ListBox::Clear() {
  items_.Clear();
  removed_at_ = 0;
  Changed(Aspect::kItems);
}

void ListBox::SetListIndex(int index) {
  items_.SetCurrent(index);
  Changed(Aspect::kChoice);
}

void ListBox::UserPick(int index) {
  if (!CanAct() || !form().UserFocus(*this)) return;
  SetListIndex(index);
  click.Fire();
}

void ListBox::UserDoubleClick(int index) {
  UserPick(index);
  UserSecondClick();
}

void ListBox::UserSecondClick() {
  if (CanAct() && HasFocus()) double_click.Fire();
}

void ListBox::UserMoveTo(int index) {
  if (CanAct() && form().UserFocus(*this)) SetListIndex(index);
}

void ListBox::DoKey(Key key) {
  switch (key.name) {
    case KeyName::kDown:
      Walk(list_index() == ListItems::kNone ? removed_at_ : list_index() + 1);
      break;
    case KeyName::kUp:
      Walk((list_index() == ListItems::kNone ? removed_at_ : list_index()) - 1);
      break;
    case KeyName::kCharacter:
      // What the key has done may have been to move the entry or the focus away.
      if (const auto passed = PassKey(key.character); passed && HasFocus()) WalkToCharacter(*passed);
      break;
    default:
      Control::DoKey(key);
  }
}

void ListBox::Walk(int to) {
  if (items_.count() > 0) SetListIndex(std::clamp(to, 0, items_.count() - 1));
}

void ListBox::WalkToCharacter(char32_t character) {
  std::string start;
  AppendCharacter(start, character);
  start = LowerCaseLatin(start);
  for (int step = 1; step <= items_.count(); ++step) {
    const int index = (list_index() + step) % items_.count();
    if (LowerCaseLatin(items_.Text(index)).starts_with(start)) return SetListIndex(index);
  }
}

}  // namespace ovindra
