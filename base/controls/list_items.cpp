#include "base/controls/list_items.h"

#include <algorithm>

#include "base/runtime_error.h"

namespace ovindra {

const ListItems::Item& ListItems::At(int index) const {
  if (index < 0 || index >= count()) throw InvalidPropertyValue();
  return items_[static_cast<std::size_t>(index)];
}

void ListItems::Remove(int index) {
  if (index < 0 || index >= count()) throw InvalidProcedureCall();
  items_.erase(items_.begin() + index);
  if (current_ == index) current_ = kNone;
  if (current_ > index) --current_;
}

void ListItems::Clear() {
  items_.clear();
  current_ = kNone;
}

void ListItems::SetData(int index, long data) {
  At(index);
  items_[static_cast<std::size_t>(index)].data = data;
}

void ListItems::SetCurrent(int index) {
  if (index != kNone) At(index);
  current_ = index;
}

std::optional<int> ListItems::IndexOf(std::string_view text) const {
  const auto found =
      std::find_if(items_.begin(), items_.end(), [&](const Item& item) { return item.text == text; });
  if (found == items_.end()) return {};
  return static_cast<int>(found - items_.begin());
}

}  // namespace ovindra
