// Moving a database to a server. The server of these tests is the embedded engine, which knows the dialect.
#include "tools/setup/move.h"

#include <gtest/gtest.h>

#include "base/database/database_error.h"
#include "core/schema/schema.h"
#include "tests/unit/tools/setup/test_database.h"
#include "tools/setup/database_files.h"
#include "tools/setup/demo/demo.h"
#include "tools/setup/schema_tables.h"
#include "tools/setup/statement.h"

namespace ovindra {
namespace {

/// A server that keeps the texts of what it is sent, and may go in the middle.
class RecordedServer : public TransactionSession {
 public:
  Recordset Run(const SqlText& statement) override {
    sent.push_back(statement.text());
    if (!fails_at.empty() && statement.text().find(fails_at) != std::string::npos)
      throw ServerRefusal(Refusal::kOther, "Communication link failure");
    return database->Run(statement);
  }
  void RunTogether(const std::function<void()>& work) override {
    database->RunTogether(work);
    if (fails_at == "commit") throw ServerRefusal(Refusal::kOther, "Communication link failure");
  }

  std::unique_ptr<EmbeddedDatabase> database = FreshDatabase(Source::kScreening);
  std::vector<std::string> sent;
  std::string fails_at;
};

class MoveToServer : public testing::Test {
 protected:
  std::vector<MovedTable> Move() { return MoveRows(*source_, server_, *pristine_, ScreeningSchema()); }
  std::string ErrorOfMove() {
    try {
      Move();
    } catch (const RuntimeError& error) {
      return error.text();
    }
    return "none";
  }
  void Change(const std::string& statement) { source_->Run(WholeStatement(statement)); }
  std::string There(const std::string& statement) { return RowsOf(*server_.database, statement); }

  /// Every row of every table, as one text.
  static std::string AllRows(Session& session) {
    std::string all;
    for (const SchemaTable& table : TablesOf(ScreeningSchema()))
      all.append(table.name)
          .append(":")
          .append(RowsOf(session, "select * from " + std::string(table.name) + " order by 1,2")) += '\n';
    return all;
  }

