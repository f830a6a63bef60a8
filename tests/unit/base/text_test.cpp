#include <gtest/gtest.h>

#include "base/text/blanks.h"
#include "base/text/utf8.h"

namespace ovindra {
namespace {

TEST(Blanks, AreTakenOffTheEndsAlone) {
  EXPECT_EQ(Trim(std::string_view("  a b ")), "a b");
  EXPECT_EQ(Trim(std::string_view("   ")), "");
  EXPECT_EQ(Trim(std::string_view("\ta\t ")), "\ta\t");
  EXPECT_EQ(TrimRight(std::string_view(" a ")), " a");
}

TEST(Utf8, CountsAndCutsCharactersAndKeepsStrayBytes) {
  EXPECT_EQ(CharacterCount("आशा"), 3U);
  EXPECT_EQ(FirstCharacters("äöü", 2), "äö");
  EXPECT_EQ(WithoutLastCharacter("aआ"), "a");
  EXPECT_EQ(WithoutLastCharacter(""), "");
  const std::string stray = "a\xFF\xE0";
  EXPECT_EQ(CharacterCount(stray), 3U);
  EXPECT_EQ(FirstCharacters(stray, 5), stray);
}

TEST(Utf8, CapitalsOfEachAlphabet) {
  const std::pair<char32_t, char32_t> cases[] = {{U'a', U'A'}, {U'ä', U'Ä'}, {U'÷', U'÷'}, {U'ß', U'ß'},
                                                 {U'ÿ', U'Ÿ'}, {U'ś', U'Ś'}, {U'ž', U'Ž'}, {U'λ', U'Λ'},
                                                 {U'я', U'Я'}, {U'अ', U'अ'}, {U'7', U'7'}};
  for (const auto& [small, capital] : cases)
    EXPECT_EQ(UpperCase(small), capital) << static_cast<unsigned>(small);
}

TEST(Utf8, CharactersGoRoundThroughText) {
  std::string text;
  for (char32_t character : Characters("aäआ𝄞")) AppendCharacter(text, character);
  EXPECT_EQ(text, "aäआ𝄞");
}

}  // namespace
}  // namespace ovindra
