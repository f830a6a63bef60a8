// A list of children as a report writes it, of any length: the workbook that the writers are timed on, and
// the same texts for whatever stands beside them.
#pragma once

#include <string>

#include "base/workbook/workbook.h"

namespace ovindra::bench {

constexpr int kListColumns = 13;

/// The text of a cell: numbers and names that differ from child to child, and words of which there are few.
std::string ListText(int row, int column);

/// A sheet of that many rows in the style of a report's body.
Workbook ChildrenList(int rows);

}  // namespace ovindra::bench
