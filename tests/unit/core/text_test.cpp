#include "core/text/text.h"

#include <gtest/gtest.h>

namespace ovindra {
namespace {

TEST(TextFunctions, ValReadsTheNumberAtTheStart) {
  const std::pair<const char*, double> cases[] = {
      {"12", 12}, {" 7x", 7}, {"", 0},    {"x7", 0},  {"-3.5", -3.5}, {"5.", 5}, {".5", 0.5},
      {"inf", 0}, {"nan", 0}, {"-x1", 0}, {"1 2", 1}, {"+4", 4},      {"- 4", 0}};
  for (const auto& [text, value] : cases) EXPECT_EQ(Val(text), value) << text;
}

TEST(TextFunctions, RoundTakesATieToTheEvenDigit) {
  EXPECT_EQ(Round(0.5, 0), 0);
  EXPECT_EQ(Round(1.5, 0), 2);
  EXPECT_EQ(Round(2.5, 0), 2);
  EXPECT_EQ(Round(0.125, 2), 0.12);
  EXPECT_EQ(Round(33.335, 1), 33.3);
}

TEST(TextFunctions, ANumberShowsNoDigitThatItCannotHold) {
  EXPECT_EQ(NumberText(0.1 + 0.2), "0.3");
  EXPECT_EQ(NumberText(13.5), "13.5");
  EXPECT_EQ(NumberText(-4), "-4");
  EXPECT_EQ(NumberText(1e15), "1000000000000000");
  EXPECT_EQ(NumberText(2.0 / 3), "0.666666666666667");
}

TEST(TextFunctions, PaddingFillsUpOrCutsToTheWidth) {
  EXPECT_EQ(PadString("आशा", 5, '.'), "आशा..");
  EXPECT_EQ(PadString("ASHA", 2, '.'), "AS");
  EXPECT_EQ(PadString("", 2, ' '), "  ");
}

TEST(TextFunctions, MatchingTellsCasesApart) {
  EXPECT_TRUE(Matches("ANGANWADI CENTER", "ANGANWADI*"));
  EXPECT_TRUE(Matches("VISION", "VISION*"));
  EXPECT_FALSE(Matches("Vision", "VISION*"));
  EXPECT_FALSE(Matches("A VISION", "VISION*"));
  EXPECT_TRUE(Matches("abcabd", "a*b*d"));
  EXPECT_FALSE(Matches("abc", "abcd*"));
  EXPECT_TRUE(Matches("", "*"));
  EXPECT_TRUE(Matches("abcab", "a*b"));
}

TEST(TextFunctions, ManyStarsTakeNoLongerThanOne) {
  const std::string name(100, 'A');
  const std::string stars(50, '*');
  EXPECT_TRUE(Matches(name, stars + "A" + stars));
  EXPECT_FALSE(Matches(name, stars + "X" + stars));
}

}  // namespace
}  // namespace ovindra
