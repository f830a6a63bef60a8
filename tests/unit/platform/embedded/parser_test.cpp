#include "platform/embedded/parser/parser.h"

#include <gtest/gtest.h>

#include "platform/embedded/lexer/lexer.h"
#include "test_database.h"

namespace ovindra::embedded {
namespace {

syntax::Batch ParseText(std::string_view text, std::vector<ValuePlace> values = {}) {
  return Parse(text, Lex(text), values);
}

std::string ParseRefusal(std::string_view text) {
  return RefusalOf([&] { ParseText(text); });
}

TEST(Parser, NamesTheWordThatIsWrong) {
  struct Case {
    const char* statement;
    const char* word;
  };
  const Case kCases[] = {
      {"selec * from A", "selec"},
      {"select from A", "from"},
      {"select * from", "from"},
      {"select * from A where", "where"},
      {"select * from A where x=", "="},
      {"select * from A where x=1 and", "and"},
      {"select * from A where x like 'S%' '05/01/2016'", "05/01/2016"},
      {"select * from (select x from A)", ")"},
      {"select x from A group x", "x"},
      {"insert into A values(1,)", ")"},
      {"insert into A values 1", "1"},
      {"insert into A (x) Values ('a',,2)", ","},
      {"update A set x 1", "1"},
      {"delete A where x not 1", "1"},
      {"select case x end from A", "end"},
      {"select count(x from A", "from"},
      {"create table A x int", "x"},
      {"create table A (x int", "int"},
      {"if exists select 1 drop table A", "select"},
      {"select 1 2", "2"},
      {"select *, from A", "from"},
  };
  for (const Case& each : kCases) {
    EXPECT_EQ(ParseRefusal(each.statement),
              "-2147217900 Incorrect syntax near '" + std::string(each.word) + "'.")
        << each.statement;
  }
}

TEST(Parser, RefusesWhatItDoesNotHaveByWordAndPlace) {
  struct Case {
    const char* statement;
    const char* word;
    int place;
  };
  const Case kCases[] = {
      {"exec sp_who", "exec", 1},
      {"select * from A right join B on 1=1", "right", 17},
      {"select 1 intersect select 2", "intersect", 10},
      {"select count(*) over () from A", "over", 17},
      {"create procedure p as select 1", "procedure", 8},
      {"alter table A drop column x", "drop", 15},
      {"create table A (x int references B)", "references", 23},
      {"create table A (x int identity(5,1))", "identity", 32},
      {"select top 5 percent x from A", "percent", 14},
      {"select * from A where x like 'a' escape 'b'", "escape", 34},
  };
  for (const Case& each : kCases) {
    EXPECT_EQ(ParseRefusal(each.statement), "-2147217900 The embedded database does not know '" +
                                                std::string(each.word) + "' (at character " +
                                                std::to_string(each.place) + ").")
        << each.statement;
  }
}

TEST(Parser, RefusesDeepNestingInsteadOfExhaustingTheStack) {
  const std::string refusal = ParseRefusal("select " + std::string(100000, '(') + "1");
  EXPECT_NE(refusal.find("nested too deeply"), std::string::npos) << refusal;
  std::string minus = "select ";
  for (int i = 0; i < 100000; ++i) minus += "- ";
  EXPECT_NE(ParseRefusal(minus + "1").find("nested too deeply"), std::string::npos);
  std::string sum = "select 1";
  for (int i = 0; i < 100000; ++i) sum += "+1";
  EXPECT_NE(ParseRefusal(sum).find("nested too deeply"), std::string::npos);
}

TEST(Parser, MarksTheLiteralsThatAreValues) {
  const std::string text = "select * from A where x='v' and y=5And z=5 and w='v'";
  // The second value is the 5 that touches the word behind it, the third no plain number.
  const std::vector<ValuePlace> values{{25, 1, true}, {34, 1, false}, {41, 0, false}};
  const syntax::Batch batch = ParseText(text, values);
  const auto& where = std::get<syntax::Query>(batch.at(0).node).selects.at(0).where;
  std::vector<int> marks;
  for (const auto& condition : std::get<syntax::Junction>(where->node).operands) {
    const auto& right = std::get<syntax::Binary>(condition->node).right;
    const auto& value = std::get<syntax::Literal>(right->node).value;
    marks.push_back(value ? static_cast<int>(*value) : -1);
  }
  EXPECT_EQ(marks, (std::vector{0, 1, -1, -1}));
}

TEST(Parser, ReadsSeveralStatementsOfABatch) {
  EXPECT_EQ(ParseText("create table A (x int) insert into A values (1); select * from A;").size(), 3U);
  EXPECT_EQ(ParseText(" -- nothing\n").size(), 0U);
}

}  // namespace
}  // namespace ovindra::embedded
