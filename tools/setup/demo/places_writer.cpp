#include "tools/setup/demo/names.h"
#include "tools/setup/demo/places.h"
#include "tools/setup/running_numbers.h"
#include "tools/setup/statement.h"

namespace ovindra::demo {
namespace {

void WriteAreas(Session& screening, const std::vector<Area>& areas, Fragment head) {
  RowWriter rows(screening, head);
  for (const Area& area : areas) rows.Add(Row(quoted(area.name), Code(area.parent)));
}

void WriteGeography(Session& screening, const Places& places) {
  Execute(screening, sql("insert into Country_Master (Country_Name) values ('INDIA')"));
  RowWriter states(screening, "insert into State_Master (State_Name,Country_Code) values");
  for (const std::string& state : places.states) states.Add(Row(quoted(state), Number(1)));
  WriteAreas(screening, places.districts, "insert into District_Master (District_Name,State_Code) values");
  WriteAreas(screening, places.blocks, "insert into Block_Master (Block_Name,District_Code) values");
  WriteAreas(screening, places.sankuls, "insert into Sankul_Master (Sankul_Name,Block_Code) values");
}

void WriteCenters(Session& screening, const Places& places) {
  Execute(screening, sql("insert into Programme_Master (Programme_Code,Programme_Name,Active) values (",
                         quoted(kOlderProgramme), ",'SCHOOL EYE SCREENING 2014','N')"));
  RowWriter centers(screening, "insert into Center_Master1 (Center_Name,Sankul_ID,Programme_Code) values");
  // The older list was loaded when both lists were alike.
  RowWriter older(
      screening,
      "insert into Center_Master (Center_ID,Center_Name,Block_Code,Center_Type,No_of_TPerson) values");
  for (const Center& center : places.centers) {
    const std::size_t block = places.sankuls[center.sankul].parent;
    centers.Add(Row(quoted(center.name), Code(center.sankul), quoted(center.programme)));
    older.Add(Row(quoted(center.id), quoted(center.name), Code(block), quoted("SS"), Digits(4)));
  }
}

void WriteOutlets(Session& screening, const Places& places) {
  RowWriter vision_centers(screening, "insert into Vision_Center (VC_ID,VC_Name,Block_Code) values");
  for (const Outlet& center : places.vision_centers)
    vision_centers.Add(Row(quoted(center.id), quoted(center.name), Code(center.block)));
  RowWriter hospitals(screening, "insert into Hospital (H_ID,H_Name) values");
  for (const Outlet& hospital : places.hospitals)
    hospitals.Add(Row(quoted(hospital.id), quoted(hospital.name)));
  RowWriter anganwadis(screening,
                       "insert into Anganwadi_Center (AW_ID,AW_Name,Block_Code,No_of_TAww) values");
  for (const auto& [center, workers] : places.anganwadis)
    anganwadis.Add(Row(quoted(center.id), quoted(center.name), Code(center.block), Digits(workers.size())));
}

void WriteSchools(Session& screening, const Places& places) {
  RowWriter schools(
      screening,
      "insert into School_Master (SC_ID,SC_Name,Block_Code,No_of_TTeacher,Programme_Code,Center_ID) values");
  for (const School& school : places.schools) {
    const Center& center = places.centers[school.center];
    schools.Add(Row(quoted(school.id), quoted(school.name), Code(school.block),
                    Digits(school.teachers.size()), quoted(center.programme), bare(center.id)));
  }
}

void AddPersons(RowWriter& rows, const std::vector<TrainedPerson>& people, std::string_view place_id,
                std::string_view type, std::size_t block, std::string_view programme, Random& random) {
  for (const TrainedPerson& person : people) {
    const std::string mobile = random.Chance(80) ? MobileNumber(random) : std::string();
    rows.Add(Row(quoted(person.name), quoted(place_id), quoted(type), quoted(person.man ? "M" : "F"),
                 Code(block), quoted(mobile), quoted(programme)));
  }
}

void WriteTrainedPersons(Session& screening, const Places& places, Random& random) {
  RowWriter rows(screening,
                 "insert into TPerson_Master "
                 "(Person_Name,Center_ID,Person_Type,Gender,Block,Mobile,Programme_Code) values");
  for (const School& school : places.schools)
    AddPersons(rows, school.teachers, school.id, "TEACHER", school.block,
               places.centers[school.center].programme, random);
  for (const auto& [center, workers] : places.anganwadis)
    AddPersons(rows, workers, center.id, "AWW", center.block, kProgramme, random);
}

template <typename List>
long long NextOf(const List& list) {
  return static_cast<long long>(list.size()) + 1;
}

}  // namespace

void WritePlaces(Session& screening, const Places& places, Random& random) {
  WriteGeography(screening, places);
  WriteCenters(screening, places);
  WriteOutlets(screening, places);
  WriteSchools(screening, places);
  WriteTrainedPersons(screening, places, random);
  SetRunningNumber(screening, "SC_ID", NextOf(places.schools));
  SetRunningNumber(screening, "VC_ID", NextOf(places.vision_centers));
  SetRunningNumber(screening, "AW_ID", NextOf(places.anganwadis));
}

}  // namespace ovindra::demo
