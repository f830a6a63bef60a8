// Two things done in turn and timed beside each other, so that their ratio holds when the machine's speed
// drifts.
#pragma once

#include <chrono>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/median.h"

namespace ovindra::bench {

/// Runs both in turn, ours timed by the benchmark, and reports the medians and their ratio.
template <typename Ours, typename Hand>
void RunBeside(benchmark::State& state, Ours ours, Hand hand) {
  using Clock = std::chrono::steady_clock;
  const auto seconds = [](Clock::duration duration) {
    return std::chrono::duration<double>(duration).count();
  };
  std::vector<double> our_times;
  std::vector<double> hand_times;
  for (auto _ : state) {
    const auto start = Clock::now();
    ours();
    const auto between = Clock::now();
    hand();
    hand_times.push_back(seconds(Clock::now() - between));
    our_times.push_back(seconds(between - start));
    state.SetIterationTime(our_times.back());
  }
  state.counters["by_hand_ms"] = Median(hand_times) * 1e3;
  state.counters["ours_ms"] = Median(our_times) * 1e3;
  state.counters["ratio"] = Median(our_times) / Median(hand_times);
}

}  // namespace ovindra::bench
