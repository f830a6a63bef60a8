#include <filesystem>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include "platform/embedded/session/engine.h"
#include "test_database.h"

namespace ovindra {
namespace {

/// A database whose plans can be asked for.
class QueryPlans : public testing::Test {
 protected:
  QueryPlans() {
    sqlite3_open(":memory:", &handle_);
    engine_ = std::make_unique<embedded::Engine>(handle_, "", "ZQR");
    engine_->Run(
        WholeStatement("create table Child (No varchar(10) primary key, Name varchar(50), School "
                       "varchar(10), Seen varchar(1),"
                       "Day datetime, Age int) create index IX_School on Child(School) create index IX_Seen "
                       "on Child(Day) where "
                       "Seen='Y'"));
  }
  ~QueryPlans() override {
    engine_.reset();
    sqlite3_close(handle_);
  }

  std::string PlanOf(const SqlText& statement) {
    const std::string text = "explain query plan " + engine_->Translation(statement).front();
    sqlite3_stmt* handle = nullptr;
    EXPECT_EQ(sqlite3_prepare_v2(handle_, text.c_str(), -1, &handle, nullptr), SQLITE_OK) << text;
    std::string plan;
    while (sqlite3_step(handle) == SQLITE_ROW) {
      plan += std::string(plan.empty() ? "" : "; ") +
              reinterpret_cast<const char*>(sqlite3_column_text(handle, 3));
    }
    sqlite3_finalize(handle);
    return plan;
  }

  sqlite3* handle_ = nullptr;
  std::unique_ptr<embedded::Engine> engine_;
};

TEST_F(QueryPlans, SearchByIndex) {
  const std::string key = "SEARCH t1 USING INDEX sqlite_autoindex_Child_1 (No";
  EXPECT_EQ(PlanOf(sql("select * from Child where No=", quoted("A1"))), key + "=?)");
  EXPECT_EQ(PlanOf(sql("select * from Child where No like ", quoted("A", "%"))), key + ">? AND No<?)");
  EXPECT_EQ(PlanOf(sql("select * from Child where No like 'A%'")), key + ">? AND No<?)");
  EXPECT_EQ(PlanOf(sql("select * from Child where No like ", quoted("A_1%"))), key + ">? AND No<?)");
  EXPECT_EQ(PlanOf(sql("select * from Child where No like ", quoted("A1"))), key + "=?)");
  EXPECT_EQ(PlanOf(sql("select * from Child where No like ", quoted("%A"))), "SCAN t1");
  EXPECT_EQ(PlanOf(sql("select * from Child where School in (", quoted("A"), ",", quoted("B"), ")")),
            "SEARCH t1 USING INDEX IX_School (School=?)");
  EXPECT_EQ(PlanOf(sql("delete from Child where No=", quoted("A1"))), key + "=?)");
  EXPECT_EQ(PlanOf(sql("update Child set Age=", quoted("5"), " where No=", quoted("A1"))), key + "=?)");
}

TEST_F(QueryPlans, AFixedLiteralServesAPartialIndex) {
  EXPECT_EQ(PlanOf(sql("select count(*) from Child where Seen='Y' and Day between ", quoted("01/01/2016"),
                       " and ", quoted("12/31/2016"))),
            "SEARCH t1 USING INDEX IX_Seen (Day>? AND Day<?)");
}

TEST_F(QueryPlans, OrderByTheKeyNeedsNoSort) {
  EXPECT_EQ(PlanOf(sql("select * from Child order by No")), "SCAN t1 USING INDEX sqlite_autoindex_Child_1");
}

TEST_F(QueryPlans, ValuesBecomeParametersAndFragmentsStay) {
  EXPECT_EQ(engine_->Translation(
                sql("select Name from Child where Seen='Y'and Age=", bare("5"), "And Name=", quoted("X"))),
            (std::vector<std::string>{
                "SELECT t1.\"Name\" FROM \"Child\" AS t1 WHERE ((t1.\"Seen\"='Y') AND (t1.\"Age\"=?1) AND "
                "(t1.\"Name\"=?2))"}));
}

}  // namespace
}  // namespace ovindra
