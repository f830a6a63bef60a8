#include "core/entry/places.h"

#include "core/entry/lists.h"
#include "core/entry/lookups.h"

namespace ovindra {

void FillProgrammes(Connection& connection, ComboBox& programmes) {
  FillList(connection,
           sql("Select Programme_Name from Programme_Master where Active='Y' order by Programme_Name"),
           "Programme_Name", programmes);
}

void FillLocations(Connection& connection, ComboBox& types) {
  FillList(connection, sql("Select Location_Name from Location_Master order by Location_Name"),
           "Location_Name", types);
}

void FillBlocks(Connection& connection, ComboBox& blocks) {
  FillList(connection, sql("select Block_Name from Block_Master order by Block_Name"), "Block_Name", blocks);
}

void FillSchools(Connection& connection, ComboBox& schools) {
  FillList(connection, sql("Select Sc_Name from School_Master order by Sc_Name"), "Sc_Name", schools);
}

void FillOldCenters(Connection& connection, ComboBox& centers) {
  FillList(connection, sql("select Center_Name from Center_Master order by Center_Name"), "Center_Name",
           centers);
}

void FillVisionCenters(Connection& connection, ComboBox& centers) {
  FillList(connection, sql("Select VC_Name from Vision_Center order by VC_Name"), "VC_Name", centers);
}

void FillHospitals(Connection& connection, ComboBox& centers) {
  FillList(connection, sql("Select H_Name from Hospital order by H_Name"), "H_Name", centers);
}

void FillCentersOfProgramme(Connection& connection, const ComboBox& programme, ComboBox& centers,
                            ComboBox& schools) {
  FillList(connection,
           sql("Select Center_Name from Center_Master1 a,Programme_Master b where b.Programme_Name=",
               quoted(programme), " and a.Programme_Code=b.Programme_code order by Center_Name"),
           "Center_Name", centers);
  FillList(connection,
           sql("Select SC_Name from School_Master a,Programme_Master b where b.Programme_Name=",
               quoted(programme), " and a.Programme_Code=b.Programme_code order by SC_Name"),
           "SC_Name", schools);
}

void FillCentersOfType(Connection& connection, const ComboBox& type, const ComboBox& programme,
                       ComboBox& centers, ComboBox& schools) {
  const std::string location = CodeOf(connection, lookup::kLocation, type);
  if (location == "V") {
    FillVisionCenters(connection, centers);
  } else if (location == "H") {
    FillHospitals(connection, centers);
  } else if (location == "A" || location == "S") {
    FillCentersOfProgramme(connection, programme, centers, schools);
  }
}

void FillSchoolsOfCenter(Connection& connection, const ComboBox& center, ComboBox& schools) {
  FillList(connection,
           sql("Select SC_Name from School_Master a,Center_Master1 b where b.Center_Name=", quoted(center),
               " and a.Center_ID=b.Center_ID order by SC_Name"),
           "SC_Name", schools);
}

}  // namespace ovindra
