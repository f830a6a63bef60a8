#include "core/entry/center_code.h"

#include "core/entry/lookups.h"

namespace ovindra {
namespace {

struct CenterTable {
  std::string_view location_id;
  const Lookup& center;
};

constexpr CenterTable kCenterTables[] = {
    {"V", lookup::kVisionCenter},
    {"A", lookup::kScreeningCenter},
    {"H", lookup::kHospital},
    {"S", lookup::kScreeningCenter},
};

}  // namespace

std::optional<std::string> CenterCodeOfType(Connection& connection, std::string_view location_id,
                                            const TextControl& center) {
  for (const CenterTable& table : kCenterTables) {
    if (table.location_id == location_id) return CodeOf(connection, table.center, center);
  }
  return {};
}

}  // namespace ovindra
