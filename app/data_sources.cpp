#include "app/data_sources.h"

#include <string>

#include "base/database/database_error.h"
#include "core/schema/schema.h"
#include "platform/embedded/embedded_database.h"

namespace ovindra {
namespace {

/// The value of DSN in "DSN=ZQR;user ID=sa;pwd=...".
std::string SourceName(std::string_view connection_string) {
  constexpr std::string_view kKey = "DSN=";
  const std::size_t at = connection_string.find(kKey);
  if (at == std::string_view::npos) return {};
  connection_string.remove_prefix(at + kKey.size());
  return std::string(connection_string.substr(0, connection_string.find(';')));
}

}  // namespace

std::unique_ptr<Session> FileDataSources::Connect(std::string_view connection_string) {
  EmbeddedOptions options;
  options.schema_version = kSchemaVersion;
  for (const std::filesystem::path& folder : folders_) {
    const std::filesystem::path file = folder / (SourceName(connection_string) + ".db");
    std::error_code unreadable;
    if (std::filesystem::exists(file, unreadable)) return EmbeddedDatabase::Open(file, options);
  }
  throw ServerRefusal(Refusal::kOther, "Data source name not found, and no default driver specified");
}

}  // namespace ovindra
