#include "platform/embedded/conversion.h"

#include <gtest/gtest.h>

#include "platform/embedded/like_pattern.h"
#include "platform/embedded/moment_text.h"
#include "test_database.h"

namespace ovindra::embedded {
namespace {

std::string Shown(const Value& value) {
  if (const auto* text = std::get_if<std::string>(&value)) return "'" + *text + "'";
  if (const auto* whole = std::get_if<std::int64_t>(&value)) return std::to_string(*whole);
  if (const auto* real = std::get_if<double>(&value)) return std::to_string(*real);
  return "NULL";
}

struct Case {
  const char* text;
  SqlType type;
  const char* value;
};

void ExpectConverted(const Case& each) {
  std::string shown;
  const std::string refusal =
      RefusalOf([&] { shown = Shown(ConvertText(each.text, each.type, Purpose::kComputed)); });
  EXPECT_EQ(refusal == "not refused" ? shown : refusal, each.value) << "'" << each.text << "'";
}

TEST(TextConversion, ToWholeNumbers) {
  const Case kCases[] = {
      {"12", kIntType, "12"},
      {" -7 ", kIntType, "-7"},
      {"+7", kIntType, "7"},
      {"", kIntType, "0"},
      {"  ", kIntType, "0"},
      {"5.", kIntType,
       "-2147217913 Conversion failed when converting the varchar value '5.' to data type int."},
      {"VC1", kIntType,
       "-2147217913 Conversion failed when converting the varchar value 'VC1' to data type int."},
      {"2147483647", kIntType, "2147483647"},
      {"2147483648", kIntType,
       "-2147217833 The conversion of the varchar value '2147483648' overflowed an int column."},
      {"99999999999999999999", kIntType,
       "-2147217833 The conversion of the varchar value '99999999999999999999' overflowed an int column."},
  };
  for (const Case& each : kCases) ExpectConverted(each);
}

TEST(TextConversion, ToNumericsRoundsHalvesAwayFromZero) {
  const SqlType whole = NumericType(18, 0);
  const Case kCases[] = {
      {"1.5", whole, "2"},
      {"2.5", whole, "3"},
      {"-1.5", whole, "-2"},
      {"1.49999", whole, "1"},
      {" 12 ", whole, "12"},
      {".5", whole, "1"},
      {"5.", whole, "5"},
      {"123456789012345678", whole, "123456789012345678"},
      {"1234567890123456789", whole,
       "-2147217833 Arithmetic overflow error converting expression to data type numeric."},
      {"", whole, "-2147217913 Error converting data type varchar to numeric."},
      {".", whole, "-2147217913 Error converting data type varchar to numeric."},
      {"1e3", whole, "-2147217913 Error converting data type varchar to numeric."},
      {"1.005", NumericType(10, 2), "1.010000"},
      {"1000", NumericType(5, 2),
       "-2147217833 Arithmetic overflow error converting expression to data type numeric."},
  };
  for (const Case& each : kCases) ExpectConverted(each);
}

TEST(TextConversion, ToMoments) {
  const Case kCases[] = {
      {"01/01/1970", kMomentType, "0"},
      {" 01/02/1970 ", kMomentType, "86400"},
      {"1970-01-02", kMomentType, "86400"},
      {"19700102", kMomentType, "86400"},
      {"01/01/1970 10:30", kMomentType, "37800"},
      {"", kMomentType, "-2208988800"},
      {"13/01/2016", kMomentType,
       "-2147217913 The conversion of a varchar data type to a datetime data type resulted in an "
       "out-of-range value."},
      {"02/30/2016", kMomentType,
       "-2147217913 The conversion of a varchar data type to a datetime data type resulted in an "
       "out-of-range value."},
      {"today", kMomentType,
       "-2147217913 Conversion failed when converting date and/or time from character string."},
  };
  for (const Case& each : kCases) ExpectConverted(each);
}

TEST(TextConversion, StoredTextLosesTrailingBlanksAndMustFit) {
  EXPECT_EQ(FitText("SC1 ", 3), "SC1");
  EXPECT_EQ(FitText("  ", 0), "");
  EXPECT_EQ(FitText("\xC3\x84\xC3\x84", 2), "\xC3\x84\xC3\x84") << "characters count, not bytes";
  EXPECT_EQ(RefusalOf([] { FitText("FF", 1); }), "-2147217833 String or binary data would be truncated.");
  EXPECT_EQ(Shown(ConvertText("abc", TextType(2), Purpose::kComputed)), "'ab'") << "convert() cuts";
}

TEST(NumberConversion, ToText) {
  EXPECT_EQ(Shown(Convert(Value(std::int64_t{-5}), kIntType, TextType(10), Purpose::kComputed)), "'-5'");
  EXPECT_EQ(Shown(Convert(Value(std::int64_t{123}), kIntType, TextType(2), Purpose::kComputed)), "'*'");
  EXPECT_EQ(Shown(Convert(Value(1.5), NumericType(10, 2), TextType(10), Purpose::kComputed)), "'1.50'");
  EXPECT_NE(RefusalOf([] { Convert(Value(std::int64_t{123}), kIntType, TextType(2), Purpose::kStored); }),
            "not refused");
}

TEST(MomentStyles, AreThoseOfConvert) {
  const std::int64_t moment = MomentOfText("05/07/2016 15:04:09");
  const std::pair<int, const char*> kCases[] = {
      {0, "May  7 2016  3:04PM"}, {101, "05/07/2016"}, {1, "05/07/16"},
      {103, "07/05/2016"},        {104, "07.05.2016"}, {106, "07 May 2016"},
      {108, "15:04:09"},          {112, "20160507"},   {120, "2016-05-07 15:04:09"},
  };
  for (const auto& [style, text] : kCases) EXPECT_EQ(MomentText(moment, style), text) << style;
  EXPECT_NE(RefusalOf([&] { MomentText(moment, 99); }), "not refused");
}

TEST(MomentParts, AreCountedByTheirBoundaries) {
  const std::int64_t last_of_january = MomentOfText("01/31/2016");
  EXPECT_EQ(AddMomentParts("month", 1, last_of_january), MomentOfText("02/29/2016"));
  EXPECT_EQ(AddMomentParts("yy", -1, MomentOfText("02/29/2016")), MomentOfText("02/28/2015"));
  EXPECT_EQ(CountMomentParts("year", MomentOfText("12/31/2015"), MomentOfText("01/01/2016")), 1);
  EXPECT_EQ(CountMomentParts("month", MomentOfText("01/31/2016"), MomentOfText("02/01/2016")), 1);
  EXPECT_EQ(CountMomentParts("hour", MomentOfText("01/01/1960 10:59"), MomentOfText("01/01/1960 11:00")), 1);
  EXPECT_EQ(MomentPart("dw", MomentOfText("05/31/2016")), 3) << "a Tuesday";
  EXPECT_EQ(MomentPart("week", MomentOfText("01/03/2016")), 2) << "weeks begin on Sunday";
  EXPECT_NE(RefusalOf([] { MomentPart("fortnight", 0); }), "not refused");
  EXPECT_NE(RefusalOf([] { AddMomentParts("year", 9000, 0); }), "not refused");
}

TEST(LikePatterns, MatchWithoutRegardToCase) {
  struct Pattern {
    const char* text;
    const char* pattern;
    bool matches;
  };
  const Pattern kCases[] = {
      {"S12", "s%", true},
      {"S12", "%2", true},
      {"S12", "_12", true},
      {"S12", "__", false},
      {"S12", "S12", true},
      {"", "%", true},
      {"", "_", false},
      {"abcabd", "%abd", true},
      {"aXbXc", "a%x%c", true},
      {"m3(11)", "m3[(]%", true},
      {"Bird", "[a-c]ird", true},
      {"Bird", "[^b]ird", false},
      {"50%", "50[%]", true},
      {"a-b", "a[-]b", true},
      {"x[", "x[", false},
      {"\xC3\x84"
       "b",
       "_b", true},
      {"aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa", "%a%a%a%a%a%a%a%a%b", false},
  };
  for (const Pattern& each : kCases) {
    EXPECT_EQ(MatchesPattern(each.text, each.pattern), each.matches) << each.text << " like " << each.pattern;
  }
}

TEST(LikePatterns, TellHowFarAnIndexServes) {
  EXPECT_EQ(ShapeOf("S%"), PatternShape::kPrefix);
  EXPECT_EQ(ShapeOf("S"), PatternShape::kPlain);
  EXPECT_EQ(ShapeOf("S%1"), PatternShape::kPrefixed);
  EXPECT_EQ(ShapeOf("S_%"), PatternShape::kPrefixed);
  EXPECT_EQ(ShapeOf("%S"), PatternShape::kAny);
  EXPECT_EQ(ShapeOf("%"), PatternShape::kAny);
  EXPECT_EQ(PrefixOf("AB[c]%"), "AB");
  EXPECT_LT("AB\xF4\x8F\xBF\xBF", PastPrefix("AB%")) << "the greatest character";
}

}  // namespace
}  // namespace ovindra::embedded
