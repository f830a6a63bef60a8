#include "base/controls/list_box.h"

#include <algorithm>

#include "base/controls/form.h"

namespace ovindra {

std::string ListBox::text() const {
  return list_index() == ListItems::kNone ? std::string() : items_.Text(list_index());
}

void ListBox::AddItem(std::string_view text, long data) {
  items_.Add(text, data);
  Changed(Aspect::kItems);
}

void ListBox::RemoveItem(int index) {
  items_.Remove(index);
  Changed(Aspect::kItems);
}

void ListBox::SetItemData(int index, long data) {
  items_.SetData(index, data);
}

void ListBox::Clear() {
  items_.Clear();
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

void ListBox::DoKey(Key key) {
  if (key.name != KeyName::kDown && key.name != KeyName::kUp) {
    Control::DoKey(key);
    return;
  }
  if (items_.count() == 0) return;
  const int by = key.name == KeyName::kDown ? 1 : -1;
  SetListIndex(std::clamp(list_index() + by, 0, items_.count() - 1));
}

}  // namespace ovindra
