// The hospital's own database: what it has coded for the children who came, and for patients of its own.
#pragma once

#include <span>

#include "tools/setup/demo/random.h"
#include "tools/setup/demo/road_writer.h"

namespace ovindra::demo {

void WriteHospitalRecords(Session& hospital, std::span<const Patient> patients, Random& random);

}  // namespace ovindra::demo
