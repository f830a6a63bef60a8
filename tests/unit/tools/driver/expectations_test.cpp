// What a person sees: each expectation holds where it should, and says what it found where it does not.
#include <gtest/gtest.h>

#include "tests/unit/tools/driver/desk.h"
#include "tools/driver/runner/query_result.h"

namespace ovindra::driver {
namespace {

struct Expectation {
  const char* holds;
  const char* fails;
  const char* report;  // what the failing one found wrong, line 3
};

class Expectations : public testing::TestWithParam<Expectation> {};

/// Both lines stand on the same freshly opened form, the holding one first.
TEST_P(Expectations, HoldAndFail) {
  const std::string lines = std::string("open frmDesk\n") + GetParam().holds + "\n" + GetParam().fails;
  EXPECT_EQ(Failures(lines), Lines{std::string("3: expected ") + GetParam().report});
}

INSTANTIATE_TEST_SUITE_P(
    Texts, Expectations,
    testing::Values(
        Expectation{"expect Label1 \"From : \"", "expect Label1 \"From :\"",
                    "Label1 \"From :\", found \"From : \""},
        Expectation{"expect Command1 \"&Ask\"", "expect Command1 \"ask\"",
                    "Command1 \"ask\", found \"&Ask\""},
        Expectation{"expect Command1 \"Ask\"", "expect Command1 \"A\"", "Command1 \"A\", found \"&Ask\""},
        Expectation{"expect Frame1 \"&Gender\"", "expect Frame1 \"\"", "Frame1 \"\", found \"&Gender\""},
        Expectation{"expect MNUEXIT \"E&XIT\"", "expect MNUEXIT \"EXIT\\n\"",
                    "MNUEXIT \"EXIT\\n\", found \"E&XIT\""},
        Expectation{"expect DTPicker1 \"05/31/2016\"", "expect DTPicker1 \"31/05/2016\"",
                    "DTPicker1 \"31/05/2016\", found \"05/31/2016\""},
        Expectation{"expect TabStrip1 \"One\"", "expect TabStrip1 \"Two\"",
                    "TabStrip1 \"Two\", found \"One\""},
        Expectation{"expect caption \"The &Desk\"", "expect caption \"Desk\"",
                    "caption \"Desk\", found \"The &Desk\""},
        Expectation{"expect label Text1 \"Name\"", "expect label Text1 \"\"",
                    "label Text1 \"\", found \"Name\""},
        Expectation{"expect StatusBar1(0) \"credit\"", "expect StatusBar1(3) \"x\"",
                    "StatusBar1(3), found 3 panels"},
        Expectation{"expect StatusBar1(2) \"10:15 AM\"", "expect StatusBar1(3000000000) \"x\"",
                    "StatusBar1(3000000000), found 3 panels"},
        Expectation{"expect StatusBar1(1) \"31/05/2016\"", "expect StatusBar1(2) \"10:15\"",
                    "StatusBar1(2) \"10:15\", found \"10:15 AM\""},
        Expectation{"expect Text1 \"\"", "expect Grid1 \"x\"", "a text of Grid1, found a grid has rows"},
        Expectation{"expect Text1 \"\"", "expect Text9 \"\"", "Text9, found no such control on frmDesk"}));

INSTANTIATE_TEST_SUITE_P(
    Lists, Expectations,
    testing::Values(Expectation{"expect Combo1 items \"ASHA\" \"RAM\" \"ASHA\"",
                                "expect Combo1 items \"ASHA\"",
                                "Combo1 items \"ASHA\", found \"ASHA\" \"RAM\" \"ASHA\""},
                    Expectation{"expect List1 items 3", "expect List1 items 2", "List1 items 2, found 3"},
                    Expectation{"expect List1 \"\"", "expect List1 items none",
                                "List1 items none, found \"ASHA\" \"RAM\" \"ASHA\""},
                    Expectation{"expect Grid1 rows 3", "expect Grid1 rows 2", "Grid1 rows 2, found 3"},
                    Expectation{"expect Grid1 row 0 \"No.\" \"Name\"", "expect Grid1 row 1 \"A1\" \"RAM\"",
                                "Grid1 row 1 \"A1\" \"RAM\", found \"A1\" \"ASHA\""},
                    Expectation{"expect Grid1 row 1 \"A1\"", "expect Grid1 row 1 \"A1\" \"ASHA\" \"\"",
                                "Grid1 row 1 \"A1\" \"ASHA\" \"\", found \"A1\" \"ASHA\""},
                    Expectation{"expect Grid1 cell 2 1 \"RAM\"", "expect Grid1 cell 2 1 \"ram\"",
                                "Grid1 cell 2 1 \"ram\", found \"RAM\""},
                    Expectation{"expect Grid1 cell 2 0 \"A2\"", "expect Grid1 cell 3 0 \"\"",
                                "Grid1 row 3, found 3 rows"},
                    Expectation{"expect Grid1 rows 3", "expect List1 rows 3",
                                "List1 to be a grid, found a control of another kind"}));

INSTANTIATE_TEST_SUITE_P(
    States, Expectations,
    testing::Values(
        // the states of the frames around are a person's too
        Expectation{"expect Option1 disabled visible off", "expect Option1 enabled visible on",
                    "Option1 enabled on, found disabled off"},
        Expectation{"expect Hidden1 hidden enabled", "expect Hidden1 visible",
                    "Hidden1 visible, found hidden"},
        Expectation{"expect Check1 off", "expect Text1 off",
                    "Text1 to be an option or check box, found a control of another kind"},
        Expectation{"expect opened FRMDESK", "expect closed frmDesk", "frmDesk closed, found open"},
        Expectation{"expect closed frmlogin", "expect opened frmlogin", "frmlogin opened, found not open"},
        Expectation{"expect pointer default", "expect pointer hourglass", "pointer hourglass, found default"},
        Expectation{"expect m1(0) disabled", "expect Text1 focused", "Text1 focused, found not focused"},
        Expectation{"expect m1(1) enabled", "expect focus Text1", "focus Text1, found none"},
        Expectation{"expect no message", "expect message \"a\" title \"b\" plain",
                    "message \"a\" title \"b\" plain, found no message"},
        Expectation{"expect no file \"C:\\Enroll.xls\"", "expect file \"C:\\Enroll.xls\"",
                    "file \"C:\\Enroll.xls\", found no file written"},
        Expectation{"expect not printed", "expect printed", "printed, found 0 prints"},
        Expectation{"expect no message", "expect calculator", "the calculator started, found it was not"},
        Expectation{"expect no message", "expect ended", "ended, found the program is running"}));

INSTANTIATE_TEST_SUITE_P(
    Queries, Expectations,
    testing::Values(Expectation{"expect sql select every kind => 7|NULL|a b|2016-05-31|1.5",
                                "expect sql select every kind => 7",
                                "rows 7, found 7|NULL|a b|2016-05-31|1.5"},
                    Expectation{"expect sql select empty =>", "expect sql select empty => x",
                                "rows x, found an empty field"},
                    Expectation{"expect sql select nothing =>", "expect sql select kept => a ; b",
                                "rows a ; b, found no rows"},
                    Expectation{"expect hospital sql select nothing =>", "expect sql select nothing => x",
                                "rows x, found no rows"},
                    Expectation{"expect sql select nothing =>", "expect sql select wrongly => x",
                                "rows x, found -2147217900 Incorrect syntax near 'select wrongly'."}));

TEST(QueryRows, AreReadWithTheirOuterBlanksTrimmed) {
  const std::pair<const char*, const char*> cases[] = {
      {"a|b ; c|d", "a|b ; c|d"}, {"  a | b ;  c| d  ", "a|b ; c|d"},
      {"a| ; |d", "a| ; |d"},     {"a ;", "a ; "},
      {"a;b|c", "a;b|c"},         {"", ""},
  };
  for (const auto& [written, normal] : cases) EXPECT_EQ(NormalRows(written), normal) << written;
}

TEST(Messages, AreExpectedOldestFirst) {
  EXPECT_EQ(Failures("open frmDesk\nclick Command5\n"
                     "expect message \"first\\nline\" title \"one\" information\n"
                     "expect message \"sec*\" plain"),
            Lines{});
  EXPECT_EQ(
      Failures("open frmDesk\nclick Command5\nexpect message \"second\"\nexpect message \"second\" critical"),
      (Lines{"3: expected message \"second\", found \"first\\nline\" title \"one\" information",
             "4: expected message \"second\" critical, found \"second\" title \"\" plain"}));
}

TEST(Messages, ThatNobodyExpectedFailAtTheNextActionAndAtTheEnd) {
  const char* const report = R"(expected no message, found "first\nline" title "one" information)";
  EXPECT_EQ(Failures("open frmDesk\nclick Command5\nexpect Text1 \"\"\nfocus Text1\nexpect no message"),
            Lines{std::string("4: ") + report});
  EXPECT_EQ(Failures("open frmDesk\nclick Command5\nexpect Text1 \"\""), Lines{std::string("3: ") + report});
  EXPECT_EQ(Failures("open frmDesk\nclick Command5\nexpect message \"first*\"\nexpect no message"),
            Lines{"4: expected no message, found \"second\" title \"\" plain"});
}

class Statements : public testing::Test {
 protected:
  /// The failures of the lines that follow two statements of the program.
  static Lines After(const std::string& lines) {
    return Failures("open frmDesk\ntype Text2 \"keep one\"\nclick Command2\n" + lines);
  }
};

TEST_F(Statements, AreComparedLetterForLetter) {
  EXPECT_EQ(After("expect statement \"keep one\"\nexpect statement contains \"ep o\"\n"
                  "expect no statement contains \"KEEP\"\nexpect no hospital statement contains \"keep\""),
            Lines{});
  EXPECT_EQ(After("expect statement \"keep\""), Lines{"4: expected statement \"keep\", found \"keep one\""});
  EXPECT_EQ(After("expect no statement contains \"one\""),
            Lines{"4: expected no statement contains \"one\", found \"keep one\""});
  EXPECT_EQ(After("expect hospital statement \"keep one\""),
            Lines{"4: expected hospital statement \"keep one\", found no statement"});
}

TEST_F(Statements, AreLookedBackToTheLastActionAlone) {
  EXPECT_EQ(After("answer yes\nprinter ok\nexpect statement \"keep one\""), Lines{});
  EXPECT_EQ(After("focus Text1\nexpect no statement\nexpect statement \"keep one\""),
            Lines{"6: expected statement \"keep one\", found no statement"});
}

TEST_F(Statements, InOrder) {
  const char* const two = "type Text4 \"x\"\nclick Command6\nexpect hospital statements contain ";
  EXPECT_EQ(After(std::string(two) + "\"keep\" \"ward\""), Lines{});
  EXPECT_EQ(After(std::string(two) + "\"ward\" \"keep\""),
            Lines{"6: expected statements to contain \"keep\" in this order, found \"keep ward\""});
}

TEST_F(Statements, CountAsSentWhenTheyFail) {
  EXPECT_EQ(Failures("open frmDesk\ntype Text2 \"boom\"\nclick Command2\nexpect statement \"boom\"\n"
                     "expect message \"-2147217900 Incorrect syntax near 'boom'.\" title \"OVD\" critical"),
            Lines{});
}

TEST(TheEnd, ByAnErrorIsSeenByItsNumberAndText) {
  const std::string crash = "open frmDesk\ntype Text2 \"boom\"\nclick Command4\n";
  EXPECT_EQ(Failures(crash + "expect ended \"-2147217900 Incorrect*\"\nexpect statement \"boom\"\n"
                             "expect sql select kept =>\nexpect no file \"x\""),
            Lines{});
  EXPECT_EQ(Failures(crash + "expect ended"),
            Lines{"4: expected ended, found \"-2147217900 Incorrect syntax near 'boom'.\""});
  EXPECT_EQ(Failures(crash + "expect ended \"13 *\"\nexpect Text1 \"\""),
            (Lines{"4: expected ended \"13 *\", found \"-2147217900 Incorrect syntax near 'boom'.\"",
                   "5: expected the program running, found it has ended"}));
}

TEST(TheEnd, ThatNobodyExpectedFailsWhenItWasAnError) {
  const std::string crash = "open frmDesk\ntype Text2 \"boom\"\nclick Command4";
  const char* const report =
      "expected the program running, found it has ended with -2147217900 Incorrect syntax near 'boom'.";
  EXPECT_EQ(Failures(crash), Lines{std::string("3: ") + report});
  EXPECT_EQ(Failures(crash + "\nclick Command1"),
            (Lines{std::string("4: ") + report, "4: expected the program running, found it has ended"}));
}

TEST(TheEnd, InTheOrdinaryWay) {
  EXPECT_EQ(Failures("open frmlogin\nclick Command2\nexpect ended\nexpect sql select nothing =>"), Lines{});
  EXPECT_EQ(Failures("open frmlogin\nclick Command2\nexpect ended \"3021 *\""),
            Lines{"3: expected ended \"3021 *\", found ended in the ordinary way"});
  EXPECT_EQ(Failures("open frmlogin\nclick Command2\nclick Command1"),
            Lines{"3: expected an open form, found the program has ended"});
  EXPECT_EQ(Failures("open frmlogin\nclick Command2\nopen frmDesk"),
            Lines{"3: expected the program running, found it has ended"});
}

}  // namespace
}  // namespace ovindra::driver
