// What stands in the records of a sheet: cells, styles, protection, the pointers between them.
#include <gtest/gtest.h>

#include "platform/office/biff/password.h"
#include "platform/office/biff/workbook_stream.h"
#include "tests/unit/platform/office/records.h"

namespace ovindra::office {
namespace {

std::string StreamOf(const Workbook& workbook) {
  MemorySink sink;
  WriteWorkbookStream(workbook, sink);
  return sink.bytes;
}

std::vector<std::string> BodiesIn(const Workbook& workbook, RecordType type) {
  return BodiesOf(StreamOf(workbook), type);
}

/// A workbook of one cell in that style.
Workbook Styled(const std::function<void(CellStyle&)>& change) {
  Workbook workbook;
  workbook.Restyle({1, 1, 1, 1}, change);
  return workbook;
}

TEST(Passwords, AreKeptAsTheirVerifier) {
  EXPECT_EQ(PasswordVerifier("password"), 0x83AF);
  EXPECT_EQ(PasswordVerifier("Tarn"), 0xCA13);
  EXPECT_EQ(PasswordVerifier(""), 0xCE4B);
}

TEST(SheetRecords, ASheetIsProtectedAsAWholeOrNotAtAll) {
  Workbook workbook;
  EXPECT_EQ(BodiesIn(workbook, RecordType::kScenarioProtect), std::vector<std::string>{});
  workbook.Protect("Tarn");
  EXPECT_EQ(BodiesIn(workbook, RecordType::kScenarioProtect),
            std::vector<std::string>{std::string("\x01\x00", 2)});
  EXPECT_EQ(BodiesIn(workbook, RecordType::kPassword).back(), "\x13\xCA");
  EXPECT_EQ(BodiesIn(workbook, RecordType::kProtect).back(), std::string("\x01\x00", 2));
  constexpr auto kObjectProtect = static_cast<RecordType>(0x0063);
  EXPECT_EQ(BodiesIn(workbook, kObjectProtect), std::vector<std::string>{});
}

TEST(SheetRecords, TheListOfSheetsSaysWhereTheSheetBegins) {
  Workbook workbook;
  workbook.SetText(1, 1, "x");
  workbook.SetSheetName("'Child's list'");
  const std::string stream = StreamOf(workbook);
  const std::string body = BodiesOf(stream, RecordType::kBoundSheet8).at(0);
  const std::uint32_t place = NumberAt(body, 0, 4);
  EXPECT_EQ(NumberAt(stream, place, 2), static_cast<unsigned>(RecordType::kBof));
  EXPECT_EQ(NumberAt(stream, place + 6, 2), 0x10U);
  EXPECT_EQ(body.substr(8), "Child's list");
}

TEST(SheetRecords, EmptyCellsThatOnlyLookStandTogether) {
  Workbook workbook;
  const auto bold = [](CellStyle& style) { style.font.bold = true; };
  workbook.Restyle({1, 2, 1, 4}, bold);
  workbook.Restyle({1, 6, 1, 6}, bold);
  workbook.SetText(1, 3, "x");
  EXPECT_EQ(BodiesIn(workbook, RecordType::kMulBlank), std::vector<std::string>{});
  EXPECT_EQ(BodiesIn(workbook, RecordType::kBlank).size(), 3U);
  workbook.SetText(1, 3, "");
  const auto together = BodiesIn(workbook, RecordType::kMulBlank);
  ASSERT_EQ(together.size(), 1U);
  EXPECT_EQ(together[0].size(), 4U + 3 * 2 + 2);
  EXPECT_EQ(NumberAt(together[0], 2, 2), 1U);
  EXPECT_EQ(NumberAt(together[0], 10, 2), 3U);
  EXPECT_EQ(BodiesIn(workbook, RecordType::kBlank).size(), 1U);
}

TEST(SheetRecords, AFontKeepsItsNameAndFlags) {
  const auto fonts = BodiesIn(Styled([](CellStyle& style) {
                                style.font.size = 15;
                                style.font.outline = style.font.shadow = style.font.underline = true;
                              }),
                              RecordType::kFont);
  const std::string& font = fonts.back();
  EXPECT_EQ(NumberAt(font, 0, 2), 300U);
  EXPECT_EQ(NumberAt(font, 2, 2), 0x30U);
  EXPECT_EQ(NumberAt(font, 10, 1), 1U);
  EXPECT_EQ(font.substr(16), "TIMES NEW ROMAN");
}

TEST(SheetRecords, APaletteIsWrittenForColoursThatTheStandardOneLacks) {
  EXPECT_TRUE(
      BodiesIn(Styled([](CellStyle& style) { style.font.colour = 0xFF00FF; }), RecordType::kPalette).empty());
  const Workbook odd = Styled([](CellStyle& style) { style.font.colour = 0x030201; });
  const std::string palette = BodiesIn(odd, RecordType::kPalette).at(0);
  const unsigned index = NumberAt(BodiesIn(odd, RecordType::kFont).back(), 4, 2);
  EXPECT_EQ(palette.substr(2 + 4 * (index - 8), 4), std::string("\x01\x02\x03\x00", 4));
}

/// Far more colours than a palette holds: each cell still gets one, and black and the first ones stay exact.
TEST(SheetRecords, AColourBeyondThePaletteBecomesTheNearest) {
  Workbook workbook;
  for (int row = 1; row <= 100; ++row) {
    workbook.Restyle({row, 1, row, 1},
                     [&](CellStyle& style) { style.font.colour = static_cast<Colour>(2 * row); });
  }
  const auto fonts = BodiesIn(workbook, RecordType::kFont);
  const std::string palette = BodiesIn(workbook, RecordType::kPalette).at(0);
  EXPECT_EQ(palette.size(), 2U + 56 * 4);
  const auto red_of = [&](int row) {
    const std::uint32_t index = NumberAt(fonts.at(static_cast<std::size_t>(row) + 4), 4, 2);
    return static_cast<int>(NumberAt(palette, 2 + 4 * (index - 8), 1));
  };
  for (int row = 1; row <= 50; ++row) EXPECT_EQ(red_of(row), 2 * row);
  for (int row = 51; row <= 60; ++row) EXPECT_NEAR(red_of(row), 2 * row, 16) << row;
}

TEST(SheetRecords, MergesBeyondOneRecordGoIntoTheNext) {
  Workbook workbook;
  for (int row = 1; row <= 1'027; ++row) workbook.Merge({row, 1, row, 2});
  const auto records = BodiesIn(workbook, RecordType::kMergeCells);
  ASSERT_EQ(records.size(), 2U);
  EXPECT_EQ(NumberAt(records[0], 0, 2), 1'026U);
  EXPECT_EQ(NumberAt(records[1], 0, 2), 1U);
  EXPECT_EQ(NumberAt(records[1], 2, 2), 1'026U);
}

TEST(SheetRecords, TheIndexHasAPlaceForEveryBlockOfTheLongestSheet) {
  Workbook workbook;
  workbook.SetText(65'536, 1, "last");
  const std::string stream = StreamOf(workbook);
  const std::string index = BodiesOf(stream, RecordType::kIndex).at(0);
  ASSERT_EQ(index.size(), 16U + 2'048 * 4);
  const std::uint32_t last = NumberAt(index, index.size() - 4, 4);
  EXPECT_EQ(NumberAt(stream, last, 2), static_cast<unsigned>(RecordType::kDbCell));
  EXPECT_EQ(NumberAt(BodiesOf(stream, RecordType::kLabelSst).at(0), 0, 2), 65'535U);
}

}  // namespace
}  // namespace ovindra::office
