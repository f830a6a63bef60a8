// Text is UTF-8 throughout; these functions see it as characters, which is how the user counts and types it.
// A byte that is no UTF-8 counts as one character and is kept as it is.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace ovindra {

/// The number of characters.
std::size_t CharacterCount(std::string_view text);

/// The first characters of the text, at most that many.
std::string_view FirstCharacters(std::string_view text, std::size_t count);

/// The text without its last character; an empty text stays empty.
std::string_view WithoutLastCharacter(std::string_view text);

/// Takes the first character off the text, which must hold one. A byte that is no UTF-8 is U+FFFD.
char32_t TakeCharacter(std::string_view& text);

/// The characters of the text one by one. A byte that is no UTF-8 comes out as U+FFFD.
std::u32string Characters(std::string_view text);

/// Appends one character.
void AppendCharacter(std::string& text, char32_t character);

/// The upper-case form of one character of the Latin, Greek and Cyrillic alphabets; every other one as it is.
char32_t UpperCase(char32_t character);

/// The text with the letters A to Z in lower case, the rest untouched: the comparison form of names and
/// texts.
std::string LowerCaseLatin(std::string_view text);

/// Whether two texts are the same but for the case of the letters A to Z.
bool SameWithoutCase(std::string_view left, std::string_view right);

}  // namespace ovindra
