#include <gtest/gtest.h>

#include "test_database.h"

namespace ovindra {
namespace {

/// Keeps the batches that it is given.
class Recorder : public Session {
 public:
  Recordset Run(const SqlText& statement) override {
    batches.push_back(statement.text());
    return {};
  }
  std::vector<std::string> batches;
};

TEST(Scripts, ArePartedByLinesOfGoAlone) {
  struct Case {
    const char* script;
    std::vector<std::string> batches;
  };
  const Case kCases[] = {
      {"a\nGO\nb\n go \r\nc", {"a\n", "b\n", "c"}},
      {"GO\n\nGO\n", {}},
      {"a go\ngo to b\nGO2", {"a go\ngo to b\nGO2"}},
      {"select 'x\nGO\n'\nGO\nb", {"select 'x\nGO\n'\n", "b"}},
      {"/* one\nGO\n/* two */\n*/a\nGO\nb", {"/* one\nGO\n/* two */\n*/a\n", "b"}},
      {"a -- it's\nGO\nb", {"a -- it's\n", "b"}},
      {"[it's]\nGO\nb", {"[it's]\n", "b"}},
  };
  for (const Case& each : kCases) {
    Recorder recorder;
    RunScript(recorder, each.script);
    EXPECT_EQ(recorder.batches, each.batches) << each.script;
  }
}

TEST(Scripts, EndAtTheFirstRefusalAndKeepWhatRan) {
  TestDatabase database;
  const std::string refusal = RefusalOf([&] {
    RunScript(*database,
              "create table A (x int)\nGO\ninsert into A values(1)\ninsert into B values(1)\nGO\nselect 1/0");
  });
  EXPECT_EQ(refusal, "-2147217865 Invalid object name 'B'.");
  EXPECT_EQ(database.Value("select count(*) from A"), "1");
}

TEST(Scripts, ABatchThatMakesATableAndFailsIsNotRunTwice) {
  TestDatabase database;
  EXPECT_EQ(database.Refusal("create table A (x int) insert into A values(1) insert into B values(1)"),
            "-2147217865 Invalid object name 'B'.");
  EXPECT_EQ(database.Value("select count(*) from A"), "1");
}

TEST(Scripts, ABatchWithAWrongWordRunsNothing) {
  TestDatabase database("create table A (x int)");
  EXPECT_EQ(database.Refusal("insert into A values(1) insert ino A values(2)"),
            "-2147217900 Incorrect syntax near 'A'.");
  EXPECT_EQ(database.Value("select count(*) from A"), "0");
}

TEST(Batches, WithValuesAreOneStatement) {
  TestDatabase database("create table A (x int)");
  EXPECT_EQ(RefusalOf([&] { database->Run(sql("insert into A values(", bare("1"), ") delete from A")); }),
            "-2147217900 Incorrect syntax near ';'.");
  EXPECT_EQ(database.Value("select count(*) from A"), "0");
}

}  // namespace
}  // namespace ovindra
