// The places of the demonstration programme and the people trained there. Places are made first and written
// in one go; their codes are those that the database assigns to the rows of a fresh schema.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/database/connection.h"
#include "tools/setup/demo/demo.h"
#include "tools/setup/demo/random.h"

namespace ovindra::demo {

inline constexpr std::string_view kProgramme = "GRANT2016";
inline constexpr std::string_view kOlderProgramme = "SES2014";

/// The letters of the locations under which children are enrolled.
enum class Location : char { kAnganwadi = 'A', kVisionCenter = 'V', kHospital = 'H' };

/// A code that the database assigned, and its parent's place in its list.
struct Area {
  std::string name;
  std::size_t parent;
};

struct Center {
  std::string id;
  std::string name;
  std::size_t sankul;
  std::string_view programme;
};

struct Outlet {
  std::string id;
  std::string name;
  std::size_t block;
};

struct TrainedPerson {
  std::string name;
  bool man;
};

struct School {
  std::string id;
  std::string name;
  std::size_t center;
  std::size_t sankul;
  std::size_t block;
  Location location;
  /// The center, vision center or hospital under whose code the children of this school are enrolled.
  std::string enrolled_by;
  std::vector<TrainedPerson> teachers;
};

struct Anganwadi {
  Outlet center;
  std::vector<TrainedPerson> workers;
};

/// Lists in the order of their codes: the code of the first row is 1.
struct Places {
  std::vector<std::string> states;
  std::vector<Area> districts;
  std::vector<Area> blocks;
  std::vector<Area> sankuls;
  std::vector<Center> centers;
  std::vector<Outlet> vision_centers;
  std::vector<Anganwadi> anganwadis;
  std::vector<Outlet> hospitals;
  std::vector<School> schools;
  /// The center whose schools were all enrolled in the last two weeks.
  std::size_t waiting_center;
};

Places MakePlaces(const DemoScale& scale, Random& random);

/// Writes the masters, the trained persons and the counters of the coded ids.
void WritePlaces(Session& screening, const Places& places, Random& random);

}  // namespace ovindra::demo
