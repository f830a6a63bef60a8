// Leads each child as far along its road as the time up to the last day allows. A visit is the day on which
// the children of one school are enrolled; the screening, the assistant's day and the camp that follow are
// those of the whole visit.
#pragma once

#include <vector>

#include "tools/setup/demo/random.h"
#include "tools/setup/demo/road.h"

namespace ovindra::demo {

struct Visit {
  Date day;
  std::size_t school;
  int children;
  /// The children wait for their screening, although its day may have passed.
  bool waiting;
};

/// The visits of two years in the order of their days; together they enroll exactly the children of the
/// scale.
std::vector<Visit> PlanVisits(const Places& places, const DemoScale& scale, Random& random);

class RoadMaker {
 public:
  RoadMaker(const Places& places, Random& random) : places_(places), random_(random) {}

  /// The roads of a visit's children. Enroll numbers rise from call to call.
  std::vector<Road> Make(const Visit& visit);

  /// The next number that is free.
  long next_enroll_number() const { return next_enroll_number_; }

 private:
  struct Days;

  Enrollment Enroll(const Visit& visit);
  Screening Screen(const Visit& visit, const Days& days);
  void Follow(Road& road, const Days& days);
  std::string ScreenerName(const School& school, std::string_view by);

  const Places& places_;
  Random& random_;
  long next_enroll_number_ = 1;
  long next_mr_number_ = 200101;
};

}  // namespace ovindra::demo
