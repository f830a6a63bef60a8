// The language: texts and their escapes, arguments, what is refused and how, files that play others.
#include <filesystem>

#include <gtest/gtest.h>

#include "tests/unit/tools/driver/desk.h"
#include "tools/driver/language/grammar.h"
#include "tools/driver/language/script.h"
#include "tools/driver/language/token.h"
#include "tools/driver/runner/runner.h"

namespace ovindra::driver {
namespace {

Step Parse(const std::string& line) {
  return ParseLine({"f", 1}, line);
}

std::string Refusal(const std::string& line) {
  try {
    Parse(line);
  } catch (const LanguageError& error) {
    return error.what();
  }
  return "taken";
}

TEST(TextArguments, EscapesAndDoubledQuotes) {
  const std::pair<const char*, const char*> cases[] = {
      {R"(type Text1 "a""b")", "a\"b"},
      {R"(type Text1 "a\tb\nc\rd\\e")", "a\tb\nc\rd\\e"},
      {R"(type Text1 "C:\Enroll.xls\")", "C:\\Enroll.xls\\"},
      {R"(type Text1 "\\n")", "\\n"},
      {R"(type Text1 "")", ""},
      {"\t type   Text1\t\"# no comment\" \t", "# no comment"},
  };
  for (const auto& [line, text] : cases) EXPECT_EQ(Parse(line).Text(1), text) << line;
}

TEST(TextArguments, QuoteWritesWhatCutLineReads) {
  for (const char* text : {"a\"b\tc\nd\re\\f", "C:\\temp\\new.xls", R"(\\server\)", "\\\t\\\"\\"}) {
    const auto tokens = CutLine(Quote(text));
    ASSERT_EQ(tokens.size(), 1u) << text;
    EXPECT_EQ(tokens.front().value, text);
  }
}

TEST(Arguments, AreReadAsWhatTheyAre) {
  EXPECT_EQ(MonthFirst(Parse("today 05/31/2016").DateOf(0)), "05/31/2016");
  EXPECT_EQ(Parse("clock 10:15").Time(0), TimeOfDay(615));
  EXPECT_EQ(Parse("fail \"x\" -2147217900 \"t\"").Number(2), -2147217900);
  EXPECT_EQ(Parse("press Text1 F9").KeyOf(1).name, KeyName::kF9);
  EXPECT_EQ(Parse("press Text1 \"é\"").KeyOf(1).character, U'é');
  EXPECT_EQ(Parse("click m3(11)").Text(0), "m3(11)");
  EXPECT_EQ(Parse("hospital sql  select 'a\"b'  ").Text(1), "select 'a\"b'");
  EXPECT_EQ(Parse("expect sql select a where b>=1 => x ; y").Texts(1),
            (Lines{"select a where b>=1", "x ; y"}));
  EXPECT_FALSE(Parse("click Grid1 row 2").Has(2));
  EXPECT_EQ(Parse("click Grid1 row 2 column 3").Int(2), 3);
}

TEST(Arguments, AKeywordIsNotTakenForAControl) {
  EXPECT_EQ(Parse("expect caption \"x\"").kind(), StepKind::kExpectCaption);
  EXPECT_EQ(Parse("press form F8").kind(), StepKind::kPressForm);
  EXPECT_EQ(Parse("expect Grid1 cell 1 3 \"x\"").kind(), StepKind::kExpectGridCell);
  EXPECT_EQ(Parse("expect cell 1 3 \"x\"").kind(), StepKind::kExpectCell);
  EXPECT_EQ(Parse("expect List1 items none").kind(), StepKind::kExpectNoItems);
}

TEST(Refusals, NameTheWord) {
  const std::pair<const char*, const char*> cases[] = {
      {"clik Command1", "f:1: not in the language: 'clik'"},
      {"click \"Command1\"", "f:1: not in the language: '\"Command1\"'"},
      {"click Command1 twice", "f:1: not in the language: 'twice'"},
      {"click Grid1 row two", "f:1: not in the language: 'two'"},
      {"type Text1", "f:1: not in the language: something is missing after 'Text1'"},
      {"type Text1 \"abc", "f:1: a text without its closing quote: '\"abc'"},
      {"today 31/05/2016", "f:1: not in the language: '31/05/2016'"},
      {"today 02/30/2016", "f:1: not in the language: '02/30/2016'"},
      {"clock 24:00", "f:1: not in the language: '24:00'"},
      {"press Text1 Return", "f:1: not in the language: 'Return'"},
      {"press Text1 \"ab\"", "f:1: not in the language: '\"ab\"'"},
      {R"(expect message "a" "b")", "f:1: not in the language: '\"b\"'"},
      {"expect message \"a\" title", "f:1: not in the language: something is missing after 'title'"},
      {"expect Text1 enabled bright", "f:1: not in the language: 'bright'"},
      {"expect sql select 1", "f:1: not in the language: something is missing after '1'"},
      {"click m3(x)", "f:1: not in the language: 'm3(x)'"},
      {"answer maybe", "f:1: not in the language: 'maybe'"},
  };
  for (const auto& [line, refusal] : cases) EXPECT_EQ(Refusal(line), refusal);
}

/// One line of each form that a person may write, as the language's description has them.
TEST(Grammar, TakesEveryFormOfEveryStep) {
  const char* lines[] = {
      "database demo",
      R"(hospital fail "a" 1 "b")",
      "hospital disconnect",
      R"(unwritable "C:\Enroll.xls")",
      "no word-processor",
      "save-as \"a b.xls\"",
      "save-as cancel",
      "printer cancel",
      R"(expect message "a*" title "t" critical)",
      "expect message \"a\" plain",
      "expect Text1 enabled visible focused",
      "expect ended",
      "expect ended \"3021 *\"",
      "expect hospital statement contains \"x\"",
      "expect no hospital statement contains \"x\"",
      R"(expect hospital statements contain "x" "y")",
      "expect cell 6 2 empty",
      "expect cell 6 2 contains \"x\"",
      "expect cell 5 1 font 10 bold underline colour 16711935",
      "expect cell 5 1 font colour 255",
      "expect cell 5 1 align centre",
      "expect cell 5 1 wrapped",
      "expect cell 5 1 middle",
      "expect cell 5 1 no border",
      "expect column 2 width 20000",
      "expect print gridlines off",
      "expect print margin left 0",
      "expect print centred",
      "expect print footer \"&C & Page &P\"",
      "expect not printed",
      R"(expect no file "C:\Enroll.xls")",
      R"(expect workbook "f" cell 1 3 "x")",
      R"(expect workbook "f" sheet "x")",
      "expect spreadsheet protected",
      "expect spreadsheet merged \"A1:G1\"",
      "expect spreadsheet width 7 30.71",
      "expect spreadsheet none",
      "expect no document \"line\"",
      "expect calculator",
  };
  for (const char* line : lines) EXPECT_EQ(Refusal(line), "taken") << line;
}

TEST(Grammar, EveryStepCanBePlayed) {
  for (const GrammarRow& row : Grammar()) {
    if (row.kind == StepKind::kScenario || row.kind == StepKind::kPlay) continue;
    EXPECT_NE(HandlerOf(row.kind), nullptr) << row.pattern;
  }
}

class ScriptFiles : public testing::Test {
 protected:
  std::string Write(const std::string& name, const std::string& text) { return folder_.Write(name, text); }

