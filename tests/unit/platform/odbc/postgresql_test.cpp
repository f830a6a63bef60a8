// The client on a real server: what it reads, what it says of refusals, what is left when the server goes.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/platform/odbc/data_source.h"

namespace ovindra {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

/// A table of its own for each test.
class Server : public testing::Test {
 protected:
  Server() {
    Ask(*session_, "drop table if exists Child");
    Ask(*session_,
        "create table Child (No varchar(20) not null primary key,Name varchar(100),Age int,"
        "Seen timestamp,Weight float,Share numeric(6,2))");
  }

  std::string ErrorOfStatement(const std::string& statement) {
    return ErrorOf([&] { Ask(*session_, statement); });
  }
  std::int64_t Count() { return Ask(*session_, "select count(*) as Total from Child")["Total"].AsInteger(); }

  std::unique_ptr<OdbcSession> session_ = Connected("ZQR");
};

TEST_F(Server, FieldsAreWhatTheirColumnsAreDeclaredAs) {
  Ask(*session_, "insert into Child values ('A1','12',7,'05/04/2016 13:45:10',2.5,1234.50)");
  Ask(*session_, "insert into Child values ('A2',null,null,null,null,null)");
  Recordset rows = Ask(*session_, "select * from Child order by No");
  ASSERT_EQ(rows.row_count(), 2u);
  EXPECT_EQ(rows["name"].kind(), FieldKind::kText);
  EXPECT_EQ(rows["AGE"].kind(), FieldKind::kInteger);
  EXPECT_EQ(rows["Age"].AsInteger(), 7);
  EXPECT_EQ(rows["Seen"].kind(), FieldKind::kMoment);
  EXPECT_EQ(YearFirst(rows["Seen"].AsMoment()), "2016-05-04 13:45:10");
  EXPECT_EQ(rows["Weight"].AsText(), "2.5");
  EXPECT_EQ(rows["Share"].AsText(), "1234.5");
  rows.MoveNext();
  EXPECT_EQ(rows["No"].AsText(), "A2");
  for (const char* column : {"Name", "Age", "Seen", "Weight", "Share"})
    EXPECT_TRUE(rows[column].IsNull()) << column;
}

TEST_F(Server, WholeNumbersOfAnySizeStayWhole) {
  const Recordset row = Ask(*session_,
                            "select 9007199254740993::bigint as Long,-1::smallint as Short,"
                            "cast(12345678901234567 as numeric(18,0)) as Sum");
  EXPECT_EQ(row["Long"].AsText(), "9007199254740993");
  EXPECT_EQ(row["Short"].AsText(), "-1");
  EXPECT_EQ(row["Sum"].AsText(), "12345678901234567");
}

TEST_F(Server, EveryScriptComesBackAsItWasSent) {
  for (const std::string name : {"Jürgen Größmann-Ångström", "अनिता देवी शर्मा", "محمد", "李小龍", "𝄞𐍈", ""}) {
    Ask(*session_, "delete from Child");
    Ask(*session_, "insert into Child (No,Name) values ('1','" + name + "')");
    EXPECT_EQ(Ask(*session_, "select Name from Child where Name='" + name + "'")["Name"].AsText(), name);
  }
  // The column's name is text as well.
  EXPECT_EQ(Ask(*session_, "select 1 as \"Größe\"").columns().front(), "Größe");
}

TEST_F(Server, LongTextsAreReadInPiecesWithoutASeam) {
  // A piece holds 1023 characters; the clef takes two of them.
  for (const int length : {1022, 1023, 1024, 2046, 2047, 100'000}) {
    const std::string count = std::to_string(length);
    std::string statement = "select repeat('अ',";
    statement += count;
    statement += ")||'|' as One,'x'||repeat('𝄞',";
    statement += count;
    statement += ") as Two";
    const Recordset row = Ask(*session_, statement);
    std::string one;
    std::string two = "x";
    for (int i = 0; i < length; ++i) {
      one += "अ";
      two += "𝄞";
    }
    EXPECT_TRUE(row["One"].AsText() == one + "|") << length;
    EXPECT_TRUE(row["Two"].AsText() == two) << length;
  }
}

TEST_F(Server, ALongResultIsReadToItsEndAtOnce) {
  constexpr int kRows = 50'000;
  for (const char* source : {"ZQR", "slow"}) {
    const auto session = Connected(source);
    Recordset rows =
        Ask(*session, "select i,'child '||i as Name from generate_series(1,50000) as i order by i");
    ASSERT_EQ(rows.row_count(), static_cast<std::size_t>(kRows)) << source;
    // Another statement runs while the rows are walked.
    for (int i = 1; i <= kRows; ++i, rows.MoveNext()) {
      if (i % 20'000 == 0) Ask(*session, "select 1");
      ASSERT_EQ(rows["Name"].RawText(), "child " + std::to_string(i)) << source;
    }
    EXPECT_TRUE(rows.Eof());
  }
}

TEST_F(Server, ChangesTellHowManyRows) {
  EXPECT_EQ(Ask(*session_, "insert into Child (No) values ('1'),('2'),('3')").affected_rows(), 3);
  EXPECT_EQ(Ask(*session_, "update Child set Age=1 where No<>'1'").affected_rows(), 2);
  EXPECT_EQ(Ask(*session_, "update Child set Age=1 where No='9'").affected_rows(), 0);
  EXPECT_FALSE(Ask(*session_, "delete from Child where No='9'").HasColumns());
  EXPECT_TRUE(Ask(*session_, "select No from Child where No='9'").HasColumns());
}

TEST_F(Server, RefusalsBearTheNumberOfTheirClassAndTheServersText) {
  Ask(*session_, "insert into Child (No) values ('1')");
  const auto refused = [&](const std::string& statement, Refusal kind, const std::string& text) {
    const std::string error = ErrorOfStatement(statement);
    EXPECT_THAT(error, StartsWith(Number(kind) + " ")) << statement;
    EXPECT_THAT(error, HasSubstr(text)) << statement;
    EXPECT_THAT(error, testing::Not(HasSubstr("["))) << statement;
  };
  refused("selct 1", Refusal::kSyntax, "selct");
  refused("select Nme from Child", Refusal::kSyntax, "nme");
  refused("create table Child (No int)", Refusal::kSyntax, "already exists");
  refused("select 1 from Chld", Refusal::kUnknownTable, "chld");
  refused("insert into Child (No) values ('1')", Refusal::kConstraint, "duplicate key");
  refused("insert into Child (Name) values ('A')", Refusal::kConstraint, "null");
  refused("insert into Child (No,Age) values ('2','5.')", Refusal::kConversion, "5.");
  refused("insert into Child (No,Seen) values ('2','31/05/2016')", Refusal::kConversion, "31/05/2016");
  refused("insert into Child (No) values ('123456789012345678901')", Refusal::kTruncation, "20");
  refused("select 1/0", Refusal::kOther, "zero");
  EXPECT_EQ(Count(), 1);
}

TEST_F(Server, AnEmptyOrBrokenStatementIsNotSent) {
  const auto closed = ErrorOf([&] { session_->Run(sql(" ")); });
  EXPECT_EQ(closed, "-2147217908 Command text was not set for the command object.");
  EXPECT_THAT(ErrorOf([&] { session_->Run(sql("delete from Child where No=", quoted("o'neil"))); }),
              HasSubstr("Incorrect syntax near 'neil'"));
}

TEST_F(Server, AFailedPieceOfATransactionTakesAllOfItBack) {
  session_->RunTogether([&] { Ask(*session_, "insert into Child (No) values ('1')"); });
  EXPECT_NE(ErrorOf([&] {
              session_->RunTogether([&] {
                Ask(*session_, "insert into Child (No) values ('2')");
                Ask(*session_, "insert into Child (No) values ('1')");
              });
            }),
            "none");
  EXPECT_EQ(Ask(*Connected("ZQR"), "select No from Child")["No"].AsText(), "1");
  EXPECT_EQ(Count(), 1);
  // From here on each statement stands by itself again.
  Ask(*session_, "insert into Child (No) values ('3')");
  EXPECT_EQ(Ask(*Connected("ZQR"), "select count(*) as Total from Child")["Total"].AsInteger(), 2);
}

TEST_F(Server, AServerThatGoesInTheMiddleOfAResultIsAnErrorAndNoShortResult) {
  const auto session = Connected("slow");
  const std::string lost = ErrorOf([&] {
    Ask(*session,
        "select i,case when i=5000 then pg_terminate_backend(pg_backend_pid())::text end as Gone "
        "from generate_series(1,10000) as i");
  });
  EXPECT_THAT(lost, StartsWith(Number(Refusal::kOther) + " "));
  EXPECT_GT(lost.size(), Number(Refusal::kOther).size() + 5) << lost;
  // What comes after says so too, and the server serves others.
  EXPECT_THAT(ErrorOf([&] { Ask(*session, "select 1"); }), StartsWith(Number(Refusal::kOther) + " "));
  EXPECT_EQ(Count(), 0);
}

TEST_F(Server, AServerThatGoesInATransactionKeepsNothingOfIt) {
  const auto session = Connected("slow");
  EXPECT_NE(ErrorOf([&] {
              session->RunTogether([&] {
                Ask(*session, "insert into Child (No) values ('1')");
                Ask(*session, "select pg_terminate_backend(pg_backend_pid())");
              });
            }),
            "none");
  EXPECT_EQ(Count(), 0);
}

TEST_F(Server, AWrongPasswordIsToldInTheServersWords) {
  const std::string error = ErrorOf([] { OdbcSession::Connect("DSN=ZQR;user ID=sa;pwd=wrong;"); });
  EXPECT_THAT(error, StartsWith(Number(Refusal::kOther) + " "));
  EXPECT_THAT(error, HasSubstr("password authentication failed for user \"sa\""));
}

}  // namespace
}  // namespace ovindra
