// Random choices that come out the same on every machine: the standard fixes the engine's numbers, but not
// what its distributions make of them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>

namespace ovindra::demo {

class Random {
 public:
  explicit Random(std::uint64_t seed) : engine_(seed) {}

  /// A number from 0 up to, not including, the count.
  std::size_t Below(std::size_t count) { return static_cast<std::size_t>(engine_() % count); }

  /// A number from the one to the other, both included.
  int Between(int low, int high) {
    return low + static_cast<int>(Below(static_cast<std::size_t>(high - low) + 1));
  }

  bool Chance(int percent) { return Below(100) < static_cast<std::size_t>(percent); }

  template <typename Range>
  const auto& Pick(const Range& range) {
    return range[Below(range.size())];
  }

 private:
  std::mt19937_64 engine_;
};

}  // namespace ovindra::demo
