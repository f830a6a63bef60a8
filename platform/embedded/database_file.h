// What is asked of a file before SQLite opens it, so that each reason for which it can't be used has its own
// text.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>

namespace ovindra::embedded {

/// Refuses a file that is missing, no database, on a network drive or, unless it is only read, not to be
/// written.
void RequireUsableFile(const std::filesystem::path& path, bool is_only_read);

/// Makes an empty file that is its owner's alone. Refuses one that is there and a folder that can't be
/// written.
void CreateOwnFile(const std::filesystem::path& path);

/// Whether a file system lies on another machine, by the number that the kernel gives it and, since one
/// number serves all that run as programs, by the name under which it is mounted.
bool IsNetworkFileSystem(std::uint32_t number, std::string_view mounted_as);

/// Makes sure that the names of a folder are on the disk.
void SyncFolder(const std::filesystem::path& folder);

}  // namespace ovindra::embedded
