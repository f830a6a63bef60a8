// How the program reaches its two databases: by data sources of fixed names, as a fixed user. Nothing of this
// is read from a settings file.
#pragma once

#include <string_view>

namespace ovindra {

inline constexpr std::string_view kScreeningSource = "DSN=ZQR;user ID=sa;pwd=nova..381;";
inline constexpr std::string_view kHospitalSource = "DSN=ward;user ID=sa;pwd=nova..381;";

}  // namespace ovindra
