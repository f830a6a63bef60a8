#include "tools/setup/demo/places.h"

#include <algorithm>
#include <array>

#include "tools/setup/demo/names.h"

namespace ovindra::demo {
namespace {

struct NamedArea {
  std::string_view name;
  std::size_t parent;
};

constexpr auto kStates = std::to_array<std::string_view>({"BIHAR", "UTTAR PRADESH", "JHARKHAND"});
constexpr auto kDistricts = std::to_array<NamedArea>({{"MUZAFFARPUR", 0},
                                                      {"VAISHALI", 0},
                                                      {"SITAMARHI", 0},
                                                      {"GORAKHPUR", 1},
                                                      {"DEORIA", 1},
                                                      {"RANCHI", 2},
                                                      {"BOKARO", 2}});
constexpr auto kBlocks = std::to_array<NamedArea>({{"MOTIPUR", 0},
                                                   {"KANTI", 0},
                                                   {"MINAPUR", 0},
                                                   {"HAJIPUR", 1},
                                                   {"RUNNI SAIDPUR", 2},
                                                   {"CHAURI CHAURA", 3},
                                                   {"SALEMPUR", 4},
                                                   {"KANKE", 5},
                                                   {"CHAS", 6},
                                                   {"SARAIYA", 0},
                                                   {"MAHUA", 1},
                                                   {"DUMRA", 2}});
constexpr auto kSchoolKinds =
    std::to_array<std::string_view>({" PRIMARY SCHOOL", " MIDDLE SCHOOL", " HIGH SCHOOL", " GIRLS SCHOOL"});
constexpr auto kHospitals = std::to_array<std::string_view>(
    {"LANVIK EYE INSTITUTE", "SADAR HOSPITAL MUZAFFARPUR", "SADAR HOSPITAL RANCHI"});

std::size_t Count(int number) {
  return static_cast<std::size_t>(number);
}

void MakeBlocks(Places& places, const DemoScale& scale, Villages& villages) {
  places.states.assign(kStates.begin(), kStates.end());
  for (const NamedArea& district : kDistricts)
    places.districts.push_back({std::string(district.name), district.parent});
  for (const NamedArea& block : kBlocks) villages.Reserve(std::string(block.name));
  for (std::size_t i = 0; i < Count(scale.blocks); ++i) {
    const bool named = i < kBlocks.size();
    places.blocks.push_back({named ? std::string(kBlocks[i].name) : villages.Next(),
                             named ? kBlocks[i].parent : i % kDistricts.size()});
  }
}

/// The first place of a block bears the block's name, a further one that of a village.
std::string PlaceName(const Places& places, std::size_t number, std::size_t block, Villages& villages) {
  return number < places.blocks.size() ? places.blocks[block].name : villages.Next();
}

void MakeCenters(Places& places, const DemoScale& scale, Villages& villages) {
  const std::size_t blocks = places.blocks.size();
  for (std::size_t i = 0; i < Count(scale.sankuls); ++i)
    places.sankuls.push_back({PlaceName(places, i, i % blocks, villages) + " SANKUL", i % blocks});
  const std::size_t centers = Count((scale.schools + scale.schools_of_center - 1) / scale.schools_of_center);
  for (std::size_t i = 0; i < centers; ++i) {
    const std::size_t sankul = i % places.sankuls.size();
    places.centers.push_back(
        {std::to_string(i + 1),
         PlaceName(places, i, places.sankuls[sankul].parent, villages) + " SCREENING CENTER", sankul,
         i % 5 == 3 ? kOlderProgramme : kProgramme});
  }
  places.waiting_center = 1;
  for (std::size_t i = 0; i < Count(scale.vision_centers); ++i)
    places.vision_centers.push_back({"VC" + std::to_string(i + 1),
                                     PlaceName(places, i, i % blocks, villages) + " VISION CENTER",
                                     i % blocks});
  for (std::size_t i = 0; i < Count(scale.hospitals); ++i)
    places.hospitals.push_back(
        {"H" + std::to_string(i + 1),
         i < kHospitals.size() ? std::string(kHospitals[i]) : villages.Next() + " HOSPITAL", 0});
}

std::vector<TrainedPerson> MakeTrained(Random& random, int count, int percent_men) {
  std::vector<TrainedPerson> people;
  for (int i = 0; i < count; ++i) {
    const bool man = random.Chance(percent_men);
    people.push_back({PersonName(random, man), man});
  }
  return people;
}

void MakeAnganwadis(Places& places, const DemoScale& scale, Villages& villages, Random& random) {
  for (std::size_t i = 0; i < Count(scale.anganwadi_centers); ++i) {
    const std::size_t block = i % places.blocks.size();
    places.anganwadis.push_back({{"AW" + std::to_string(i + 1), villages.Next() + " ANGANWADI CENTER", block},
                                 MakeTrained(random, random.Between(1, 2), 0)});
  }
}

/// Two of twenty centers, the first and the one that waits among them, belong to the programme alone;
/// elsewhere vision centers and hospitals have their schools too.
Location LocationOf(std::size_t center, std::size_t school) {
  if (center % 20 < 2) return Location::kAnganwadi;
  const std::size_t part = school % 20;
  if (part < 11) return Location::kAnganwadi;
  return part < 17 ? Location::kHospital : Location::kVisionCenter;
}

void MakeSchools(Places& places, const DemoScale& scale, Villages& villages, Random& random) {
  const std::size_t of_center = Count(scale.schools_of_center);
  for (std::size_t i = 0; i < Count(scale.schools); ++i) {
    School school;
    school.id = "SC" + std::to_string(i + 1);
    school.center = i / of_center;
    school.sankul = places.centers[school.center].sankul;
    school.block = places.sankuls[school.sankul].parent;
    const bool first_of_block = i % of_center == 0 && school.center < places.blocks.size();
    const std::string_view kind = first_of_block ? " PRIMARY SCHOOL" : random.Pick(kSchoolKinds);
    school.name = first_of_block ? places.blocks[school.block].name : villages.Next();
    school.name += kind;
    school.location = LocationOf(school.center, i);
    switch (school.location) {
      case Location::kAnganwadi:
        school.enrolled_by = places.centers[school.center].id;
        break;
      case Location::kVisionCenter:
        school.enrolled_by = places.vision_centers[school.block % places.vision_centers.size()].id;
        break;
      case Location::kHospital:
        school.enrolled_by = places.hospitals[school.block % places.hospitals.size()].id;
        break;
    }
    school.teachers = MakeTrained(random, random.Between(1, 3), 65);
    places.schools.push_back(std::move(school));
  }
}

}  // namespace

Places MakePlaces(const DemoScale& scale, Random& random) {
  Places places;
  Villages villages(random);
  MakeBlocks(places, scale, villages);
  MakeCenters(places, scale, villages);
  MakeAnganwadis(places, scale, villages, random);
  MakeSchools(places, scale, villages, random);
  return places;
}

}  // namespace ovindra::demo
