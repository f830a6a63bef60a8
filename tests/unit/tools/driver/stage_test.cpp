// The stage of a scenario: its databases, its program, the machine, and what a fresh one begins with.
#include <gtest/gtest.h>

#include "tests/unit/tools/driver/desk.h"

namespace ovindra::driver {
namespace {

TEST(FreshScenario, HasDatabasesOfItsOwnAndNoForm) {
  EXPECT_EQ(Failures("sql keep a\nscenario \"one\"\nsql keep b\nexpect sql select kept => a ; b\n"
                     "scenario \"two\"\nexpect sql select kept => a\nexpect hospital sql select kept =>"),
            Lines{});
  EXPECT_EQ(Failures("expect Text1 \"\""), Lines{"1: expected an open form, found none open"});
}

TEST(FreshScenario, TheDemoStandsInPlaceOfTheEmptyDatabases) {
  EXPECT_EQ(Failures("sql keep a\ndatabase demo\nexpect sql select kept => demo\n"
                     "expect hospital sql select kept => demo\ndatabase empty\nexpect sql select kept =>"),
            Lines{});
}

TEST(FreshScenario, AStatementOfTheStageThatFailsIsReported) {
  EXPECT_EQ(Failures("sql boom"),
            Lines{"1: expected the statement to run, found -2147217900 Incorrect syntax near 'boom'."});
}

TEST(FailRules, StrikeTheNextStatementWithTheFragmentOnce) {
  EXPECT_EQ(Failures("fail \"two\" -2147217873 \"refused\"\nopen frmDesk\n"
                     "type Text2 \"keep TWO\"\nclick Command2\nexpect no message\n"
                     "clear Text2\ntype Text2 \"keep two\"\nclick Command2\nexpect statement \"keep two\"\n"
                     "expect message \"-2147217873 refused\"\n"
                     "click Command2\nexpect no message\nexpect sql select kept => TWO ; two"),
            Lines{});
}

TEST(FailRules, BelongToTheirConnection) {
  EXPECT_EQ(
      Failures(
          "fail \"ward\" 5 \"x\"\nopen frmDesk\nclick Command6\nexpect hospital sql select kept => ward\n"
          "hospital fail \"ward\" 5 \"x\"\nclick Command6\nexpect ended \"5 x\""),
      Lines{});
}

TEST(Disconnecting, ClosesTheConnectionUnderTheProgram) {
  const char* const closed = "expect message \"3709 The connection cannot be used*\"";
  const std::string run = "type Text2 \"keep a\"\nclick Command2\n";
  EXPECT_EQ(Failures("open frmDesk\ndisconnect\n" + run + closed + "\nexpect no statement"), Lines{});
  EXPECT_EQ(Failures("disconnect\nopen frmDesk\n" + run + closed), Lines{});
  EXPECT_EQ(Failures("hospital disconnect\nopen frmDesk\n" + run + "click Command6\nexpect ended \"3709 *\""),
            Lines{});
}

TEST(Disconnecting, IsAMissingDataSourceForAProgramThatStarts) {
  EXPECT_EQ(Failures("disconnect\nstart\ntick-timer Timer1 3\n"
                     "expect message \"-2147467259 Data source name not found*\" title \"OVD\" critical\n"
                     "expect opened frmlogin"),
            Lines{});
}

TEST(Starting, ShowsTheSplashWhichOpensTheConnections) {
  EXPECT_EQ(
      Failures("folder \"\\VERSION.txt\" \"Version 9\"\nstart\nexpect caption \"Splash\"\n"
               "expect Label1 \"Version 9\"\nexpect pointer hourglass\ntick-timer Timer1 2\n"
               "expect opened frmflash\n"
               "tick-timer Timer1 5\nexpect closed frmflash\nexpect caption \"Login\"\n"
               "expect pointer default\nclick Command1\nexpect closed frmlogin\nexpect caption \"MAIN\"\n"
               "click m1(1)\ntype Text2 \"keep a\"\nclick Command4\nexpect sql select kept => a"),
      Lines{});
}

TEST(Starting, ForgetsNoEndThatNobodyExpected) {
  const std::vector<std::string> failures =
      Failures("open frmDesk\nhospital disconnect\nclick Command6\nstart\nexpect opened frmflash");
  ASSERT_EQ(failures.size(), 1U);
  EXPECT_EQ(failures[0].rfind("4: expected the program running, found it has ended with 3709", 0), 0U);
}

TEST(Starting, DropsTheFormsAndKeepsTheDatabases) {
  EXPECT_EQ(Failures("open frmDesk\ntype Text2 \"keep a\"\nclick Command4\nstart\nexpect closed frmDesk\n"
                     "expect sql select kept => a\nclick Command4"),
            Lines{"7: expected Command4, found no such control on frmflash"});
  EXPECT_EQ(Failures("open frmlogin\nclick Command2\nexpect ended\nstart\nexpect opened frmflash"), Lines{});
}

TEST(ProgramFiles, ThatAreMissing) {
  EXPECT_EQ(Failures("open frmlogin\ntick-timer Timer1 1\nexpect opened frmlogin"), Lines{});
  EXPECT_EQ(Failures("missing \"\\key1.ico\"\nopen frmlogin\ntick-timer Timer1 2\nexpect ended \"53 *\""),
            Lines{});
}

TEST(TheClock, StandsWhereTheScenarioSetsIt) {
  EXPECT_EQ(Failures("today 06/10/2016\nclock 00:05\nopen frmDesk\nexpect DTPicker1 \"06/10/2016\"\n"
                     "expect StatusBar1(1) \"10/06/2016\"\nexpect StatusBar1(2) \"12:05 AM\"\n"
                     "clock 13:40\nexpect StatusBar1(2) \"1:40 PM\""),
            Lines{});
}

TEST(TheMainWindow, StandsBehindEveryFormUnlessTheLoginStillDoes) {
  EXPECT_EQ(Failures("user \"ASHA\"\nform MDIForm1\nexpect m1(0) disabled"), Lines{});
  EXPECT_EQ(Failures("start\ntick-timer Timer1 3\nexpect closed MDIForm1\nform MDIForm1"),
            Lines{"4: expected MDIForm1 open, found not open"});
}

}  // namespace
}  // namespace ovindra::driver
