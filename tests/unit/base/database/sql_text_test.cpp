#include "base/database/sql_text.h"

#include <gtest/gtest.h>

#include "base/controls/text_box.h"
#include "base/database/database_error.h"
#include "tests/unit/base/controls/test_form.h"

namespace ovindra {
namespace {

std::string RefusalOf(const SqlText& statement) {
  return statement.refusal() ? statement.refusal()->text() : std::string("none");
}

TEST(SqlTexts, AreTheFragmentsAndTheValuesByteForByte) {
  const SqlText statement = sql("select a from T where n=", quoted(" x "), " and m like ", quoted("MO", "%"),
                                " and c=", bare("5"), " and d=", bare(""));
  EXPECT_EQ(statement.text(), "select a from T where n=' x ' and m like 'MO%' and c=5 and d=");
  EXPECT_EQ(RefusalOf(statement), "none");
  ASSERT_EQ(statement.values().size(), 4U);
  const ValuePlace& like = statement.values()[1];
  EXPECT_EQ(statement.text().substr(like.offset, like.length), "MO%");
}

TEST(SqlTexts, AControlGivesItsTrimmedText) {
  QuietMachine machine;
  TestForm form(machine);
  TextBox box(form, "Text1", "");
  box.SetText("  ASHA DEVI ");
  EXPECT_EQ(sql(quoted(box)).text(), "'ASHA DEVI'");
}

TEST(SqlTexts, JoinedStatementsKeepThePlacesOfTheirValues) {
  const SqlText inner = sql(quoted("a"), ",", bare("1"));
  const SqlText statement = sql("values(", inner, ")");
  ASSERT_EQ(statement.values().size(), 2U);
  EXPECT_EQ(statement.text().substr(statement.values()[1].offset, 1), "1");
  EXPECT_EQ(RefusalOf(sql("values(", sql(quoted("o'neil")), ")")), "Incorrect syntax near 'neil'.");
}

struct Broken {
  const char* value;
  const char* refusal;
};

TEST(SqlTexts, AQuoteInAValueIsRefusedInTheServersWords) {
  const Broken cases[] = {
      {"O'NEIL", "Incorrect syntax near 'NEIL'."},
      {"x' or '1'='1", "Incorrect syntax near 'or'."},
      {"x'; drop table T --", "Incorrect syntax near ';'."},
      {"'", "Unclosed quotation mark after the character string '''."},
      {"tail'", "Unclosed quotation mark after the character string 'tail''."},
  };
  for (const Broken& row : cases) {
    EXPECT_EQ(RefusalOf(sql("select a from T where n=", quoted(row.value))), row.refusal) << row.value;
  }
}

TEST(SqlTexts, ABareValueOfMoreThanOneTokenIsRefused) {
  for (const char* value : {"1 or 1=1", "1;drop", "(select 1)", "a,b", "1--", "'x'", "1/*", "[a]", "é"}) {
    EXPECT_NE(RefusalOf(sql("delete from T where c=", bare(value))), "none") << value;
  }
  for (const char* value : {"", "12", "-1.5", "False", "A_7", "+2", "1e5"}) {
    EXPECT_EQ(RefusalOf(sql("delete from T where c=", bare(value))), "none") << value;
  }
  EXPECT_EQ(RefusalOf(sql("delete from T where c=", bare("1 or 1=1"))), "Incorrect syntax near 'or'.");
}

TEST(SqlTexts, TheFirstBrokenValueIsTheOneTold) {
  EXPECT_EQ(RefusalOf(sql("values(", quoted("a'b"), ",", bare("1;2"), ")")), "Incorrect syntax near 'b'.");
  EXPECT_EQ(RefusalOf(sql("values(", bare("1;2"), ",", bare("3,4"), ")")), "Incorrect syntax near ';'.");
}

}  // namespace
}  // namespace ovindra
