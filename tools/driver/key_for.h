// Which key enters a character. Both players type with it.
#pragma once

#include "base/controls/control.h"

namespace ovindra::driver {

/// The key that enters this character.
constexpr Key KeyFor(char32_t character) {
  switch (character) {
    case U' ':
      return {KeyName::kSpace};
    case U'\n':
    case U'\r':
      return {KeyName::kEnter};
    case U'\t':
      return {KeyName::kTab};
    default:
      return {KeyName::kCharacter, character};
  }
}

/// The same for a key that a scenario names by its character.
constexpr Key KeyFor(Key key) {
  return key.name == KeyName::kCharacter ? KeyFor(key.character) : key;
}

}  // namespace ovindra::driver
