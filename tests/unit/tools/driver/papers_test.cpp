// What the program of a scenario saves: real files, read back from their bytes, in a folder of the scenario.
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "tests/unit/tools/driver/desk.h"

namespace ovindra::driver {
namespace {

namespace fs = std::filesystem;

Lines AfterPapers(const std::string& lines) {
  return Failures("open frmPapers\n" + lines);
}

TEST(SavedWorkbooks, AreReadBackInBothFormats) {
  for (const char* name : {"C:\\Out\\List.xls", "List", "list.XLSX"}) {
    std::string lines =
        "save-as NAME\nclick Export\nexpect file NAME\n"
        "expect workbook NAME cell 1 3 \"Lanvik Eye Institute\"\n"
        "expect workbook NAME cell 6 28 \" आशा <&> \"\nexpect workbook NAME cell 70 9 \"\"\n"
        "expect workbook NAME sheet \"Children बच्चे\"";
    for (std::size_t at = 0; (at = lines.find("NAME", at)) != std::string::npos;)
      lines.replace(at, 4, '"' + std::string(name) + '"');
    EXPECT_EQ(AfterPapers(lines), Lines{}) << name;
  }
}

TEST(SavedWorkbooks, SayWhatTheyHoldWhereTheyDontHold) {
  EXPECT_EQ(
      AfterPapers("click Print\nexpect workbook \"C:\\Enroll.xls\" cell 1 3 \"lanvik\"\n"
                  "expect workbook \"C:\\Enroll.xls\" sheet \"Sheet1\"\n"
                  "expect workbook \"C:\\Child.xls\" cell 1 1 \"\""),
      (Lines{"3: expected workbook \"C:\\Enroll.xls\" cell 1 3 \"lanvik\", found \"Lanvik Eye Institute\"",
             "4: expected workbook \"C:\\Enroll.xls\" sheet \"Sheet1\", found \"Children बच्चे\"",
             "5: expected workbook \"C:\\Child.xls\", found no such file written"}));
}

/// The file is still there when no action looks back to its writing any more; the next scenario has none.
TEST(SavedWorkbooks, StayUntilTheScenarioEnds) {
  EXPECT_EQ(
      AfterPapers("scenario \"first\"\nclick Print\nclick Application\nexpect no file \"C:\\Enroll.xls\"\n"
                  "expect workbook \"C:\\Enroll.xls\" cell 1 3 \"Lanvik Eye Institute\"\n"
                  "scenario \"next\"\nexpect workbook \"C:\\Enroll.xls\" cell 1 1 \"\""),
      Lines{"8: expected workbook \"C:\\Enroll.xls\", found no such file written"});
}

TEST(SavedWorkbooks, UnderAnOrdinaryPathLieThere) {
  const ScratchFolder folder;
  const std::string file = folder.Path("kept.xls");
  EXPECT_EQ(AfterPapers("save-as \"" + file + "\"\nclick Export\nexpect workbook \"" + file +
                        "\" cell 1 3 \"Lanvik Eye Institute\""),
            Lines{});
  EXPECT_TRUE(fs::exists(file));
  EXPECT_EQ(AfterPapers("save-as \"" + folder.Path("missing/kept.xls") +
                        "\"\nclick Export\nexpect message \"75 Path/File access error\"\n"
                        "expect no file \"" +
                        folder.Path("missing/kept.xls") + "\""),
            Lines{});
}

TEST(SavedWorkbooks, ThatCantBeWrittenAreNotThere) {
  EXPECT_EQ(
      AfterPapers("unwritable \"C:\\Enroll.xls\"\nclick Print\nexpect message \"75 Path/File access error\"\n"
                  "expect no file \"C:\\Enroll.xls\"\nsave-as cancel\nclick Export\n"
                  "expect message \"75 Path/File access error\" title \"OVD\" critical"),
      Lines{});
}

TEST(TheSpreadsheetApplication, HasTheWorkbookThatItWasHanded) {
  EXPECT_EQ(
      AfterPapers("expect spreadsheet none\nclick Application\nexpect spreadsheet cell 1 3 \"Lanvik Eye "
                  "Institute\"\nexpect spreadsheet protected\nexpect spreadsheet merged \"A1:AB1\"\n"
                  "expect spreadsheet width 7 30.71\nexpect spreadsheet width 8 9"),
      Lines{});
  EXPECT_EQ(AfterPapers("expect spreadsheet protected\nclick Application\nexpect spreadsheet none\n"
                        "expect spreadsheet cell 1 1 \"x\"\nexpect spreadsheet merged \"A1:G1\"\n"
                        "expect spreadsheet width 7 30.7"),
            (Lines{"2: expected a workbook in the spreadsheet application, found none",
                   "4: expected spreadsheet none, found a workbook",
                   "5: expected spreadsheet cell 1 1 \"x\", found \"\"",
                   "6: expected spreadsheet merged \"A1:G1\", found \"A1:AB1\"",
                   "7: expected spreadsheet width 7 30.7, found 30.71"}));
}

TEST(TheSpreadsheetApplication, ThatIsNotThereIsHandedNothing) {
  EXPECT_EQ(
      AfterPapers("no spreadsheet\nclick Application\nexpect message \"429 *\"\nexpect spreadsheet none\n"
                  "no word-processor\nclick Letter\nexpect message \"429 *\"\nexpect no file "
                  "\"c:\\worddata.doc\""),
      Lines{});
}

TEST(Documents, AreSeenLineByLine) {
  EXPECT_EQ(AfterPapers("expect no document \"first\"\nclick Letter\nexpect file \"c:\\worddata.doc\"\n"
                        "expect document \"first\"\nexpect document \"          A1          ASHA\"\n"
                        "expect no document \"A1\""),
            Lines{});
  EXPECT_EQ(AfterPapers("expect document \"first\"\nclick Letter\nexpect document \"A1\"\n"
                        "expect no document \"first\""),
            (Lines{"2: expected document \"first\", found no document",
                   "4: expected document \"A1\", found \"first\", \"          A1          ASHA\"",
                   "5: expected no document \"first\", found \"first\", \"          A1          ASHA\""}));
}

}  // namespace
}  // namespace ovindra::driver
