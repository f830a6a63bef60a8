// The start of the program as far as its login window, database open, splash aside, beside a program that
// shows one empty widget. Both run as processes of their own, offscreen, in turn.
#include <algorithm>
#include <chrono>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <spawn.h>
#include <sys/wait.h>

#include "bench/large_database.h"
#include "bench/median.h"

extern char** environ;

namespace ovindra::bench {
namespace {

using Clock = std::chrono::steady_clock;

double RunProcess(std::vector<std::string> words) {
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  const auto start = Clock::now();
  pid_t child = 0;
  int status = 0;
  if (posix_spawn(&child, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0) return -1;
  waitpid(child, &status, 0);
  return status == 0 ? std::chrono::duration<double>(Clock::now() - start).count() : -1;
}

void StartToLogin(benchmark::State& state) {
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  const std::string folder = LargeFolder().string();
  std::vector<double> ours;
  std::vector<double> empty;
  for (auto _ : state) {
    ours.push_back(RunProcess({PROGRAM, "--no-splash", "--until-login", "--database", folder}));
    empty.push_back(RunProcess({EMPTY_WINDOW}));
    if (ours.back() < 0 || empty.back() < 0) state.SkipWithError("a program could not be run");
    state.SetIterationTime(std::max(ours.back(), 0.0));
  }
  state.counters["ours_ms"] = Median(ours) * 1e3;
  state.counters["empty_ms"] = Median(empty) * 1e3;
  state.counters["ratio"] = Median(ours) / Median(empty);
}
BENCHMARK(StartToLogin)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(25);

}  // namespace
}  // namespace ovindra::bench

BENCHMARK_MAIN();
