// Two things done in turn and timed beside each other, so that their ratio holds when the machine's speed
// drifts. On a machine that has other work as well, the ratio of the processor's time is the steadier one.
#pragma once

#include <chrono>
#include <ctime>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/median.h"

namespace ovindra::bench {

/// What a piece of work took, in seconds.
struct Spent {
  double elapsed = 0;
  double of_processor = 0;
};

template <typename Act>
Spent SpentBy(Act act) {
  const auto start = std::chrono::steady_clock::now();
  const std::clock_t processor_start = std::clock();
  act();
  const std::clock_t processor_end = std::clock();
  return {std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count(),
          static_cast<double>(processor_end - processor_start) / CLOCKS_PER_SEC};
}

/// The times of one of the two, run by run.
struct Times {
  std::vector<double> elapsed;
  std::vector<double> of_processor;

  void Add(const Spent& spent) {
    elapsed.push_back(spent.elapsed);
    of_processor.push_back(spent.of_processor);
  }
};

/// Runs both in turn, ours timed by the benchmark, and reports the medians and their ratios.
template <typename Ours, typename Hand>
void RunBeside(benchmark::State& state, Ours ours, Hand hand) {
  Times our_times;
  Times hand_times;
  for (auto _ : state) {
    our_times.Add(SpentBy(ours));
    hand_times.Add(SpentBy(hand));
    state.SetIterationTime(our_times.elapsed.back());
  }
  state.counters["by_hand_ms"] = Median(hand_times.elapsed) * 1e3;
  state.counters["ours_ms"] = Median(our_times.elapsed) * 1e3;
  state.counters["ratio"] = Median(our_times.elapsed) / Median(hand_times.elapsed);
  state.counters["cpu_ratio"] = Median(our_times.of_processor) / Median(hand_times.of_processor);
}

}  // namespace ovindra::bench
