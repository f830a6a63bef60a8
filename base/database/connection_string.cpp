#include "base/database/connection_string.h"

#include <algorithm>

#include "base/text/blanks.h"
#include "base/text/utf8.h"

namespace ovindra {

std::vector<ConnectionPart> ConnectionParts(std::string_view connection_string) {
  std::vector<ConnectionPart> parts;
  while (!connection_string.empty()) {
    const std::string_view part = connection_string.substr(0, connection_string.find(';'));
    connection_string.remove_prefix(std::min(part.size() + 1, connection_string.size()));
    const std::size_t equals = part.find('=');
    if (equals == std::string_view::npos || equals == 0) continue;
    parts.push_back({Trim(part.substr(0, equals)), Trim(part.substr(equals + 1))});
  }
  return parts;
}

std::string_view SourceName(std::string_view connection_string) {
  for (const ConnectionPart& part : ConnectionParts(connection_string)) {
    if (SameWithoutCase(part.key, "DSN")) return part.value;
  }
  return {};
}

}  // namespace ovindra
