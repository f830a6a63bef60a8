// Where the program's own path texts lie on a machine without drives.
#pragma once

#include <filesystem>
#include <string_view>

namespace ovindra::office {

/// The file that a path text names. On a machine with drives that is the text itself; elsewhere the drive of
/// `C:\Enroll.xls` is the documents folder, and an ordinary absolute path is itself. A relative name lies in
/// the documents folder. The empty text names no file.
std::filesystem::path ProgramPath(std::string_view text, const std::filesystem::path& documents);

}  // namespace ovindra::office
