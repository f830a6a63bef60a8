// Turning a chosen name back into its code, by a one-field SELECT at the moment of use. The table tells for
// each look-up its statement, its way of matching and its field; a name that finds no row is error 3021.
#pragma once

#include <string>
#include <string_view>

#include "base/controls/text_control.h"
#include "base/database/connection.h"

namespace ovindra {

/// An exact match compares with `=`. A prefix match adds "%" to the name: one that begins another name may
/// give the other one's code, whichever row the server finds first.
enum class Match { kExact, kPrefix };

struct Lookup {
  Fragment statement;
  Match match;
  std::string_view field;
};

namespace lookup {

inline constexpr Lookup kBlockByPrefix{"select Block_Code from Block_Master where Block_Name like ",
                                       Match::kPrefix, "Block_Code"};
inline constexpr Lookup kBlockExactly{"select Block_Code from Block_Master where Block_Name=", Match::kExact,
                                      "Block_Code"};
inline constexpr Lookup kBlockExactlySpaced{
    "select Block_Code from Block_Master where Block_Name = ", Match::kExact, "Block_Code"};
inline constexpr Lookup kDistrictByPrefix{
    "select District_Code from District_Master where District_Name like ", Match::kPrefix, "District_Code"};
inline constexpr Lookup kDistrictExactly{
    "select District_Code from District_Master where District_Name=", Match::kExact, "District_Code"};
inline constexpr Lookup kStateByPrefix{"select State_Code from State_Master where State_Name like ",
                                       Match::kPrefix, "State_Code"};
inline constexpr Lookup kStateExactly{"select State_Code from State_Master where State_Name=", Match::kExact,
                                      "State_Code"};
inline constexpr Lookup kCountryByPrefix{"select Country_Code from Country_Master where Country_Name like ",
                                         Match::kPrefix, "Country_Code"};
inline constexpr Lookup kCountryExactly{
    "select Country_Code from Country_Master where Country_Name=", Match::kExact, "Country_Code"};
inline constexpr Lookup kOldCenterByPrefix{"select Center_ID from Center_Master where Center_Name like ",
                                           Match::kPrefix, "Center_ID"};
inline constexpr Lookup kScreeningCenter{
    "select Center_ID from Center_Master1 where Center_Name=", Match::kExact, "Center_ID"};
inline constexpr Lookup kAnganwadiCenter{"select AW_ID from Anganwadi_Center where AW_Name=", Match::kExact,
                                         "AW_ID"};
inline constexpr Lookup kVisionCenter{"select VC_ID from Vision_Center where VC_Name=", Match::kExact,
                                      "VC_ID"};
inline constexpr Lookup kHospital{"select H_ID from Hospital where H_Name=", Match::kExact, "H_ID"};
inline constexpr Lookup kSchool{"select SC_ID from School_Master where Sc_Name=", Match::kExact, "SC_ID"};
inline constexpr Lookup kSchoolInCapitals{"select SC_ID from School_Master where SC_Name=", Match::kExact,
                                          "SC_ID"};
inline constexpr Lookup kSchoolOfCamp{"select Sc_ID from School_Master where Sc_Name=", Match::kExact,
                                      "Sc_ID"};
inline constexpr Lookup kSankul{"select Sankul_ID from Sankul_Master where Sankul_Name=", Match::kExact,
                                "Sankul_ID"};
inline constexpr Lookup kCategory{"Select Category_Code from Category_Master where Category=", Match::kExact,
                                  "Category_Code"};
inline constexpr Lookup kDiagnosis{
    "select Diagnosis_Code from Diagnosis_Master where Diagnosis_Name=", Match::kExact, "Diagnosis_Code"};
inline constexpr Lookup kTreatment{
    "select Treatment_Code from Treatment_Master where Description=", Match::kExact, "Treatment_Code"};
inline constexpr Lookup kScreenedByType{
    "select Type_Code from screenedbytype where description=", Match::kExact, "Type_Code"};
inline constexpr Lookup kLocation{
    "Select Location_ID from Location_Master where Location_Name=", Match::kExact, "Location_ID"};

inline constexpr Lookup kProgramme{
    "Select Programme_Code from Programme_Master where Programme_Name=", Match::kExact, "Programme_Code"};

}  // namespace lookup

/// The trimmed code of the name in the control.
std::string CodeOf(Connection& connection, const Lookup& lookup, const TextControl& name);

/// The same for a name that stands in no control.
std::string CodeOf(Connection& connection, const Lookup& lookup, std::string_view name);

}  // namespace ovindra
