// A box for typed text.
#pragma once

#include <cstddef>

#include "base/controls/text_control.h"

namespace ovindra {

/// How many characters can be typed; code may set more.
struct MaxLength {
  std::size_t characters;
};

/// The box shows its characters as this one.
struct PasswordCharacter {
  char character;
};

class TextBox : public TextControl {
 public:
  template <typename... Options>
  TextBox(Container& container, std::string_view name, std::string_view caption, Options... options)
      : TextControl(container, name, caption) {
    (Apply(options), ...);
  }

  void SetText(std::string_view text) override;
  void UserType(char32_t character) override;
  void UserEdit(std::string_view text) override;

  /// Selects the whole text, so that the next character typed replaces it.
  void SelectAll();
  bool is_selected() const { return is_selected_; }

  /// 0 for no limit.
  std::size_t max_length() const { return max_length_; }
  std::optional<char> password_character() const { return password_character_; }

 protected:
  void DoKey(Key key) override;

 private:
  using TextControl::Apply;
  void Apply(MaxLength limit) { max_length_ = limit.characters; }
  void Apply(PasswordCharacter password) { password_character_ = password.character; }
  void Enter(std::string text);

  std::size_t max_length_ = 0;
  std::optional<char> password_character_;
  bool is_selected_ = false;
};

}  // namespace ovindra
