// The child's road on a million children: the lists of those who wait, the details of one, and the save of a
// batch beside the same statements by hand.
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include "base/controls/buttons.h"
#include "base/controls/grid.h"
#include "bench/beside.h"
#include "bench/desk.h"

namespace ovindra::bench {
namespace {

constexpr const char* kProgramme = "GRANT 2016";
constexpr const char* kLocation = "ANGANWADI CENTER";
constexpr int kBatch = 50;

constexpr const char* kNotScreened = "a.Screened='N'";
constexpr const char* kNotExamined =
    "a.Screened='Y' and a.Condition='D' and a.Enroll_No not in (select Enroll_No from Child_Record)";

/// The anganwadi screening center with the most children of that kind.
std::string FullestCenter(const std::string& children) {
  ByHand by_hand;
  sqlite3_stmt* statement = by_hand.Prepare(
      "select b.Center_Name from Enroll_Master a join Center_Master1 b on a.Center_ID=b.Center_ID where "
      "a.Enroll_No like 'A%' and " +
      children + " group by b.Center_Name order by count(*) desc limit 1");
  if (sqlite3_step(statement) != SQLITE_ROW) throw std::runtime_error("no child waits");
  return reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
}

/// A form of the road with a center picked, and where its controls are.
struct RoadForm {
  const char* form;
  const char* add;
  const char* programme;
  const char* type;
  const char* center;
  const char* list;
  const char* children;
};

constexpr RoadForm kScreening{"frmscreened", "Command1", "Combo8", "Combo4", "Combo5", "Command7", "Combo2"};
constexpr RoadForm kExamination{"frmchildrecord", "Command6",  "Combo14", "Combo12",
                                "Combo1",         "Command12", "Combo2"};

class RoadDesk : public Desk {
 public:
  RoadDesk(const RoadForm& names, const std::string& center) : Desk(names.form), names_(names) {
    Click(names.add);
    Pick(names.programme, kProgramme);
    Pick(names.type, kLocation);
    Pick(names.center, center);
  }

  void List() {
    form().Find(names_.list)->SetEnabled(true);
    Click(names_.list);
  }

  ComboBox& children() { return Find<ComboBox>(names_.children); }

 private:
  RoadForm names_;
};

void GetList(benchmark::State& state, const RoadForm& names, const char* waiting) {
  RoadDesk desk(names, FullestCenter(waiting));
  for (auto _ : state) desk.List();
  state.counters["children"] = desk.children().items().count();
}
BENCHMARK_CAPTURE(GetList, screening, kScreening, kNotScreened)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(GetList, examination, kExamination, kNotExamined)->Unit(benchmark::kMillisecond);

void GetDetails(benchmark::State& state, const RoadForm& names, const char* waiting) {
  RoadDesk desk(names, FullestCenter(waiting));
  desk.List();
  ComboBox& children = desk.children();
  int child = 0;
  for (auto _ : state) {
    desk.Pick(names.children, children.items().Text(child));
    child = (child + 1) % children.items().count();
  }
}
BENCHMARK_CAPTURE(GetDetails, screening, kScreening, kNotScreened)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(GetDetails, examination, kExamination, kNotExamined)->Unit(benchmark::kMillisecond);

/// A batch of screened children saved, every one a statement of its own with the look-ups before it.
void SaveBatch(benchmark::State& state) {
  RoadDesk desk(kScreening, FullestCenter(kNotScreened));
  desk.List();
  std::vector<std::string> children;
  for (int i = 0; i < kBatch; ++i) children.push_back(desk.children().items().Text(i));
  ByHand by_hand;
  sqlite3_stmt* update = by_hand.Prepare(
      "update Enroll_Master set "
      "Screened='Y',Screened_By='T',Condition='N',Screened_Date=1464652800,PreExam='',"
      "FOccupation='',Card='',VC='Y',ScreenedBy_Name='',ReferTo='',ScreenEntry='1' where Enroll_No=?1");
  auto& batch = desk.Find<Grid>("MSFlexGrid2");
  RunBeside(
      state,
      [&] {
        for (const std::string& child : children)
          batch.AddRow({child, "", "", "", "", "", "TRAINED TEACHER", "NORMAL", "", "", "", "Y", "", ""});
        desk.Find<Button>("Command2").SetEnabled(true);
        desk.Click("Command2", "Record Saved");
      },
      [&] {
        for (const std::string& child : children) {
          sqlite3_bind_text(update, 1, child.c_str(), -1, SQLITE_STATIC);
          if (sqlite3_step(update) != SQLITE_DONE) state.SkipWithError("the statement by hand failed");
          sqlite3_reset(update);
        }
      });
  for (const std::string& child : children) {
    OpenLarge()->Run(
        sql("update Enroll_Master set Screened='N',Screened_By=null,Condition=null,Screened_Date=null,"
            "ScreenEntry=null where Enroll_No=",
            quoted(child)));
  }
}
BENCHMARK(SaveBatch)->Unit(benchmark::kMillisecond)->UseManualTime()->MinTime(3);

}  // namespace
}  // namespace ovindra::bench

BENCHMARK_MAIN();
