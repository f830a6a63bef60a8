// Reports on a million children, each beside its own statements fetched by hand from the same file.
#include <regex>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include "base/controls/dates.h"
#include "bench/beside.h"
#include "bench/desk.h"
#include "tools/setup/demo/demo.h"

namespace ovindra::bench {
namespace {

constexpr int kTenth = kMillion / 10;

/// A statement as one would write it for SQLite: dates as the seconds that they are stored as, numbers by a
/// cast.
std::string WrittenForSqlite(const std::string& statement) {
  static const std::regex kDate("'(\\d\\d)/(\\d\\d)/(\\d\\d\\d\\d) ?'");
  static const std::regex kNumeric("convert\\(numeric,([A-Za-z_.]+)\\)");
  std::string text;
  auto rest = statement.cbegin();
  for (std::smatch date; std::regex_search(rest, statement.cend(), date, kDate); rest = date.suffix().first) {
    const auto seconds = ReadMoment(date.str(1) + "/" + date.str(2) + "/" + date.str(3)).value();
    text.append(date.prefix().first, date.prefix().second);
    text += " " + std::to_string(seconds.time_since_epoch().count()) + " ";
  }
  text.append(rest, statement.cend());
  return std::regex_replace(text, kNumeric, "cast($1 as integer)");
}

/// The statements that an action has sent, run by hand to their ends.
class SameByHand {
 public:
  explicit SameByHand(const std::vector<std::string>& statements) {
    for (const std::string& statement : statements)
      statements_.push_back(by_hand_.Prepare(WrittenForSqlite(statement)));
  }

  void Run() {
    for (sqlite3_stmt* statement : statements_) {
      while (sqlite3_step(statement) == SQLITE_ROW) {
        for (int column = 0; column < sqlite3_column_count(statement); ++column)
          benchmark::DoNotOptimize(sqlite3_column_text(statement, column));
      }
      sqlite3_reset(statement);
    }
  }

 private:
  ByHand by_hand_;
  std::vector<sqlite3_stmt*> statements_;
};

void SetPeriod(Desk& desk) {
  desk.Find<DatePicker>("DTPicker1").SetValue(kDemoFirstDay);
  desk.Find<DatePicker>("DTPicker2").SetValue(kDemoLastDay);
}

/// The whole of the school consolidation, the sheet included.
void SchoolReport(benchmark::State& state) {
  Desk desk("frmconsolidation");
  SetPeriod(desk);
  desk.Pick("Combo1", "HOSPITAL");
  desk.TakeStatements();
  desk.Click("Command1");
  SameByHand same(desk.TakeStatements());
  RunBeside(
      state, [&] { desk.Click("Command1"); }, [&] { same.Run(); });
}
BENCHMARK(SchoolReport)->Unit(benchmark::kMillisecond)->UseManualTime()->MinTime(10);

/// The same beside a tenth of the children: the ratio is what ten times the children cost.
void SchoolReportGrows(benchmark::State& state) {
  Desk desk("frmconsolidation");
  Desk tenth("frmconsolidation", kTenth);
  for (Desk* one : {&desk, &tenth}) {
    SetPeriod(*one);
    one->Pick("Combo1", "HOSPITAL");
  }
  RunBeside(
      state, [&] { desk.Click("Command1"); }, [&] { tenth.Click("Command1"); });
}
BENCHMARK(SchoolReportGrows)->Unit(benchmark::kMillisecond)->UseManualTime()->MinTime(10);

}  // namespace
}  // namespace ovindra::bench

BENCHMARK_MAIN();
