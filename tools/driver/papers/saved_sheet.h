// A saved workbook read back from its bytes, by libraries that had no part in writing them.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <utility>

namespace ovindra::driver {

/// The first sheet of a workbook.
struct SavedSheet {
  std::string name;
  /// The cells that have a text, by row and column from 1.
  std::map<std::pair<int, int>, std::string> cells;

  /// Empty where the cell has no text.
  std::string Text(int row, int column) const;
};

/// Reads an Excel 97 or an Office Open XML workbook, whichever its bytes are. StepFailure when they are
/// neither.
SavedSheet ReadSavedSheet(const std::filesystem::path& file);

}  // namespace ovindra::driver
