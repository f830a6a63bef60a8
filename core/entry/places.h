// The choice of a place, as the forms of a child's road share it: the lists of programmes, types, blocks and
// schools, and how the type and the center narrow the next list.
#pragma once

#include "base/controls/combo_box.h"
#include "base/database/connection.h"

namespace ovindra {

void FillProgrammes(Connection& connection, ComboBox& programmes);
void FillLocations(Connection& connection, ComboBox& types);
void FillBlocks(Connection& connection, ComboBox& blocks);
void FillSchools(Connection& connection, ComboBox& schools);
/// The older list of centers.
void FillOldCenters(Connection& connection, ComboBox& centers);

void FillVisionCenters(Connection& connection, ComboBox& centers);
void FillHospitals(Connection& connection, ComboBox& centers);
/// The screening centers of a programme, and its schools.
void FillCentersOfProgramme(Connection& connection, const ComboBox& programme, ComboBox& centers,
                            ComboBox& schools);

/// After the pick of a type: its vision centers or hospitals, with the schools left as they are, or for
/// schools and anganwadi centers the centers and the schools of the programme. A name that is no type's is
/// error 3021.
void FillCentersOfType(Connection& connection, const ComboBox& type, const ComboBox& programme,
                       ComboBox& centers, ComboBox& schools);

/// After the pick of a center: its schools. A vision center or a hospital has none.
void FillSchoolsOfCenter(Connection& connection, const ComboBox& center, ComboBox& schools);

}  // namespace ovindra
