#include "platform/office/program_path.h"

#include <algorithm>
#include <string>

namespace ovindra::office {
namespace {

constexpr bool kHasDrives = std::filesystem::path::preferred_separator == '\\';

bool BeginsWithDrive(std::string_view text) {
  const auto is_letter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
  return text.size() >= 2 && is_letter(text[0]) && text[1] == ':';
}

}  // namespace

std::filesystem::path ProgramPath(std::string_view text, const std::filesystem::path& documents) {
  if (text.empty()) return {};
  if (kHasDrives || !BeginsWithDrive(text)) return documents / std::filesystem::path(text);
  std::string beneath(text.substr(2));
  std::replace(beneath.begin(), beneath.end(), '\\', '/');
  return documents / std::filesystem::path(beneath).relative_path();
}

}  // namespace ovindra::office
