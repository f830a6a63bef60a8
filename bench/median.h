// The median of measured times.
#pragma once

#include <algorithm>
#include <vector>

namespace ovindra::bench {

inline double Median(std::vector<double> times) {
  std::nth_element(times.begin(), times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2), times.end());
  return times[times.size() / 2];
}

}  // namespace ovindra::bench
