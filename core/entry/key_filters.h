// What boxes do to every typed character. A filter is named where the box is declared.
#pragma once

#include "base/controls/text_control.h"

namespace ovindra {

namespace key_filter {

void ToCapitals(TextControl& control, KeyPress& press);
void KeepNumbers(TextControl& control, KeyPress& press);
void DropAll(TextControl& control, KeyPress& press);

}  // namespace key_filter

/// The character is replaced by its upper-case form.
inline constexpr KeyFilter Capitals{key_filter::ToCapitals};

/// Backspace, Enter, the point and digits pass; any other key is told off and dropped.
inline constexpr KeyFilter NumbersOnly{key_filter::KeepNumbers};

/// Every key is dropped, so that the combo can only be picked from.
inline constexpr KeyFilter NoTyping{key_filter::DropAll};

}  // namespace ovindra
