// The papers of a scenario as real files: what the program saves is written into a folder of the scenario's
// own, which is made when the first paper needs it and goes with this object.
#pragma once

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "base/workbook/document.h"
#include "base/workbook/workbook.h"

namespace ovindra::driver {

class PaperFolder {
 public:
  PaperFolder() = default;
  ~PaperFolder();
  PaperFolder(const PaperFolder&) = delete;
  PaperFolder& operator=(const PaperFolder&) = delete;

  /// Both write to what the program's path text names; the folders that it names are there. Error 75 when the
  /// file can't be written.
  void Write(const Workbook& workbook, std::string_view path);
  void Write(const Document& document, std::string_view path);

  /// The file that was written for that path text; nothing when none was.
  std::optional<std::filesystem::path> WrittenFile(std::string_view path) const;

 private:
  /// The file that is to be written.
  std::filesystem::path FileFor(std::string_view path);

  std::filesystem::path folder_;
  std::set<std::filesystem::path> written_;
};

}  // namespace ovindra::driver
