#include "tools/setup/demo/road_maker.h"

#include <algorithm>
#include <array>

#include "tools/setup/demo/clinic.h"
#include "tools/setup/demo/names.h"

namespace ovindra::demo {
namespace {

constexpr Date kProgrammeFirstDay{std::chrono::year(2015), std::chrono::April, std::chrono::day(1)};
constexpr Date kOlderProgrammeLastDay{std::chrono::year(2015), std::chrono::March, std::chrono::day(20)};
constexpr int kChildrenOfOneVisit = 60;

constexpr auto kAssistants =
    std::to_array<std::string_view>({"ANIL SINGH", "RANJEET KUMAR", "SHALINI VERMA"});
constexpr auto kOccupations = std::to_array<std::string_view>(
    {"", "FARMER", "LABOUR", "SHOPKEEPER", "DRIVER", "TEACHER", "TAILOR", "RICKSHAW PULLER"});
constexpr auto kCards = std::to_array<std::string_view>({"", "APL", "BPL", "ANTYODAYA"});
constexpr auto kPreExams = std::to_array<std::string_view>({"", "", "", "NO", "YES, TWO YEARS AGO"});

int DaysBetween(Date from, Date to) {
  return static_cast<int>((std::chrono::local_days(to) - std::chrono::local_days(from)).count());
}

/// That day, or the Monday after it when it is a Sunday.
Date WorkingDay(Date day) {
  return std::chrono::weekday(std::chrono::local_days(day)) == std::chrono::Sunday ? AddDays(day, 1) : day;
}

bool HasCome(Date day) {
  return std::chrono::local_days(day) <= std::chrono::local_days(kDemoLastDay);
}

Date VisitDay(const Places& places, const School& school, Random& random) {
  const bool of_programme = school.location == Location::kAnganwadi;
  const bool older = places.centers[school.center].programme == kOlderProgramme;
  const Date first = of_programme && !older ? kProgrammeFirstDay : kDemoFirstDay;
  const Date last = of_programme && older ? kOlderProgrammeLastDay : AddDays(kDemoLastDay, -2);
  return WorkingDay(AddDays(first, random.Between(0, DaysBetween(first, last))));
}

/// How many of the whole the part at that place gets, so that all parts together are the whole.
int Share(int whole, std::size_t parts, std::size_t place) {
  const int count = static_cast<int>(parts);
  return whole / count + (static_cast<int>(place) < whole % count ? 1 : 0);
}

}  // namespace

std::vector<Visit> PlanVisits(const Places& places, const DemoScale& scale, Random& random) {
  std::vector<std::size_t> waiting;
  std::vector<std::size_t> visited;
  for (std::size_t i = 0; i < places.schools.size(); ++i)
    (places.schools[i].center == places.waiting_center ? waiting : visited).push_back(i);

  std::vector<Visit> visits;
  for (std::size_t i = 0; i < waiting.size(); ++i) {
    const Date day = WorkingDay(AddDays(kDemoLastDay, -random.Between(2, 13)));
    visits.push_back({day, waiting[i], Share(scale.waiting, waiting.size(), i), true});
  }
  for (std::size_t i = 0; i < visited.size(); ++i) {
    const int children = Share(scale.children - scale.waiting, visited.size(), i);
    const auto count = static_cast<std::size_t>(children / kChildrenOfOneVisit) + 1;
    for (std::size_t visit = 0; visit < count; ++visit) {
      const Date day = VisitDay(places, places.schools[visited[i]], random);
      visits.push_back({day, visited[i], Share(children, count, visit), false});
    }
  }
  std::stable_sort(visits.begin(), visits.end(),
                   [](const Visit& left, const Visit& right) { return left.day < right.day; });
  return visits;
}

/// The days of what follows a visit.
struct RoadMaker::Days {
  Date screening;
  Date examination;
  Date camp;
};

std::vector<Road> RoadMaker::Make(const Visit& visit) {
  Days days{};
  days.screening = WorkingDay(AddDays(visit.day, random_.Between(0, 4)));
  days.examination = WorkingDay(AddDays(days.screening, random_.Between(7, 28)));
  days.camp = WorkingDay(AddDays(days.examination, random_.Between(10, 40)));

  std::vector<Road> roads;
  for (int i = 0; i < visit.children; ++i) {
    Road& road = roads.emplace_back(Road{visit.school, Enroll(visit), {}, {}, {}, {}});
    if (visit.waiting || !HasCome(days.screening) || !random_.Chance(95)) continue;
    road.screening = Screen(visit, days);
    if (road.screening->defected) Follow(road, days);
  }
  return roads;
}

Enrollment RoadMaker::Enroll(const Visit& visit) {
  const Location location = places_.schools[visit.school].location;
  const bool of_programme = location == Location::kAnganwadi;
  Enrollment child;
  child.enroll_no = static_cast<char>(location) + std::to_string(next_enroll_number_++);
  child.boy = random_.Chance(53);
  auto [name, parent] = MakeFamily(random_, child.boy);
  child.child_name = std::move(name);
  child.parent_name = std::move(parent);
  child.school_going = random_.Chance(92);
  child.has_school = of_programme || child.school_going;
  if (child.school_going) {
    const int school_class = random_.Between(1, 10);
    child.school_class = std::to_string(school_class);
    child.age = school_class + random_.Between(4, 7);
  } else {
    child.age = random_.Between(3, 14);
  }
  child.day = visit.day;
  if (of_programme && random_.Chance(60)) {
    child.months = std::to_string(random_.Between(0, 11));
    child.days = std::to_string(random_.Between(0, 29));
  }
  if (of_programme && random_.Chance(70)) child.mobile = MobileNumber(random_);
  child.entered_by = random_.Between(2, 3);
  return child;
}

std::string RoadMaker::ScreenerName(const School& school, std::string_view by) {
  if (by == "T") return random_.Pick(school.teachers).name;
  if (by == "AWW")
    return random_.Pick(places_.anganwadis[school.block % places_.anganwadis.size()].workers).name;
  return std::string(random_.Pick(kAssistants));
}

Screening RoadMaker::Screen(const Visit& visit, const Days& days) {
  const School& school = places_.schools[visit.school];
  const std::string_view by = school.location == Location::kAnganwadi ? (random_.Chance(80) ? "AWW" : "T")
                              : random_.Chance(75)                    ? "T"
                                                                      : "OA";
  Screening screening{};
  screening.day = days.screening;
  screening.by = by;
  screening.by_name = ScreenerName(school, by);
  screening.defected = random_.Chance(11);
  screening.pre_exam = random_.Pick(kPreExams);
  screening.occupation = random_.Pick(kOccupations);
  screening.card = random_.Pick(kCards);
  screening.knows_center = random_.Chance(40);
  if (screening.defected && random_.Chance(60)) {
    screening.refer_to = places_.vision_centers[school.block % places_.vision_centers.size()].name;
  }
  screening.entered_by = random_.Between(2, 3);
  return screening;
}

void RoadMaker::Follow(Road& road, const Days& days) {
  constexpr int kToCamp = 3;
  constexpr int kToHospital = 4;
  const Location location = places_.schools[road.school].location;
  const bool examined = HasCome(days.examination) && random_.Chance(86);
  if (examined) road.examination = ExaminedByAssistant(random_, days.examination, location);
  const bool sent_to_camp = examined && road.examination->Orders(kToCamp) && random_.Chance(88);
  const bool came_directly = !examined && location == Location::kHospital && random_.Chance(60);
  if (road.enrollment.has_school && HasCome(days.camp) && (sent_to_camp || came_directly)) {
    road.camp = ExaminedBySurgeon(random_, days.camp, examined ? road.examination->category : 0);
  }
  const bool sent_on = (road.camp && road.camp->Orders(kToHospital)) ||
                       (road.examination && road.examination->Orders(kToHospital));
  const Date last_step = road.camp ? days.camp : days.examination;
  if (sent_on && HasCome(AddDays(last_step, random_.Between(3, 20))) && random_.Chance(60)) {
    road.mr_no = "MR" + std::to_string(next_mr_number_++);
  }
}

}  // namespace ovindra::demo
