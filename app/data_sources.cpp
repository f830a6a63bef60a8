#include "app/data_sources.h"

#include <string>

#include "base/database/connection_string.h"
#include "core/schema/schema.h"
#include "platform/embedded/embedded_database.h"
#include "platform/odbc/odbc_session.h"

namespace ovindra {

std::unique_ptr<Session> ConfiguredDataSources::Connect(std::string_view connection_string) {
  EmbeddedOptions options;
  options.schema_version = kSchemaVersion;
  const std::string file_name = std::string(SourceName(connection_string)) + ".db";
  for (const std::filesystem::path& folder : folders_) {
    const std::filesystem::path file = folder / file_name;
    std::error_code unreadable;
    if (std::filesystem::exists(file, unreadable)) return EmbeddedDatabase::Open(file, options);
  }
  return OdbcSession::Connect(connection_string);
}

}  // namespace ovindra
