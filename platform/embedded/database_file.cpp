#include "platform/embedded/database_file.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <system_error>

#include <fcntl.h>
#include <sys/statfs.h>
#include <unistd.h>

#include "platform/embedded/refusals.h"

namespace ovindra::embedded {
namespace {

/// A file handle that closes itself.
class FileHandle {
 public:
  explicit FileHandle(int handle) : handle_(handle) {}
  ~FileHandle() {
    if (handle_ >= 0) close(handle_);
  }
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;

  int get() const { return handle_; }
  bool IsOpen() const { return handle_ >= 0; }

 private:
  int handle_;
};

/// The file systems whose locks can't be trusted, by the numbers that the kernel gives them (linux/magic.h
/// and the sources of their drivers).
constexpr std::uint32_t kNetworkFileSystems[] = {
    0x6969,      // nfs
    0x517B,      // smb
    0xFF534D42,  // cifs
    0xFE534D42,  // smb2
    0x564C,      // ncp
    0x01021997,  // 9p
    0x00C36400,  // ceph
    0x5346414F,  // afs
    0x73757245,  // coda
};

/// File systems that run as programs; among them are drivers of local disks too.
constexpr std::uint32_t kUserFileSystem = 0x65735546;
constexpr std::string_view kNetworkPrograms[] = {
    "fuse.sshfs",     "fuse.gvfsd-fuse", "fuse.rclone",   "fuse.s3fs",     "fuse.davfs", "fuse.glusterfs",
    "fuse.ceph-fuse", "fuse.curlftpfs",  "fuse.smbnetfs", "fuse.kio-fuse", "fuse"};

/// The name of the file system that a place is mounted as, from the kernel's list of mounts.
std::string MountedAs(const std::filesystem::path& place) {
  std::error_code error;
  const std::string path = std::filesystem::weakly_canonical(place, error).string();
  std::ifstream mounts("/proc/self/mountinfo");
  std::string name;
  std::size_t longest = 0;
  for (std::string line; std::getline(mounts, line);) {
    // The mount point is the fifth word; the file system's name follows a hyphen that stands alone.
    std::istringstream words(line);
    std::string word;
    std::string point;
    for (int i = 1; i <= 5; ++i) words >> point;
    while (words >> word && word != "-") continue;
    const bool is_inside = path.starts_with(point) &&
                           (point.ends_with('/') || path.size() == point.size() || path[point.size()] == '/');
    if (is_inside && point.size() >= longest && words >> word) {
      longest = point.size();
      name = word;
    }
  }
  return name;
}

std::filesystem::path FolderOf(const std::filesystem::path& path) {
  const std::filesystem::path folder = path.parent_path();
  return folder.empty() ? std::filesystem::path(".") : folder;
}

void RequireLocalDisk(const std::filesystem::path& place, const std::filesystem::path& path) {
  struct statfs information {};
  if (statfs(place.c_str(), &information) != 0) return;
  const auto number = static_cast<std::uint32_t>(information.f_type);
  const std::string mounted_as = number == kUserFileSystem ? MountedAs(place) : std::string();
  if (IsNetworkFileSystem(number, mounted_as)) throw FileIsOnNetwork(path.string());
}

bool BeginsAsDatabase(const std::filesystem::path& path) {
  constexpr std::string_view kHeader("SQLite format 3\0", 16);
  std::array<char, kHeader.size()> head{};
  const FileHandle file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (!file.IsOpen()) throw FileCannotBeUsed(path.string(), std::strerror(errno));
  const auto count = read(file.get(), head.data(), head.size());
  return count == static_cast<ssize_t>(head.size()) && std::string_view(head.data(), head.size()) == kHeader;
}

}  // namespace

bool IsNetworkFileSystem(std::uint32_t number, std::string_view mounted_as) {
  const auto is_one_of = [](const auto& list, const auto& each) {
    return std::find(std::begin(list), std::end(list), each) != std::end(list);
  };
  if (number == kUserFileSystem) return is_one_of(kNetworkPrograms, mounted_as);
  return is_one_of(kNetworkFileSystems, number);
}

void RequireUsableFile(const std::filesystem::path& path, bool is_only_read) {
  std::error_code error;
  if (!std::filesystem::exists(path, error)) throw FileIsMissing(path.string());
  if (!std::filesystem::is_regular_file(path, error)) throw FileIsNoDatabase(path.string());
  RequireLocalDisk(path, path);
  if (!BeginsAsDatabase(path)) throw FileIsNoDatabase(path.string());
  if (is_only_read) return;
  // The journal of a statement stands beside the file.
  if (access(path.c_str(), W_OK) != 0 || access(FolderOf(path).c_str(), W_OK) != 0) {
    throw FileIsReadOnly(path.string());
  }
}

void CreateOwnFile(const std::filesystem::path& path) {
  constexpr mode_t kOwnerOnly = 0600;
  RequireLocalDisk(FolderOf(path), path);
  const FileHandle file(open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, kOwnerOnly));
  if (file.IsOpen()) return;
  if (errno == EEXIST) throw FileIsThere(path.string());
  if (errno == EACCES || errno == EROFS) throw FileIsReadOnly(path.string());
  throw FileCannotBeUsed(path.string(), std::strerror(errno));
}

void SyncFolder(const std::filesystem::path& folder) {
  const FileHandle handle(open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (handle.IsOpen()) fsync(handle.get());
}

}  // namespace ovindra::embedded
