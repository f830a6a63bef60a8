// A combo box, in its two styles: the drop-down list, which can only be picked from, and the drop-down combo,
// which can be typed into as well.
#pragma once

#include "base/controls/list_items.h"
#include "base/controls/text_control.h"

namespace ovindra {

enum class ComboStyle { kDropDownList, kDropDownCombo };
inline constexpr ComboStyle DropDownList = ComboStyle::kDropDownList;
inline constexpr ComboStyle DropDownCombo = ComboStyle::kDropDownCombo;

class ComboBox : public TextControl {
 public:
  template <typename... Options>
  ComboBox(Container& container, std::string_view name, std::string_view caption, ComboStyle style,
           Options... options)
      : TextControl(container, name, caption), style_(style) {
    (Apply(options), ...);
  }

  ComboStyle style() const { return style_; }
  const ListItems& items() const { return items_; }
  int list_index() const { return items_.current(); }

  void AddItem(std::string_view text, long data = 0);
  void RemoveItem(int index);
  /// Empties entries, text and choice; fires nothing.
  void Clear();

  /// Chooses an entry and fires click, also when it was chosen already; kNone clears the choice without
  /// click. Past the ends is error 380.
  void SetListIndex(int index);

  /// In a drop-down list the entry of that text is chosen, with click; a text that is no entry is error 383,
  /// the empty text clears the choice without click. In a drop-down combo the text changes, with change.
  void SetText(std::string_view text) override;

  /// A person picks an entry.
  void UserPick(int index);
  void UserType(char32_t character) override;
  void UserEdit(std::string_view text) override;

 protected:
  /// A click opens the list at most; the click event belongs to a pick.
  void DoClick() override {}
  void DoKey(Key key) override;

 private:
  void Choose(int index);
  void Step(int by);

  ComboStyle style_;
  ListItems items_;
};

}  // namespace ovindra