  /// The lines of each scenario behind its title.
  static std::vector<Lines> Read(const std::string& file) {
    std::vector<Lines> scenarios;
    for (const Scenario& scenario : ReadScript(file)) {
      Lines& lines = scenarios.emplace_back(Lines{scenario.title});
      for (const Step& step : scenario.steps) lines.push_back(step.line());
    }
    return scenarios;
  }

  ScratchFolder folder_;
};

TEST_F(ScriptFiles, TheFirstLinesBeginEveryScenario) {
  const std::string file = Write("a.scenario",
                                 "\xEF\xBB\xBF# comment\r\n  start\r\n\r\nscenario \"one\"\r\nopen A\r\n"
                                 "scenario \"two\"\n\t# comment\n\topen B");
  EXPECT_EQ(Read(file), (std::vector<Lines>{{"one", "start", "open A"}, {"two", "start", "open B"}}));
}

TEST_F(ScriptFiles, APlayedFileStandsInPlaceOfItsLine) {
  std::filesystem::create_directories(folder_.Path("sub"));
  Write("sub/inner.steps", "open B\nplay \"../last.steps\"");
  Write("last.steps", "open C");
  const std::string file = Write("a.scenario", "scenario \"one\"\nopen A\nplay \"sub/inner.steps\"\nopen D");
  EXPECT_EQ(Read(file), (std::vector<Lines>{{"one", "open A", "open B", "open C", "open D"}}));
  EXPECT_EQ(ReadScript(file)[0].steps[1].place().text(), folder_.Path("sub/inner.steps") + ":1");
}

TEST_F(ScriptFiles, LinesWithoutAScenarioAreOne) {
  const std::string file = Write("a.scenario", "start");
  EXPECT_EQ(Read(file), (std::vector<Lines>{{file, "start"}}));
  EXPECT_TRUE(Read(Write("empty.scenario", "# nothing\n")).empty());
}

TEST_F(ScriptFiles, WhatCannotBeReadIsToldWithItsPlace) {
  const auto refusal = [](const std::string& file) -> std::string {
    try {
      ReadScript(file);
    } catch (const LanguageError& error) {
      return error.what();
    }
    return "read";
  };
  const std::string self = Write("self.scenario", "start\nplay \"self.scenario\"");
  EXPECT_EQ(refusal(self), self + ":2: the file plays itself: 'self.scenario'");
  const std::string lost = Write("lost.scenario", "play \"none.steps\"");
  EXPECT_EQ(refusal(lost), lost + ":1: the file can't be read: 'none.steps'");
  EXPECT_EQ(refusal(folder_.Path("none")), folder_.Path("none") + ": the file can't be read");
  EXPECT_EQ(refusal(folder_.Path("")), folder_.Path("") + ": the file can't be read");
}

}  // namespace
}  // namespace ovindra::driver
