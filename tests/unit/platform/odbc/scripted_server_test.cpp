// The client, the driver of Transact-SQL servers and its protocol; the answers are scripted.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/platform/odbc/data_source.h"

namespace ovindra {
namespace {

using testing::StartsWith;

class TransactSqlDriver : public testing::Test {
 protected:
  std::vector<std::string> Sent() {
    std::vector<std::string> sent;
    for (Recordset rows = Ask(*session_, "select sent"); !rows.Eof(); rows.MoveNext())
      sent.push_back(rows["Text"].AsText());
    return sent;
  }
  std::string ErrorOfStatement(const std::string& statement) {
    return ErrorOf([&] { Ask(*session_, statement); });
  }

  std::unique_ptr<OdbcSession> session_ = Connected("scripted");
};

TEST_F(TransactSqlDriver, SendsUserPasswordAndStatementsAsTheyStand) {
  const std::string statement =
      "update Child set Name='Jürgen अनिता 𝄞',Age=5 where Seen between'05/01/2016'and'05/31/2016'and No like "
      "'A%'";
  EXPECT_EQ(Ask(*session_, statement).affected_rows(), 3);
  const std::vector<std::string> sent = Sent();
  ASSERT_GE(sent.size(), 5u);
  EXPECT_EQ(sent[0], "sa");
  EXPECT_EQ(sent[1], "nova..381");
  EXPECT_EQ(sent[sent.size() - 2], "set dateformat mdy");
  EXPECT_EQ(sent.back(), statement);
}

TEST_F(TransactSqlDriver, ReadsTheTypesOfTheSchema) {
  Recordset rows = Ask(*session_, "select types");
  ASSERT_EQ(rows.row_count(), 2u);
  EXPECT_EQ(rows["No"].kind(), FieldKind::kInteger);
  EXPECT_EQ(rows["No"].AsInteger(), 7);
  EXPECT_EQ(rows["Sum"].AsText(), "12345678901234567");
  EXPECT_EQ(rows["Seen"].kind(), FieldKind::kMoment);
  EXPECT_EQ(YearFirst(rows["Seen"].AsMoment()), "2016-05-31 13:45:10");
  EXPECT_EQ(rows["Name"].AsText(), "Größe");
  EXPECT_EQ(rows["Wide"].AsText(), "अनिता 𝄞");
  rows.MoveNext();
  for (const std::string& column : rows.columns()) EXPECT_TRUE(rows[column].IsNull()) << column;
}

TEST_F(TransactSqlDriver, TellsRefusalsInTheServersWordsWithTheNumberOfTheirClass) {
  const auto refused = [&](int number, Refusal kind, const std::string& text) {
    EXPECT_EQ(ErrorOfStatement("refuse " + std::to_string(number)), Number(kind) + " " + text);
  };
  refused(208, Refusal::kUnknownTable, "Invalid object name 'Chld'.");
  refused(207, Refusal::kSyntax, "Invalid column name 'Nme'.");
  refused(102, Refusal::kSyntax, "Incorrect syntax near 'selct'.");
  refused(2714, Refusal::kSyntax, "There is already an object named 'Temp61' in the database.");
  refused(
      2627, Refusal::kConstraint,
      "Violation of PRIMARY KEY constraint 'PK_Child'. Cannot insert duplicate key in object 'dbo.Child'.");
  refused(
      515, Refusal::kConstraint,
      "Cannot insert the value NULL into column 'No', table 'ZQR.dbo.Child'; column does not allow nulls.");
  refused(245, Refusal::kConversion,
          "Conversion failed when converting the varchar value '5.' to data type int.");
  refused(241, Refusal::kConversion,
          "Conversion failed when converting date and/or time from character string.");
  refused(8152, Refusal::kTruncation, "String or binary data would be truncated.");
  refused(8134, Refusal::kOther, "Divide by zero error encountered.");
  // The connection serves on.
  EXPECT_EQ(Ask(*session_, "select types").row_count(), 2u);
}

TEST_F(TransactSqlDriver, AFailureBehindTheFirstResultIsNotOverlooked) {
  EXPECT_EQ(ErrorOfStatement("refuse late"), Number(Refusal::kOther) + " Divide by zero error encountered.");
}

TEST_F(TransactSqlDriver, AConnectionThatGoesInTheMiddleOfAResultIsAnError) {
  EXPECT_THAT(ErrorOfStatement("vanish"), StartsWith(Number(Refusal::kOther) + " "));
  EXPECT_THAT(ErrorOfStatement("select types"), StartsWith(Number(Refusal::kOther) + " "));
}

}  // namespace
}  // namespace ovindra
