#include "tools/driver/papers/paper_folder.h"

#include <cstdlib>
#include <system_error>

#include "base/runtime_error.h"
#include "platform/office/office_files.h"
#include "platform/office/program_path.h"

namespace ovindra::driver {

namespace fs = std::filesystem;

PaperFolder::~PaperFolder() {
  std::error_code no_more_to_be_done;
  if (!folder_.empty()) fs::remove_all(folder_, no_more_to_be_done);
}

void PaperFolder::Write(const Workbook& workbook, std::string_view path) {
  const fs::path file = FileFor(path);
  office::WriteWorkbook(workbook, file);
  written_.insert(file);
}

void PaperFolder::Write(const Document& document, std::string_view path) {
  const fs::path file = FileFor(path);
  office::WriteDocument(document, file);
  written_.insert(file);
}

std::optional<fs::path> PaperFolder::WrittenFile(std::string_view path) const {
  fs::path file = office::ProgramPath(path, folder_);
  if (!written_.contains(file)) return {};
  return file;
}

fs::path PaperFolder::FileFor(std::string_view path) {
  if (folder_.empty()) {
    std::string name = (fs::temp_directory_path() / "ovindra-papers-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw PathFileAccess();
    folder_ = name;
  }
  fs::path file = office::ProgramPath(path, folder_);
  // the drive's own folders are thought of as there; those of an ordinary absolute path are or are not
  const bool is_on_drive = file.string().starts_with(folder_.string() + "/");
  std::error_code told_by_the_write;
  if (is_on_drive) fs::create_directories(file.parent_path(), told_by_the_write);
  return file;
}

}  // namespace ovindra::driver
