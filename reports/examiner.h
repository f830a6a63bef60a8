// Whose examinations a report reads.
#pragma once

namespace ovindra {

/// Those of the ophthalmic assistant or those of the camp's surgeon.
enum class Examiner { kAssistant, kSurgeon };

}  // namespace ovindra
