#include "platform/embedded/session/statement_cache.h"

#include <gtest/gtest.h>

#include "test_database.h"

namespace ovindra {
namespace {

class RepeatedStatements : public testing::Test {
 protected:
  Rows Find(const std::string& name) {
    return RowsOf(database->Run(sql("select Code from Ward where Name=", quoted(name), " order by Code")));
  }

  TestDatabase database{
      "create table Ward (Code int, Name varchar(10), Opened datetime)\n"
      "insert into Ward values(1,'A','05/31/2016'),(2,'B ','06/30/2016'),(15,'Ab',null)"};
};

TEST_F(RepeatedStatements, EachRunHasItsOwnValues) {
  EXPECT_EQ(Find("a"), (Rows{{"1"}}));
  EXPECT_EQ(Find("B  "), (Rows{{"2"}}));
  EXPECT_EQ(Find(""), (Rows{}));
  EXPECT_EQ(Find("a longer name than the column holds"), (Rows{}));
}

TEST_F(RepeatedStatements, ThePatternOfALikeDecidesAnew) {
  const auto find = [&](const std::string& pattern) {
    return RowsOf(
        database->Run(sql("select Code from Ward where Name like ", quoted(pattern), " order by Code")));
  };
  EXPECT_EQ(find("a%"), (Rows{{"1"}, {"15"}}));
  EXPECT_EQ(find("b%"), (Rows{{"2"}}));
  EXPECT_EQ(find("a"), (Rows{{"1"}}));
  EXPECT_EQ(find("a_"), (Rows{{"15"}}));
  EXPECT_EQ(find("%b"), (Rows{{"2"}, {"15"}}));
  EXPECT_EQ(RowsOf(database->Run(
                sql("select Code from Ward where Name like ", quoted("a", "%"), " order by Code"))),
            (Rows{{"1"}, {"15"}}));
}

TEST_F(RepeatedStatements, BareValuesAreNumbersOrPartOfTheText) {
  const auto find = [&](const std::string& code) {
    return RowsOf(database->Run(sql("select Name from Ward where Code=", bare(code), "And Code<>99")));
  };
  EXPECT_EQ(find("1"), (Rows{{"A"}}));
  EXPECT_EQ(find("15"), (Rows{{"Ab"}}));
  EXPECT_EQ(find("-15"), (Rows{}));
  EXPECT_EQ(RefusalOf([&] { database->Run(sql("select Name from Ward where Code=", bare("False"))); }),
            "-2147217900 Invalid column name 'False'.");
  EXPECT_EQ(find("15."), (Rows{{"Ab"}}));
  EXPECT_EQ(RefusalOf([&] { find("False"); }), "-2147217900 Incorrect syntax near 'Code'.");
  EXPECT_EQ(RefusalOf([&] { find(""); }), "-2147217900 Incorrect syntax near 'And'.");
  EXPECT_EQ(find("2"), (Rows{{"B"}})) << "a refused one leaves the others alone";
}

TEST_F(RepeatedStatements, AValueThatDoesNotConvertIsRefusedEachTime) {
  const auto find = [&](const std::string& date) {
    return RowsOf(database->Run(
        sql("select Code from Ward where Opened between ", quoted(date), "and", quoted("12/31/2016"))));
  };
  EXPECT_EQ(find("06/01/2016"), (Rows{{"2"}}));
  EXPECT_EQ(RefusalOf([&] { find("31/12/2016"); }).substr(0, 11), "-2147217913");
  EXPECT_EQ(find("05/01/2016 "), (Rows{{"1"}, {"2"}}));
  const auto store = [&](const std::string& name) {
    database->Run(sql("insert into Ward(Code,Name) values(", bare("7"), ",", quoted(name), ")"));
  };
  store("1234567890   ");
  EXPECT_EQ(RefusalOf([&] { store("12345678901"); }),
            "-2147217833 String or binary data would be truncated.");
  EXPECT_EQ(database.Value("select count(*) from Ward where Code=7"), "1");
}

TEST_F(RepeatedStatements, ANumberThatShapesTheStatementIsNoParameter) {
  const auto first = [&](const std::string& count, const std::string& column) {
    return RowsOf(
        database->Run(sql("select top ", bare(count), " Code,Name from Ward order by ", bare(column))));
  };
  EXPECT_EQ(first("1", "1"), (Rows{{"1", "A"}}));
  EXPECT_EQ(first("2", "2"), (Rows{{"1", "A"}, {"15", "Ab"}}));
  EXPECT_EQ(first("1", "1"), (Rows{{"1", "A"}}));
}

TEST_F(RepeatedStatements, FollowTheSchema) {
  EXPECT_EQ(database.Select("select * from Ward where Code=1").at(0).size(), 3U);
  database.Run("alter table Ward add Beds int");
  EXPECT_EQ(database.Select("select * from Ward where Code=1").at(0).size(), 4U);
  database.Run("drop table Ward");
  EXPECT_EQ(database.Refusal("select * from Ward where Code=1"), "-2147217865 Invalid object name 'Ward'.");
  database.Run("create table Ward (Code varchar(5))");
  EXPECT_EQ(database.Select("select * from Ward where Code=1"), (Rows{}));
}

TEST_F(RepeatedStatements, AValueThatBreaksTheStatementIsNeverSent) {
  EXPECT_EQ(RefusalOf([&] { Find("o'neil"); }), "-2147217900 Incorrect syntax near 'neil'.");
}

TEST(StatementCache, IsBounded) {
  embedded::StatementCache cache;
  for (int i = 0; i < 1000; ++i) cache.Add("key " + std::to_string(i), {});
  EXPECT_EQ(cache.size(), embedded::StatementCache::kMostStatements);
  EXPECT_NE(cache.Find("key 999"), nullptr);
  EXPECT_EQ(cache.Find("key 0"), nullptr);
}

TEST(StatementCache, KeepsWhatIsUsed) {
  embedded::StatementCache cache;
  cache.Add("used", {});
  for (int i = 0; i < 1000; ++i) {
    cache.Add("key " + std::to_string(i), {});
    ASSERT_NE(cache.Find("used"), nullptr) << i;
  }
}

TEST(StatementKeys, LeaveOutTheValuesAlone) {
  embedded::StatementKey key;
  const auto of = [&](const SqlText& statement) { return std::string(key.WithoutValues(statement)); };
  EXPECT_EQ(of(sql("a=", quoted("x"), ",", bare("1"))), of(sql("a=", quoted("yz"), ",", bare("234"))));
  EXPECT_NE(of(sql("a=", quoted("x"))), of(sql("a=", quoted("x%"))));
  EXPECT_NE(of(sql("a=", bare("1"))), of(sql("a=", bare("1.5"))));
  EXPECT_NE(of(sql("a=", bare("x"))), of(sql("a=", bare("y"))));
  EXPECT_NE(of(sql("a=", bare("1"))), of(sql("a=1")));
  EXPECT_NE(of(sql("a=", quoted("1"))), of(WholeStatement("a='\x01"
                                                          "3'")))
      << "no text can pose as a parameter";
}

}  // namespace
}  // namespace ovindra
