// The code of a center by the type of place: the letter of the type decides in which table its name is looked
// up.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/controls/text_control.h"
#include "base/database/connection.h"

namespace ovindra {

/// The center's code for "V", "A", "H" and "S"; nothing for any other type. A name that finds no row is error
/// 3021.
std::optional<std::string> CenterCodeOfType(Connection& connection, std::string_view location_id,
                                            const TextControl& center);

}  // namespace ovindra
