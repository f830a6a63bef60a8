// The look-ups that several masters repeat in the masters' own spelling.
#pragma once

#include "core/entry/lookups.h"

namespace ovindra::master_lookup {

inline constexpr Lookup kBlock{"Select Block_Code from Block_Master where Block_Name=", Match::kExact,
                               "Block_Code"};
inline constexpr Lookup kProgramme{
    "Select Programme_Code from Programme_Master where Programme_Name=", Match::kExact, "Programme_Code"};

}  // namespace ovindra::master_lookup
