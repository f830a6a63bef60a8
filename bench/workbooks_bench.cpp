// Long lists written as workbooks, beside the tools that one would otherwise take for it. Each benchmark runs
// both in turn and reports the ratio of their medians.
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>

#include <benchmark/benchmark.h>
#include <xlsxwriter.h>

#include "bench/children_list.h"
#include "bench/median.h"
#include "bench/peak_memory.h"
#include "platform/office/office_files.h"

namespace ovindra::bench {
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr int kXlsRows = 60'000;
constexpr int kXlsxRows = 100'000;

template <typename Act>
double SecondsOf(Act act) {
  const auto start = Clock::now();
  act();
  return std::chrono::duration<double>(Clock::now() - start).count();
}

/// A folder of this program, where its files go.
const fs::path& Folder() {
  static const fs::path folder = [] {
    fs::create_directories(BENCH_FOLDER);
    return fs::path(BENCH_FOLDER);
  }();
  return folder;
}

void Report(benchmark::State& state, const std::vector<double>& ours, const std::vector<double>& others) {
  state.counters["ours_s"] = Median(ours);
  state.counters["other_s"] = Median(others);
  state.counters["ratio"] = Median(ours) / Median(others);
}

/// What the script says it took for the same table.
double SecondsOfXlwt(const fs::path& table) {
  const std::string command =
      "/usr/bin/python3 " WITH_XLWT " '" + table.string() + "' '" + (Folder() / "xlwt.xls").string() + "'";
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> out(popen(command.c_str(), "r"), pclose);
  double seconds = 0;
  return out != nullptr && std::fscanf(out.get(), "%lf", &seconds) == 1 ? seconds : 0;
}

void WriteXls(benchmark::State& state) {
  state.counters["peak_MiB"] =
      PeakMemory([] { office::WriteWorkbook(ChildrenList(kXlsRows), Folder() / "peak.xls"); });
  const Workbook workbook = ChildrenList(kXlsRows);
  const fs::path table = Folder() / "table.txt";
  std::ofstream lines(table);
  for (int row = 1; row <= kXlsRows; ++row) {
    for (int column = 1; column <= kListColumns; ++column)
      lines << workbook.Text(row, column) << (column == kListColumns ? '\n' : '\t');
  }
  lines.close();
  std::vector<double> ours;
  std::vector<double> others;
  for (auto _ : state) {
    ours.push_back(SecondsOf([&] { office::WriteWorkbook(workbook, Folder() / "ours.xls"); }));
    state.SetIterationTime(ours.back());
    others.push_back(SecondsOfXlwt(table));
    if (others.back() == 0) state.SkipWithError("xlwt did not write the table");
  }
  Report(state, ours, others);
}
BENCHMARK(WriteXls)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(3);

/// The library used by hand, as sparingly as it can be: row by row, one format.
void WriteByHand(const Workbook& workbook, const fs::path& file) {
  lxw_workbook_options options{};
  options.constant_memory = LXW_TRUE;
  lxw_workbook* book = workbook_new_opt(file.c_str(), &options);
  lxw_worksheet* sheet = workbook_add_worksheet(book, nullptr);
  lxw_format* format = workbook_add_format(book);
  format_set_font_name(format, "TIMES NEW ROMAN");
  format_set_font_size(format, 10);
  format_set_font_color(format, LXW_COLOR_BLUE);
  format_set_border(format, LXW_BORDER_THIN);
  for (int row = 1; row <= kXlsxRows; ++row) {
    for (int column = 1; column <= kListColumns; ++column) {
      worksheet_write_string(sheet, static_cast<lxw_row_t>(row - 1), static_cast<lxw_col_t>(column - 1),
                             workbook.Text(row, column).data(), format);
    }
  }
  workbook_close(book);
}

void WriteXlsx(benchmark::State& state) {
  const Workbook workbook = ChildrenList(kXlsxRows);
  std::vector<double> ours;
  std::vector<double> others;
  for (auto _ : state) {
    ours.push_back(SecondsOf([&] { office::WriteWorkbook(workbook, Folder() / "ours.xlsx"); }));
    state.SetIterationTime(ours.back());
    others.push_back(SecondsOf([&] { WriteByHand(workbook, Folder() / "by_hand.xlsx"); }));
  }
  Report(state, ours, others);
}
BENCHMARK(WriteXlsx)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(5);

}  // namespace
}  // namespace ovindra::bench

BENCHMARK_MAIN();
