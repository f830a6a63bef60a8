// The client on other drivers: a file's, and that of a Transact-SQL server which is not there.
#include <clocale>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/platform/odbc/data_source.h"

namespace ovindra {
namespace {

using testing::HasSubstr;

/// The driver has no wide functions, so the driver manager converts for it by the locale of the program.
class FileDriver : public testing::Test {
 protected:
  FileDriver() { std::setlocale(LC_CTYPE, "C.UTF-8"); }
  ~FileDriver() override { std::setlocale(LC_CTYPE, "C"); }
};

TEST_F(FileDriver, ReadsWhatItWrote) {
  const auto session = Connected("ward");
  Ask(*session, "drop table if exists icd");
  Ask(*session, "create table icd (code varchar(20) primary key,title varchar(200),coded datetime,days int)");
  Ask(*session, "insert into icd values ('H52.1','Kurzsichtigkeit – मायोपिया','2016-05-31 08:30:00',12)");
  Ask(*session, "insert into icd (code) values ('H53')");
  Recordset rows = Ask(*session, "select * from icd order by code");
  EXPECT_EQ(rows["title"].AsText(), "Kurzsichtigkeit – मायोपिया");
  EXPECT_EQ(rows["days"].AsInteger(), 12);
  EXPECT_EQ(YearFirst(rows["coded"].AsMoment()), "2016-05-31 08:30:00");
  rows.MoveNext();
  EXPECT_EQ(Trim(rows["code"]), "H53");
  EXPECT_TRUE(rows["coded"].IsNull() && rows["days"].IsNull() && rows["title"].IsNull());
  rows.MoveNext();
  EXPECT_TRUE(rows.Eof());
}

TEST_F(FileDriver, ReadsLongTexts) {
  const auto session = Connected("ward");
  Ask(*session, "drop table if exists notes");
  Ask(*session, "create table notes (note text)");
  std::string note;
  for (int i = 0; i < 30'000; ++i) note += "चश्मा ü ";
  Ask(*session, "insert into notes values ('" + note + "')");
  EXPECT_TRUE(Ask(*session, "select note from notes")["note"].AsText() == note);
}

TEST(DataSource, ANameThatNobodyKnowsIsToldInTheDriverManagersWords) {
  EXPECT_EQ(ErrorOf([] { Connected("elsewhere"); }),
            "-2147467259 Data source name not found and no default driver specified");
}

TEST(ServerDriver, SaysThatNobodyListens) {
  const std::string error = ErrorOf([] { Connected("refused"); });
  EXPECT_THAT(error, testing::StartsWith("-2147467259 "));
  EXPECT_THAT(error, HasSubstr("nable to connect"));
  EXPECT_THAT(error, testing::Not(HasSubstr("[")));
}

TEST(ServerDriver, SaysThatTheServersNameDoesNotResolve) {
  const std::string error = ErrorOf([] { Connected("nowhere"); });
  EXPECT_THAT(error, testing::StartsWith("-2147467259 "));
  EXPECT_THAT(error, HasSubstr("nable to connect"));
}

}  // namespace
}  // namespace ovindra