  std::unique_ptr<EmbeddedDatabase> source_ = FreshDatabase(Source::kScreening);
  std::unique_ptr<EmbeddedDatabase> pristine_ = FreshDatabase(Source::kScreening);
  RecordedServer server_;
};

TEST_F(MoveToServer, LeavesNothingBehind) {
  const auto hospital = FreshDatabase(Source::kHospital);
  source_->RunTogether([&] { FillDemo(*source_, *hospital, DemoScale::ForChildren(200)); });
  const std::vector<MovedTable> moved = Move();
  EXPECT_EQ(moved.size(), TablesOf(ScreeningSchema()).size() - 1);
  EXPECT_EQ(AllRows(*server_.database), AllRows(*source_));
  for (const MovedTable& table : moved) EXPECT_EQ(table.rows_here, table.rows_there) << table.name;
  EXPECT_EQ(moved.front().name, "Enroll_Master");
  EXPECT_EQ(moved.front().rows_here, 200);
}

TEST_F(MoveToServer, KeepsTextsAsTheyAre) {
  Change("insert into Country_Master (Country_Name) values ('O''NEIL''S ''LAND''')");
  Change("insert into Country_Master (Country_Name) values ('''')");
  Change("insert into Country_Master (Country_Name) values ('भारत; -- /* 🏥')");
  Change("insert into Country_Master (Country_Name) values ('')");
  Change("insert into Country_Master (Country_Name) values (null)");
  Change(
      "insert into Child_Record (Child_RecordNo,Enroll_No,Record_Date) values ('1','A1','2016-05-04 "
      "10:20:30')");
  Move();
  EXPECT_EQ(AllRows(*server_.database), AllRows(*source_));
  EXPECT_EQ(There("select Country_Name from Country_Master where Country_Code<4"),
            "O'NEIL'S 'LAND';';भारत; -- /* 🏥");
}

TEST_F(MoveToServer, KeepsTheNumbersThatTheDatabaseHasGiven) {
  for (int i = 0; i < 5; ++i) Change("insert into Sankul_Master (Sankul_Name) values ('S')");
  Change("delete from Sankul_Master where Sankul_ID in (1,3,4,5)");
  Move();
  EXPECT_EQ(There("select Sankul_ID from Sankul_Master"), "2");
  // The next number is new here and there, although the rows of the last ones are gone.
  for (Session* session : {static_cast<Session*>(source_.get()), static_cast<Session*>(&server_)}) {
    session->Run(WholeStatement("insert into Sankul_Master (Sankul_Name) values ('NEW')"));
    EXPECT_EQ(RowsOf(*session, "select Sankul_ID from Sankul_Master where Sankul_Name='NEW'"), "6");
    session->Run(WholeStatement("insert into Country_Master (Country_Name) values ('NEW')"));
    EXPECT_EQ(RowsOf(*session, "select Country_Code from Country_Master"), "1");
  }
}

TEST_F(MoveToServer, SwitchesTheNumberingOffAgain) {
  Change("insert into Country_Master (Country_Name) values ('INDIA')");
  Move();
  const auto on =
      std::find(server_.sent.begin(), server_.sent.end(), "set identity_insert Country_Master on");
  ASSERT_NE(on, server_.sent.end());
  EXPECT_EQ(*(on + 1), "insert into Country_Master (Country_Code,Country_Name) values (1,'INDIA')");
  const auto off = std::find(on, server_.sent.end(), "set identity_insert Country_Master off");
  EXPECT_NE(off, server_.sent.end());
  for (const std::string& statement : server_.sent)
    EXPECT_EQ(statement.find("Center_Master1 (Center_ID"), std::string::npos) << statement;
}

TEST_F(MoveToServer, RefusesAServerThatHasRows) {
  server_.database->Run(WholeStatement("insert into Block_Master (Block_Name) values ('B')"));
  EXPECT_EQ(ErrorOfMove(),
            "The table Block_Master of the data source has rows already: 1. Nothing was moved.");
  server_.database = FreshDatabase(Source::kScreening);
  // Also where the rows that must exist have only changed.
  server_.database->Run(
      WholeStatement("update Running_Number set Control_Value=8 where RNControl_Code='ENROLL_NO'"));
  const std::string before = AllRows(*server_.database);
  EXPECT_EQ(ErrorOfMove(),
            "The table Running_Number of the data source has rows already: 6. Nothing was moved.");
  EXPECT_EQ(AllRows(*server_.database), before);
}

TEST_F(MoveToServer, RefusesAServerWithoutTheTables) {
  server_.database = EmbeddedDatabase::OpenInMemory();
  EXPECT_EQ(
      ErrorOfMove(),
      "The data source has no table Enroll_Master that can be read: Invalid object name 'Enroll_Master'. "
      "Run the script of ovindra-setup server-script on it first. Nothing was moved.");
}

TEST_F(MoveToServer, LeavesTheServerAsItWasWhenItFails) {
  Change("insert into Country_Master (Country_Name) values ('INDIA')");
  Change("insert into VA (VA_Text) values ('6/5')");
  const std::string here = AllRows(*source_);
  const std::string there = AllRows(*server_.database);
  server_.fails_at = "insert into VA ";
  EXPECT_EQ(ErrorOfMove(), "Communication link failure");
  EXPECT_EQ(AllRows(*server_.database), there);
  EXPECT_EQ(AllRows(*source_), here);
  server_.fails_at = "commit";
  EXPECT_EQ(ErrorOfMove(),
            "The server failed while it was told to keep the rows, so it holds all of them or none: "
            "Communication link failure");
}

TEST(SchemaTables, AreThoseOfTheScript) {
  const auto fresh = FreshDatabase(Source::kScreening);
  for (const SchemaTable& table : TablesOf(ScreeningSchema())) {
    std::vector<std::string> columns =
        Execute(*fresh, sql("select * from ", bare(table.name), " where 1=0")).columns();
    std::erase(columns, table.name == "Center_Master1" ? "Center_ID" : "");
    EXPECT_EQ(std::vector<std::string>(table.columns.begin(), table.columns.end()), columns) << table.name;
  }
  EXPECT_EQ(TablesOf(ScreeningSchema()).size(), 38u);
}

}  // namespace
}  // namespace ovindra
