// Reports on a million children, each beside its own statements fetched by hand from the same file.
#include <benchmark/benchmark.h>

#include "bench/beside.h"
#include "bench/desk.h"
#include "bench/same_by_hand.h"
#include "tools/setup/demo/demo.h"

namespace ovindra::bench {
namespace {

constexpr int kTenth = kMillion / 10;

/// The whole of the school consolidation, the sheet included.
void SchoolReport(benchmark::State& state) {
  Desk desk("frmconsolidation");
  desk.SetPeriod(kDemoFirstDay, kDemoLastDay);
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
    one->SetPeriod(kDemoFirstDay, kDemoLastDay);
    one->Pick("Combo1", "HOSPITAL");
  }
  RunBeside(
      state, [&] { desk.Click("Command1"); }, [&] { tenth.Click("Command1"); });
}
BENCHMARK(SchoolReportGrows)->Unit(benchmark::kMillisecond)->UseManualTime()->MinTime(10);

}  // namespace
}  // namespace ovindra::bench

BENCHMARK_MAIN();
