// A list whose entries stand open, each with a number beside it.
#pragma once

#include "base/controls/control.h"
#include "base/controls/list_items.h"

namespace ovindra {

class ListBox : public Control {
 public:
  template <typename... Options>
  ListBox(Container& container, std::string_view name, std::string_view caption, Options... options)
      : Control(container, name, caption) {
    (Apply(options), ...);
  }

  const ListItems& items() const { return items_; }
  int list_index() const { return items_.current(); }
  /// The current entry; empty when there is none.
  std::string text() const;
  /// The number beside an entry; past the ends is error 380.
  long item_data(int index) const { return items_.At(index).data; }

  void AddItem(std::string_view text, long data = 0);
  void RemoveItem(int index);
  void SetItemData(int index, long data);
  void Clear();

  /// Makes an entry the current one, kNone leaves none; fires nothing. Past the ends is error 380.
  void SetListIndex(int index);

  /// A person picks an entry by mouse; also when it is the current one it fires click.
  void UserPick(int index);
  /// A person walks to an entry by keyboard, which is no click.
  void UserMoveTo(int index);
  /// A person clicks an entry twice: the pick, then the double-click.
  void UserDoubleClick(int index);
  /// The second click of a double-click whose first was a pick.
  void UserSecondClick();

 protected:
  void DoClick() override {}
  /// Up and Down walk, on from the place of an entry that was removed; a character walks to the next entry
  /// that begins with it.
  void DoKey(Key key) override;

 private:
  using Control::Apply;

  void Walk(int to);
  void WalkToCharacter(char32_t character);

  ListItems items_;
  int removed_at_ = 0;
};

}  // namespace ovindra
