// The program: what it prints, how it ends, its options.
#include <fstream>

#include <gtest/gtest.h>

#include "tests/unit/tools/driver/desk.h"

namespace ovindra::driver {
namespace {

class DriveProgram : public testing::Test {
 protected:
  std::string Write(const std::string& name, const std::string& text) { return folder_.Write(name, text); }

  ScratchFolder folder_;
};

TEST_F(DriveProgram, CountsScenariosAndEndsWithOneWhenAnyFailed) {
  const std::string good =
      Write("good.scenario", "scenario \"a\"\nopen frmDesk\nscenario \"b\"\nopen frmDesk");
  const std::string bad = Write("bad.scenario", "open frmDesk\nexpect Text1 \"a\"\nexpect Text2 \"b\"");
  const Outcome passed = DriveDesk({good});
  EXPECT_EQ(passed.out, "2 passed, 0 failed\n");
  EXPECT_EQ(passed.exit_code, 0);
  const Outcome failed = DriveDesk({bad, good});
  EXPECT_EQ(failed.out, bad + ":2: expected Text1 \"a\", found \"\"\n" + bad +
                            ":3: expected Text2 \"b\", found \"\"\n2 passed, 1 failed\n");
  EXPECT_EQ(failed.exit_code, 1);
}

TEST_F(DriveProgram, EndsWithTwoAndPlaysNothingWhenALineIsNotUnderstood) {
  const std::string good = Write("good.scenario", "open frmNone");
  const std::string bad = Write("bad.scenario", "open frmDesk\n\nclik Command1");
  const Outcome outcome = DriveDesk({good, bad});
  EXPECT_EQ(outcome.exit_code, 2);
  EXPECT_EQ(outcome.err, bad + ":3: not in the language: 'clik'\n");
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(DriveDesk({folder_.Path("none")}).exit_code, 2);
}

TEST_F(DriveProgram, RefusesArgumentsThatItDoesNotKnow) {
  const std::string file = Write("a.scenario", "open frmDesk");
  for (const Lines& arguments :
       {Lines{}, Lines{"--fast", file}, Lines{file, "--pictures"}, Lines{"--window", file}}) {
    const Outcome outcome = DriveDesk(arguments);
    EXPECT_EQ(outcome.exit_code, 2);
    EXPECT_FALSE(outcome.err.empty());
  }
}

TEST_F(DriveProgram, TracesActionsStatementsMessagesAndFocus) {
  const std::string file = Write("a.scenario",
                                 "open frmDesk\ntype Text2 \"boom\"\nclick Command2\nexpect message \"*\"\n"
                                 "sql keep hidden\nanswer yes\nclick Command1\nexpect message \"Sure?\"");
  EXPECT_EQ(DriveDesk({"--trace", file}).out,
            "> open frmDesk\n"
            "> type Text2 \"boom\"\n"
            "  focus frmDesk Text2\n"
            "> click Command2\n"
            "  focus frmDesk Command2\n"
            "  screening: boom -> -2147217900 Incorrect syntax near 'boom'.\n"
            "  message \"-2147217900 Incorrect syntax near 'boom'.\" title \"OVD\" critical -> ok\n"
            "> click Command1\n"
            "  focus frmDesk Command1\n"
            "  message \"Sure?\" title \"OVD\" question -> yes\n"
            "1 passed, 0 failed\n");
}

TEST_F(DriveProgram, WritesTheStatementsThatRan) {
  const std::string file = Write("a.scenario",
                                 "open frmDesk\nsql keep B\nsql keep A\nsql keep B\ntype Text2 \"boom\"\n"
                                 "click Command2\nexpect message \"*\"");
  const std::string log = folder_.Path("statements.sql");
  EXPECT_EQ(DriveDesk({"--statements", log, file}).out, "1 passed, 0 failed\n");
  std::ifstream in(log);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(in), {}), "keep A\nGO\nkeep B\nGO\n");
  EXPECT_EQ(DriveDesk({"--statements", folder_.Path("none/statements.sql"), file}).exit_code, 2);
}

}  // namespace
}  // namespace ovindra::driver
