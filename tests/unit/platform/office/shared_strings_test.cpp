// The shared strings at the borders of their records, where a file would be unreadable by one byte.
#include "platform/office/biff/shared_strings.h"

#include <gtest/gtest.h>

#include "platform/office/biff/text.h"
#include "tests/unit/platform/office/records.h"

namespace ovindra::office {
namespace {

std::string Written(const SharedStrings& strings) {
  MemorySink sink;
  RecordStream out(sink);
  strings.Write(out);
  out.Finish();
  return sink.bytes;
}

struct Form {
  const char* utf8;
  bool wide;
  std::string bytes;
};

TEST(TextForms, OneByteForLatinElseUtf16) {
  using namespace std::string_literals;
  const Form forms[] = {
      {"", false, ""},
      {"ASHA", false, "ASHA"},
      {"Jos\xC3\xA9", false, "Jos\xE9"},
      {"\xC3\xBF\xC4\x80", true, "\xFF\x00\x00\x01"s},        // the last Latin-1 one, the first after it
      {"\xE0\xA4\x86 A", true, "\x06\x09 \x00"s + "A\x00"s},  // Devanagari
      {"\xF0\x9F\x91\x93", true, "\x3D\xD8\x53\xDC"},         // a surrogate pair
      {"a\xFF", true, "a\x00\xFD\xFF"s},                      // no UTF-8
  };
  for (const Form& form : forms) {
    const BiffText text(form.utf8);
    EXPECT_EQ(text.wide(), form.wide) << form.utf8;
    EXPECT_EQ(text.bytes(), form.bytes) << form.utf8;
    EXPECT_EQ(text.length(), form.bytes.size() / (form.wide ? 2 : 1)) << form.utf8;
  }
}

TEST(SharedStringTable, KeepsEveryTextOnceAndCountsItsUses) {
  std::vector<std::string> texts;
  texts.reserve(5'000);
  for (int i = 0; i < 5'000; ++i) texts.push_back("text " + std::to_string(i));
  SharedStrings strings;
  for (int round = 0; round < 2; ++round) {
    for (std::size_t i = 0; i < texts.size(); ++i) ASSERT_EQ(strings.Add(texts[i]), i);
  }
  const std::string stream = Written(strings);
  const std::string sst = BodiesOf(stream, RecordType::kSst).at(0);
  EXPECT_EQ(NumberAt(sst, 0, 4), 10'000U);
  EXPECT_EQ(NumberAt(sst, 4, 4), 5'000U);
  const auto read = SharedTexts(stream);
  ASSERT_EQ(read.size(), texts.size());
  for (std::size_t i = 0; i < texts.size(); ++i)
    ASSERT_EQ(read[i], std::u16string(texts[i].begin(), texts[i].end()));
}

/// The first text fills the record to every distance from its end at which the next one could be cut wrongly.
TEST(SharedStringTable, TextsAtTheEndOfARecord) {
  const std::string narrow = "narrow one";
  const std::string wide = "\xE0\xA4\x86\xE0\xA4\xB6\xE0\xA4\xBE \xE0\xA4\xA6";
  for (const std::string& next : {narrow, wide, std::string()}) {
    for (std::size_t left = 0; left < 30; ++left) {
      const std::string filler(RecordStream::kLongestBody - 8 - 3 - left, 'x');
      const std::string behind = "behind";
      SharedStrings strings;
      strings.Add(filler);
      strings.Add(next);
      strings.Add(behind);
      const auto read = SharedTexts(Written(strings));
      ASSERT_EQ(read.size(), 3U);
      EXPECT_EQ(read[0].size(), filler.size());
      EXPECT_EQ(read[1], next == narrow ? u"narrow one"
                         : next == wide ? u"\u0906\u0936\u093E \u0926"
                                        : u"")
          << left << " bytes left";
      EXPECT_EQ(read[2], u"behind");
    }
  }
}

constexpr std::size_t kLongestText = 32'766;

TEST(SharedStringTable, TextsLongerThanManyRecords) {
  const std::string narrow(kLongestText, 'x');
  std::string wide;
  for (std::size_t i = 0; i < kLongestText; ++i) wide += "\xE0\xA4\x86";
  const std::string mixed = wide + "b";
  SharedStrings strings;
  for (const std::string_view text :
       {std::string_view("a"), std::string_view(wide), std::string_view(narrow), std::string_view(mixed)})
    strings.Add(text);
  const auto read = SharedTexts(Written(strings));
  ASSERT_EQ(read.size(), 4U);
  EXPECT_EQ(read[1], std::u16string(kLongestText, u'\u0906'));
  EXPECT_EQ(read[2], std::u16string(kLongestText, u'x'));
  EXPECT_EQ(read[3], std::u16string(kLongestText, u'\u0906') + u'b');
}

TEST(SharedStringTable, IsIndexedByAtMost128Buckets) {
  std::vector<std::string> texts;
  texts.reserve(4'001);
  for (int i = 0; i < 4'001; ++i) texts.push_back(std::to_string(i) + std::string(40, 'x'));
  SharedStrings strings;
  for (const std::string& text : texts) strings.Add(text);
  const std::string stream = Written(strings);
  const std::string index = BodiesOf(stream, RecordType::kExtSst).at(0);
  const std::size_t in_bucket = NumberAt(index, 0, 2);
  const std::size_t buckets = (index.size() - 2) / 8;
  EXPECT_LE(buckets, 128U);
  EXPECT_EQ(buckets, (texts.size() + in_bucket - 1) / in_bucket);
  for (std::size_t bucket = 0; bucket < buckets; ++bucket) {
    const std::size_t position = NumberAt(index, 2 + 8 * bucket, 4);
    const std::string& text = texts[bucket * in_bucket];
    EXPECT_EQ(NumberAt(stream, position, 2), text.size());
    EXPECT_EQ(stream.substr(position + 3, 2), text.substr(0, 2));
    const std::size_t record = position - NumberAt(index, 2 + 8 * bucket + 4, 2);
    const auto type = static_cast<RecordType>(NumberAt(stream, record, 2));
    EXPECT_EQ(type, bucket == 0 ? RecordType::kSst : type == RecordType::kSst ? type : RecordType::kContinue);
  }
}

}  // namespace
}  // namespace ovindra::office
