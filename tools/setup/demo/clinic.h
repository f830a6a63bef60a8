// What is found in a child's eyes and what is done about it: diagnoses by category, refraction, treatments,
// in about the shares in which a school programme meets them.
#pragma once

#include "base/database/connection.h"
#include "tools/setup/demo/random.h"
#include "tools/setup/demo/road.h"

namespace ovindra::demo {

/// Writes the diagnosis master. The codes of the diagnoses are those of a fresh schema.
void WriteDiagnoses(Session& screening);

/// The examination of a child whom screening has found defected.
Examination ExaminedByAssistant(Random& random, Date day, Location location);

/// What the surgeon finds at the camp; `category` is what the assistant had found, 0 for a child sent
/// directly.
Examination ExaminedBySurgeon(Random& random, Date day, int category);

}  // namespace ovindra::demo
