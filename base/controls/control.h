// What all named controls have in common. A control belongs to a form and may stand in a frame of it; its
// form and its frame own nothing of it: controls are members of their form's class and live as long as it
// does. Changes are told to the form's observer, actions of a person come in through the functions whose
// names begin with User.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/controls/event.h"

namespace ovindra {

class Container;
class Form;
class Control;

/// What about a control has changed, for those who show it.
enum class Aspect : unsigned {
  kText = 1,        // text, value, date, on or off
  kItems = 2,       // entries of a list, rows of a grid, panels
  kChoice = 4,      // current entry, current cell, selected tab
  kState = 8,       // enabled, visible
  kCaption = 16,    // caption, colour
  kPlace = 32,      // left position
  kSelection = 64,  // the form has selected the text
};

enum class KeyName { kCharacter, kEnter, kSpace, kBackspace, kDelete, kUp, kDown, kTab, kEscape, kF8, kF9 };

/// One key as a person presses it.
struct Key {
  KeyName name = KeyName::kCharacter;
  char32_t character = 0;  // with kCharacter

  static Key Of(char32_t character) { return {KeyName::kCharacter, character}; }
};

/// A key press on its way to a control: a handler may change the character or drop it.
struct KeyPress {
  char32_t character = 0;
  bool dropped = false;

  void Drop() { dropped = true; }
};

inline constexpr char32_t kEnterKey = 13;
inline constexpr char32_t kBackspaceKey = 8;

/// Start states that a declaration may name.
struct DisabledTag {};
struct HiddenTag {};
inline constexpr DisabledTag Disabled{};
inline constexpr HiddenTag Hidden{};

class Control {
 public:
  Control(Container& container, std::string_view name, std::string_view caption);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  /// The name, and for a member of a control array the index: `m1` and 3.
  const std::string& name() const { return name_; }
  std::optional<int> index() const { return index_; }
  /// The name as scenarios and rights write it: `Text1`, `m1(3)`.
  std::string full_name() const;

  Form& form() const { return form_; }
  /// The frame the control stands in; null for the form itself.
  Control* frame() const { return frame_; }

  const std::string& caption() const { return caption_; }
  void SetCaption(std::string caption);

  /// The control's own states; those of its frames are not in them.
  bool enabled() const { return enabled_; }
  bool visible() const { return visible_; }
  void SetEnabled(bool enabled);
  void SetVisible(bool visible);

  /// The states as a person sees them: those of all frames around included.
  bool IsEnabledNow() const;
  bool IsVisibleNow() const;
  bool CanAct() const { return IsEnabledNow() && IsVisibleNow(); }

  /// Whether the control can have the focus at all.
  virtual bool TakesFocus() const { return true; }
  /// Whether the Tab key stops here, of those that can have the focus.
  virtual bool IsTabStop() const { return TakesFocus(); }
  bool HasFocus() const;

  /// Moves the focus here by code: the control that loses it gets its lost-focus event. Ignored when the
  /// control is disabled or hidden.
  void SetFocus();

  /// A person clicks the control: the focus moves here first, then what a click does is done unless the focus
  /// could not be had.
  void UserClick();

  /// A person presses a key while the control has the focus: the form's key event first, then the control's.
  void UserKey(Key key);

  /// The key-down events of a key alone, the form's first, for those who do with the key what it does to a
  /// text themselves. False when the control can't act any more.
  bool UserKeyDown(KeyName key);

  Event<> click;
  Event<> double_click;
  Event<KeyPress&> key_press;
  Event<KeyName> key_down;
  Event<> got_focus;
  Event<> lost_focus;
  Event<bool&> validate;  // set to true, the argument keeps the focus here

 protected:
  Control(Form& form, Control* frame, std::string_view name, std::string_view caption,
          std::optional<int> index);

  void Changed(Aspect aspect);

  /// Passes a character through the key filter and the key-press event; nothing when it was dropped.
  std::optional<char32_t> PassKey(char32_t character);

  virtual void DoClick() { click.Fire(); }
  virtual void DoKey(Key key);
  virtual void FilterKey(KeyPress&) {}

  void Apply(DisabledTag) { enabled_ = false; }
  void Apply(HiddenTag) { visible_ = false; }

 private:
  friend class Form;

  Form& form_;
  Control* frame_;
  std::string name_;
  std::optional<int> index_;
  std::string caption_;
  bool enabled_ = true;
  bool visible_ = true;
};

}  // namespace ovindra
