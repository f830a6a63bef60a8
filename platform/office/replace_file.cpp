#include "platform/office/replace_file.h"

#include <cerrno>
#include <string>
#include <string_view>
#include <system_error>

#include <sys/file.h>
#include <unistd.h>

#include "base/runtime_error.h"
#include "platform/office/file_handle.h"

namespace ovindra::office {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kPrefix = ".ovindra-";
constexpr std::string_view kSuffix = ".part";

/// Whether nobody else has locked the file; it is ours then as long as the handle stands. The lock goes with
/// the program that holds it, however that ends.
bool Lock(const FileHandle& file) {
  return file != nullptr && flock(fileno(file.get()), LOCK_EX | LOCK_NB) == 0;
}

/// Removes what a program that was killed has left: a file beside a target that nobody is writing.
void RemoveLeftOver(const fs::path& folder) {
  std::error_code stays;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder, stays)) {
    const std::string name = entry.path().filename().string();
    if (!name.starts_with(kPrefix) || !name.ends_with(kSuffix)) continue;
    if (const FileHandle file = OpenFile(entry.path(), "r+b"); Lock(file)) fs::remove(entry.path(), stays);
  }
}

/// An empty file beside the target that is removed again unless it was moved over it.
class FileBeside {
 public:
  explicit FileBeside(const fs::path& target) {
    const fs::path folder = target.parent_path();
    RemoveLeftOver(folder.empty() ? "." : folder);
    // the name's length doesn't depend on that of the target, which may be as long as a name can be
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
      path_ = folder / (std::string(kPrefix) + std::to_string(getpid()) + "-" + std::to_string(attempt) +
                        std::string(kSuffix));
      held_ = OpenFile(path_, "wbx");
      if (held_ == nullptr && errno != EEXIST) break;
      // between the two another program may have taken it for a left one
      if (Lock(held_) && fs::exists(path_)) return;
    }
    throw PathFileAccess();
  }
  ~FileBeside() {
    std::error_code no_more_to_be_done;
    if (!moved_) fs::remove(path_, no_more_to_be_done);
  }
  FileBeside(const FileBeside&) = delete;
  FileBeside& operator=(const FileBeside&) = delete;

  const fs::path& path() const { return path_; }

  void BringToDisk() const {
    const FileHandle file = OpenFile(path_, "rb");
    if (file == nullptr || fsync(fileno(file.get())) != 0) throw PathFileAccess();
  }

  void MoveOver(const fs::path& target) {
    fs::rename(path_, target);
    moved_ = true;
  }

 private:
  static constexpr int kAttempts = 100;

  fs::path path_;
  FileHandle held_;
  bool moved_ = false;
};

/// A rename asks only whether the folder may be changed; a file that is locked or read-only stays.
void RequireWritable(const fs::path& target) {
  if (fs::exists(target) && OpenFile(target, "r+b") == nullptr) throw PathFileAccess();
}

}  // namespace

void ReplaceFile(const fs::path& target, const std::function<void(const fs::path& beside)>& write) {
  if (!target.has_filename()) throw PathFileAccess();
  try {
    // a link stays a link: what it names is replaced
    const fs::path place = fs::is_symlink(target) ? fs::weakly_canonical(target) : target;
    RequireWritable(place);
    FileBeside beside(place);
    write(beside.path());
    if (fs::exists(place)) fs::permissions(beside.path(), fs::status(place).permissions());
    beside.BringToDisk();
    beside.MoveOver(place);
  } catch (const fs::filesystem_error&) {
    throw PathFileAccess();
  }
}

}  // namespace ovindra::office
