#include "tools/setup/demo/demo.h"

#include <algorithm>
#include <array>

#include "tools/setup/demo/clinic.h"
#include "tools/setup/demo/hospital_records.h"
#include "tools/setup/demo/places.h"
#include "tools/setup/demo/random.h"
#include "tools/setup/demo/road_maker.h"
#include "tools/setup/demo/road_writer.h"
#include "tools/setup/statement.h"

namespace ovindra {
namespace {

constexpr std::uint64_t kSeed = 20160531;

constexpr std::array kEnrollment{MenuItems{"m1", 0, 1}, MenuItems{"m1", 3, 3}, MenuItems{"m2", 6, 7}};
constexpr std::array kScreeningEntry{MenuItems{"m1", 0, 1}};
constexpr std::array kExamination{MenuItems{"m1", 2, 2}, MenuItems{"m1", 4, 4}, MenuItems{"m2", 1, 2},
                                  MenuItems{"m2", 8, 8}};
constexpr std::array kReports{MenuItems{"m2", 0, 10}};
constexpr std::array kMasters{MenuItems{"m2", 0, 0}, MenuItems{"m3", 0, 6}, MenuItems{"m3", 8, 11}};

/// Boys and girls of each class of a school under a vision center.
void WriteStrengths(Session& screening, const demo::Places& places, demo::Random& random) {
  RowWriter schools(screening, "insert into NewInfo (VC_ID,School_Name,Boys,Girls,Total) values");
  RowWriter classes(screening, "insert into ClassWiseStrength (SrNo,Class,Boys,Girls,Total) values");
  for (std::size_t i = 0; i < places.vision_centers.size(); ++i) {
    const demo::Outlet& center = places.vision_centers[i];
    int all_boys = 0;
    int all_girls = 0;
    for (int school_class = 1; school_class <= 5; ++school_class) {
      const int boys = random.Between(12, 40);
      const int girls = random.Between(10, 40);
      classes.Add(
          Row(Digits(i + 1), Digits(school_class), Digits(boys), Digits(girls), Digits(boys + girls)));
      all_boys += boys;
      all_girls += girls;
    }
    schools.Add(Row(quoted(center.id), quoted(places.blocks[center.block].name + " MODEL SCHOOL"),
                    Digits(all_boys), Digits(all_girls), Digits(all_boys + all_girls)));
  }
}

}  // namespace

DemoScale DemoScale::ForChildren(int children) {
  DemoScale scale;
  scale.children = children;
  if (children <= scale.schools * 300) {
    scale.waiting = children / 25;
    return scale;
  }
  scale.schools = children / 300;
  scale.schools_of_center = 17;
  const int centers = scale.schools / scale.schools_of_center + 1;
  scale.blocks = std::max(scale.blocks, scale.schools / 60);
  scale.sankuls = std::max({scale.sankuls, scale.blocks, centers / 2});
  scale.vision_centers = std::max(scale.vision_centers, scale.schools / 100);
  scale.anganwadi_centers = std::max(scale.anganwadi_centers, scale.schools / 20);
  scale.waiting = std::clamp(children / 200, 500, 5000);
  return scale;
}

std::span<const DemoUser> DemoUsers() {
  static const std::array kUsers{
      DemoUser{"ADMIN", "admin", "everything", EveryMenuItem()},
      DemoUser{"RAKESH KUMAR", "rakesh", "enrollment, screening, school register and their lists",
               kEnrollment},
      DemoUser{"SUNITA DEVI", "sunita", "enrollment and screening", kScreeningEntry},
      DemoUser{"ANIL SINGH", "anil", "examination, OS camp and their lists", kExamination},
      DemoUser{"MEENA JHA", "meena", "all reports", kReports},
      DemoUser{"VIJAY PRASAD", "vijay", "masters without the users", kMasters}};
  return kUsers;
}

void FillDemo(Session& screening, Session& hospital, const DemoScale& scale) {
  demo::Random random(kSeed);
  for (const DemoUser& user : DemoUsers()) AddUser(screening, user.name, user.password, user.rights);

  const demo::Places places = demo::MakePlaces(scale, random);
  demo::WritePlaces(screening, places, random);
  demo::WriteDiagnoses(screening);
  WriteStrengths(screening, places, random);

  demo::RoadMaker maker(places, random);
  demo::RoadWriter writer(screening, places);
  for (const demo::Visit& visit : demo::PlanVisits(places, scale, random)) {
    for (demo::Road& road : maker.Make(visit)) writer.Write(std::move(road));
  }
  writer.Finish(maker.next_enroll_number());
  demo::WriteHospitalRecords(hospital, writer.patients(), random);
}

}  // namespace ovindra
