// The enrollment form on a million children, beside the same statements by hand. Each benchmark runs both in
// turn and reports the ratio of their medians, so that it holds when the machine's speed drifts.
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include "bench/beside.h"
#include "bench/desk.h"

namespace ovindra::bench {
namespace {

/// Picking a school fills the grid with its children.
void PickSchool(benchmark::State& state) {
  Desk desk("frmenroll");
  desk.Click("Command1");
  const auto database = OpenLarge();
  const std::string school = SchoolOfThreeHundred(*database);
  ByHand by_hand;
  sqlite3_stmt* statement = by_hand.Prepare(
      "select * from Enroll_Master a,School_Master b where a.School_ID=b.SC_ID and b.SC_Name=?1 order by "
      "Enroll_No");
  RunBeside(
      state, [&] { desk.Pick("Combo1", school); },
      [&] {
        sqlite3_bind_text(statement, 1, school.c_str(), -1, SQLITE_STATIC);
        while (sqlite3_step(statement) == SQLITE_ROW) {
        }
        sqlite3_reset(statement);
      });
}
BENCHMARK(PickSchool)->Unit(benchmark::kMillisecond)->UseManualTime()->MinTime(3);

/// The two statements of a save.
void SaveChild(benchmark::State& state) {
  const auto database = OpenLarge();
  ByHand by_hand;
  const std::string columns =
      "Enroll_No,Child_Name,Fname,Age,Gender,Class,Center_ID,Block_Code,District_Code,State_Code,Country_"
      "Code,"
      "Enroll_Date,School_ID,School_Going,Location_ID";
  sqlite3_stmt* insert =
      by_hand.Prepare("insert into Enroll_Master(" + columns +
                      ") values(?1,'ASHA','RAM',9,'M','4','1',1,1,1,1,1464652800,'SC1','Y','A')");
  sqlite3_stmt* update = by_hand.Prepare(
      "update Running_Number set Control_Value=Control_Value+1 where RNControl_Code='ENROLL_NO'");
  long number = 0;
  RunBeside(
      state,
      [&] {
        database->Run(
            sql("insert into Enroll_Master(Enroll_No,Child_Name,Fname,Age,Gender,Class,Center_ID,Block_Code,"
                "District_Code,State_Code,Country_Code,Enroll_Date,School_ID,School_Going,Location_ID) "
                "values(",
                quoted("BENCH" + std::to_string(++number)), ",", quoted("ASHA"), ",", quoted("RAM"), ",",
                quoted("9"), ",", quoted("M"), ",", quoted("4"), ",", quoted("1"), ",", bare("1"), ",",
                bare("1"), ",", bare("1"), ",", bare("1"), ",", quoted("05/31/2016"), ",", quoted("SC1", " "),
                ",", quoted("Y"), ",", quoted("A"), ")"));
        database->Run(
            sql("update Running_Number set Control_Value=Control_Value+1 where RNControl_Code='ENROLL_NO'"));
      },
      [&] {
        const std::string key = "BENCH" + std::to_string(++number);
        sqlite3_bind_text(insert, 1, key.c_str(), -1, SQLITE_STATIC);
        for (sqlite3_stmt* statement : {insert, update}) {
          if (sqlite3_step(statement) != SQLITE_DONE) state.SkipWithError("the statement by hand failed");
          sqlite3_reset(statement);
        }
      });
  database->Run(WholeStatement("delete from Enroll_Master where Enroll_No like 'BENCH%'"));
}
BENCHMARK(SaveChild)->Unit(benchmark::kMillisecond)->UseManualTime()->MinTime(3);

}  // namespace
}  // namespace ovindra::bench

BENCHMARK_MAIN();
