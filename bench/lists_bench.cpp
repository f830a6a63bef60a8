// The lists of the report forms on a million children, each beside its own statements fetched by hand from
// the same files.
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include <benchmark/benchmark.h>

#include "app/freed_memory.h"
#include "base/controls/report_sheet.h"
#include "bench/beside.h"
#include "bench/desk.h"
#include "bench/peak_memory.h"
#include "bench/same_by_hand.h"
#include "tools/setup/demo/demo.h"

namespace ovindra::bench {
namespace {

struct Pick {
  std::string_view list;
  std::string_view entry;
};

/// What is chosen on the form before the button.
struct Choice {
  std::initializer_list<Pick> picks;
  std::string_view option{};
  bool by_state = false;  // the second tab
};

using Period = std::pair<Date, Date>;
constexpr Period kTwoYears{kDemoFirstDay, kDemoLastDay};
constexpr Date Day(int month, int day) {
  return {std::chrono::year(2015), std::chrono::month(static_cast<unsigned>(month)),
          std::chrono::day(static_cast<unsigned>(day))};
}
constexpr Period kQuarter{Day(7, 1), Day(9, 30)};

struct List {
  const char* name;
  std::string_view form;
  const Period* period;  // nullptr on a form without one
  Choice choice;
  std::string_view button;
  std::string_view message{};
};

constexpr Pick kSankulsBlock{"Combo2", "MOTIPUR"};
constexpr Pick kSankul{"Combo1", "MOTIPUR SANKUL"};
constexpr Pick kHospital{"Combo1", "HOSPITAL"};
constexpr Pick kAnganwadi{"Combo1", "ANGANWADI CENTER"};
constexpr Pick kBlock{"Combo1", "MOTIPUR"};
constexpr Pick kCampState{"Combo2", "BIHAR"};
constexpr Pick kCampHospital{"Combo4", "HOSPITAL"};
constexpr Pick kGrant{"Combo4", "GRANT 2016"};
constexpr Pick kSpectacles{"Combo3", "SPECTACLE PRESCRIBED"};
constexpr Pick kVision{"Combo1", "VISION CENTER"};
constexpr Pick kVisionCenter{"Combo2", "MOTIPUR VISION CENTER"};
constexpr Pick kTeachers{"Combo2", "TEACHER"};
constexpr std::string_view kSurgeons = "Option2";

const List kLists[] = {
    {"SankulRegister", "frmsankulwiserpt", nullptr, {{kSankulsBlock, kSankul}}, "Command1"},
    {"SankulNil", "frmsankulwiserpt", nullptr, {{kSankulsBlock, kSankul}}, "Command5", "No. Any Nill School"},
    {"Enrolled", "frmenrollrpt", &kTwoYears, {{kHospital}}, "Command1"},
    {"Defected", "frmdefected", &kTwoYears, {{kHospital}}, "Command1"},
    {"DefectedSurgeons", "frmdefected", &kTwoYears, {{kHospital}, kSurgeons}, "Command1"},
    {"DefectedGrant", "frmdefected", &kTwoYears, {{kAnganwadi}}, "Command7"},
    {"DefectedSpreadsheet", "frmdefected", &kTwoYears, {{kHospital}}, "Command5"},
    {"IndividualChildren", "Form3", &kQuarter, {{kBlock}}, "Command1"},
    {"ReferredOfBlock", "frmreferallist", &kTwoYears, {{kBlock, kCampHospital}}, "Command1"},
    {"ReferredOfState", "frmreferallist", &kTwoYears, {{kCampState, kCampHospital}, {}, true}, "Command1"},
    {"ReferredSpectacles",
     "frmreferallist",
     &kTwoYears,
     {{kCampState, kCampHospital, kSpectacles}, {}, true},
     "Command1"},
    {"ReferredSurgeons",
     "frmreferallist",
     &kTwoYears,
     {{kCampState, kCampHospital, kSpectacles}, kSurgeons, true},
     "Command1"},
    {"SpectaclesOfBlock", "frmspectacle", &kTwoYears, {{kBlock, kCampHospital}}, "Command1"},
    {"SpectaclesOfState", "frmspectacle", &kTwoYears, {{kCampState, kCampHospital}, {}, true}, "Command1"},
    {"SpectaclesSurgeons",
     "frmspectacle",
     &kTwoYears,
     {{kCampState, kCampHospital}, kSurgeons, true},
     "Command1"},
    {"SpectaclesBySex", "frmspectacle", &kTwoYears, {{kCampState, kCampHospital}, {}, true}, "Command5"},
    {"Turnup", "frmturnup", &kTwoYears, {{kHospital, {"Combo2", "MOTIPUR"}}}, "Command1"},
    {"PowerOfLocation", "frmspectaclepwr", &kTwoYears, {{kHospital}}, "Command1"},
    {"PowerOfBlock", "frmspectaclepwr", &kTwoYears, {{kHospital, {"Combo3", "MOTIPUR"}}}, "Command1"},
    {"PowerOfProgramme", "frmspectaclepwr", &kQuarter, {{kGrant}}, "Command9"},
    {"EnrolledOfCenter", "frmenrolllist", &kTwoYears, {{kGrant, kVision, kVisionCenter}}, "Command1"},
    {"ScreenedOfCenter", "frmscreenedlist", &kTwoYears, {{kVision, kVisionCenter}}, "Command1"},
    {"ScreenedDefected", "frmscreenedlist", &kTwoYears, {{kVision, kVisionCenter}, "Option3"}, "Command1"},
    {"MissedOfSchool", "Form1", nullptr, {{{"Combo3", "TARAGANJ HIGH SCHOOL"}}}, "Command1"},
    {"PersonsOfSchool",
     "frmtrainedPerlist",
     &kTwoYears,
     {{kTeachers, {"Combo1", "KHAJPATTI 78 HIGH SCHOOL"}}},
     "Command1"},
    {"PersonsOfBlock", "frmtrainedPerlist", &kTwoYears, {{kTeachers, {"Combo3", "MOTIPUR"}}}, "Command5"},
    {"PersonsOfProgramme", "frmtrainedPerlist", &kTwoYears, {{kTeachers, kGrant}}, "Command7"},
};

void Choose(Desk& desk, const List& list) {
  if (list.period != nullptr) desk.SetPeriod(list.period->first, list.period->second);
  if (list.choice.by_state) desk.SelectTab(1);
  for (const Pick& pick : list.choice.picks) desk.Pick(pick.list, pick.entry);
  if (!list.choice.option.empty()) desk.SwitchOn(list.choice.option);
}

void Report(benchmark::State& state, Desk& desk, std::string_view button, std::string_view message = {}) {
  desk.TakeStatements();
  desk.Press(button, message);
  SameByHand same(desk.TakeStatements());
  SameByHand same_of_hospital(desk.TakeHospitalStatements(), "ward.db");
  state.counters["rows"] = desk.Find<ReportSheet>("F1Book1").workbook().last_row();
  RunBeside(
      state, [&] { desk.Press(button, message); },
      [&] {
        same.Run();
        same_of_hospital.Run();
      });
}

void WholeList(benchmark::State& state, const List& list) {
  Desk desk(list.form);
  Choose(desk, list);
  Report(state, desk, list.button, list.message);
}

/// A programme whose defected children at the anganwadi centers are 100,000; a tenth of them were examined in
/// the shorter period.
constexpr int kLongListChildren = 2'400'000;
constexpr Period kSevenWeeks{Day(7, 1), Day(8, 22)};

void GetDefected(Desk& desk, const Period& period) {
  Choose(desk, {"", "frmdefected", &period, {{kAnganwadi}}, {}});
  desk.Press("Command1");
}

/// The long list beside a tenth of it: the ratio is what ten times the list costs. The memory is that of the
/// whole process after one long list.
void LongDefectedList(benchmark::State& state) {
  LargeFolder(kLongListChildren);
  state.counters["peak_MiB"] = PeakMemory([] {
    Desk desk("frmdefected", kLongListChildren);
    GetDefected(desk, kTwoYears);
  });
  Desk desk("frmdefected", kLongListChildren);
  Desk tenth("frmdefected", kLongListChildren);
  GetDefected(desk, kTwoYears);
  GetDefected(tenth, kSevenWeeks);
  state.counters["rows"] = desk.Find<ReportSheet>("F1Book1").workbook().last_row();
  state.counters["tenth_rows"] = tenth.Find<ReportSheet>("F1Book1").workbook().last_row();
  RunBeside(
      state, [&] { desk.Press("Command1"); }, [&] { tenth.Press("Command1"); });
}
BENCHMARK(LongDefectedList)->Unit(benchmark::kMillisecond)->UseManualTime()->MinTime(10);

}  // namespace
}  // namespace ovindra::bench

int main(int argc, char** argv) {
  using namespace ovindra::bench;
  ovindra::KeepFreedMemory();
  for (const List& list : kLists) {
    benchmark::RegisterBenchmark(list.name, [&list](benchmark::State& state) { WholeList(state, list); })
        ->Unit(benchmark::kMillisecond)
        ->UseManualTime()
        ->MinTime(3);
  }
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
