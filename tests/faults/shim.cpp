// Preloaded into a program, fails its calls on the files whose path begins with FAULT_FILES (a folder, or
// one file). The calls that change a file are counted from 1; FAULT_AT is the number of the one that fails,
// and FAULT_KIND tells how:
//   kill    the program is killed in place of the call
//   tear    half is written, then the program is killed; here the writes alone are counted
//   io      the call fails with EIO, those after it don't
//   full    this call and every later one fails with ENOSPC
//   short   half is written, then every later call fails with ENOSPC
//   gone    from this call on every reading fails with EIO; here the readings alone are counted
// At the program's end the count is written to the file FAULT_COUNT.
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include <dlfcn.h>
#include <unistd.h>

namespace {

enum class Kind { kNone, kKill, kTear, kIo, kFull, kShort, kGone };

std::string_view Setting(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string_view() : value;
}

Kind KindNamed(std::string_view name) {
  constexpr std::string_view kNames[] = {"kill", "tear", "io", "full", "short", "gone"};
  const auto* found = std::find(std::begin(kNames), std::end(kNames), name);
  return found == std::end(kNames) ? Kind::kNone : static_cast<Kind>(found - std::begin(kNames) + 1);
}

struct Plan {
  Plan() {
    // What a person has seen must be known of a program that is killed.
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
  }
  ~Plan() {
    if (std::FILE* file = std::fopen(std::string(Setting("FAULT_COUNT")).c_str(), "w")) {
      std::fprintf(file, "%ld\n", count);
      std::fclose(file);
    }
  }

  std::string files{Setting("FAULT_FILES")};
  Kind kind = KindNamed(Setting("FAULT_KIND"));
  long at = std::atol(std::string(Setting("FAULT_AT")).c_str());
  long count = 0;
};

Plan& ThePlan() {
  static Plan plan;
  return plan;
}

/// Made when the program starts, before it writes anything.
const Plan& made_at_start = ThePlan();

bool IsWatched(std::string_view path) {
  return !ThePlan().files.empty() && path.starts_with(ThePlan().files);
}

bool IsWatched(int file) {
  char path[4096];
  const ssize_t length = readlink(("/proc/self/fd/" + std::to_string(file)).c_str(), path, sizeof(path));
  return length > 0 && IsWatched({path, static_cast<std::size_t>(length)});
}

/// The function that stands behind this one.
template <typename Function>
Function* Real(Function*, const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

enum class Verdict { kPass, kFail, kHalf };

/// What becomes of the next call that changes a watched file.
Verdict NextChange() {
  Plan& plan = ThePlan();
  if (plan.kind == Kind::kGone) return Verdict::kPass;
  const long distance = ++plan.count - plan.at;
  const bool lasts = plan.kind == Kind::kFull || plan.kind == Kind::kShort;
  if (plan.kind == Kind::kNone || distance < 0 || (distance > 0 && !lasts)) return Verdict::kPass;
  if (plan.kind == Kind::kKill) raise(SIGKILL);
  errno = plan.kind == Kind::kIo ? EIO : ENOSPC;
  const bool halves = plan.kind == Kind::kTear || (plan.kind == Kind::kShort && distance == 0);
  return halves ? Verdict::kHalf : Verdict::kFail;
}

/// A call that writes so many bytes; `write` writes that many or fewer.
template <typename Write>
ssize_t Written(bool is_watched, std::size_t size, Write write) {
  const Verdict verdict = is_watched ? NextChange() : Verdict::kPass;
  if (verdict == Verdict::kFail) return -1;
  if (verdict == Verdict::kPass) return write(size);
  const ssize_t half = write(size / 2);
  if (ThePlan().kind == Kind::kTear) raise(SIGKILL);
  return half;
}

/// A call that changes a file in another way; there is no half of it.
template <typename Change>
int Changed(bool is_watched, Change change) {
  if (!is_watched || ThePlan().kind == Kind::kTear) return change();
  return NextChange() == Verdict::kPass ? change() : -1;
}

/// Whether the file can't be read any more.
bool IsGone(int file) {
  Plan& plan = ThePlan();
  if (plan.kind != Kind::kGone || !IsWatched(file) || ++plan.count < plan.at) return false;
  errno = EIO;
  return true;
}

}  // namespace

extern "C" {

ssize_t write(int file, const void* data, std::size_t size) {
  static auto* const real = Real(&write, "write");
  return Written(IsWatched(file), size, [&](std::size_t part) { return real(file, data, part); });
}

ssize_t pwrite64(int file, const void* data, std::size_t size, off64_t offset) {
  static auto* const real = Real(&pwrite64, "pwrite64");
  return Written(IsWatched(file), size, [&](std::size_t part) { return real(file, data, part, offset); });
}

ssize_t pwrite(int file, const void* data, std::size_t size, off_t offset) {
  return pwrite64(file, data, size, offset);
}

int fsync(int file) {
  static auto* const real = Real(&fsync, "fsync");
  return Changed(IsWatched(file), [&] { return real(file); });
}

int fdatasync(int file) {
  static auto* const real = Real(&fdatasync, "fdatasync");
  return Changed(IsWatched(file), [&] { return real(file); });
}

int ftruncate64(int file, off64_t size) noexcept {
  static auto* const real = Real(&ftruncate64, "ftruncate64");
  return Changed(IsWatched(file), [&] { return real(file, size); });
}

int ftruncate(int file, off_t size) noexcept {
  return ftruncate64(file, size);
}

int unlink(const char* path) noexcept {
  static auto* const real = Real(&unlink, "unlink");
  return Changed(IsWatched(path), [&] { return real(path); });
}

int rename(const char* from, const char* to) noexcept {
  static auto* const real = Real(&rename, "rename");
  return Changed(IsWatched(to), [&] { return real(from, to); });
}

ssize_t pread64(int file, void* data, std::size_t size, off64_t offset) {
  static auto* const real = Real(&pread64, "pread64");
  return IsGone(file) ? -1 : real(file, data, size, offset);
}

ssize_t pread(int file, void* data, std::size_t size, off_t offset) {
  return pread64(file, data, size, offset);
}
}
