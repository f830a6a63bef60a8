// A C file that closes itself.
#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>

namespace ovindra::office {

struct FileCloser {
  /// Whoever needs to know that everything was written flushes the file before.
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using FileHandle = std::unique_ptr<std::FILE, FileCloser>;

/// Null when the file can't be opened.
inline FileHandle OpenFile(const std::filesystem::path& file, const char* mode) {
  return FileHandle(std::fopen(file.c_str(), mode));
}

}  // namespace ovindra::office
