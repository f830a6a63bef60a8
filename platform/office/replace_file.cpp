#include "platform/office/replace_file.h"

#include <cerrno>
#include <string>
#include <system_error>

#include <unistd.h>

#include "base/runtime_error.h"
#include "platform/office/file_handle.h"

namespace ovindra::office {
namespace {

namespace fs = std::filesystem;

/// An empty file beside the target that is removed again unless it was moved over it.
class FileBeside {
 public:
  explicit FileBeside(const fs::path& target) {
    // the name's length doesn't depend on that of the target, which may be as long as a name can be
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
      path_ = target.parent_path() /
              (".ovindra-" + std::to_string(getpid()) + "-" + std::to_string(attempt) + ".part");
      if (OpenFile(path_, "wbx") != nullptr) return;
      if (errno != EEXIST) break;
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
