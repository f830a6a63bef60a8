#include "tools/driver/store/database_store.h"

#include <array>
#include <filesystem>
#include <memory>

#include "core/schema/schema.h"
#include "platform/embedded/embedded_database.h"
#include "tools/driver/language/grammar.h"
#include "tools/setup/demo/demo.h"

namespace ovindra::driver {
namespace {

namespace fs = std::filesystem;

/// The file is named as the data source is.
const char* SourceNameOf(DatabaseName name) {
  return name == DatabaseName::kScreening ? "ZQR" : "ward";
}

/// Both databases with one content, as fresh ones are copied from.
class Pair {
 public:
  explicit Pair(DatabaseContent content)
      : databases_{Make(DatabaseName::kScreening, ScreeningSchema()),
                   Make(DatabaseName::kHospital, HospitalSchema())} {
    if (content == DatabaseContent::kEmpty) return;
    EmbeddedDatabase& screening = *databases_[0];
    EmbeddedDatabase& hospital = *databases_[1];
    screening.RunTogether([&] { hospital.RunTogether([&] { FillDemo(screening, hospital); }); });
  }

  std::unique_ptr<Session> Copy(DatabaseName name) const {
    return databases_[static_cast<std::size_t>(name)]->CopyInMemory();
  }

 private:
  static std::unique_ptr<EmbeddedDatabase> Make(DatabaseName name, std::string_view schema) {
    auto database = EmbeddedDatabase::OpenInMemory(SourceNameOf(name));
    database->RunTogether([&] { RunScript(*database, schema); });
    return database;
  }

  std::array<std::unique_ptr<EmbeddedDatabase>, 2> databases_;
};

std::unique_ptr<Session> CopyFresh(DatabaseName name, DatabaseContent content) {
  if (content == DatabaseContent::kDemo) {
    static const Pair demo(DatabaseContent::kDemo);
    return demo.Copy(name);
  }
  static const Pair empty(DatabaseContent::kEmpty);
  return empty.Copy(name);
}

std::string FileIn(const std::string& folder, DatabaseName name) {
  return (fs::path(folder) / (SourceNameOf(name) + std::string(".db"))).string();
}

}  // namespace

DatabaseMaker DatabasesFrom(const std::string& folder) {
  if (folder.empty()) return CopyFresh;
  for (const DatabaseName name : {DatabaseName::kScreening, DatabaseName::kHospital}) {
    if (!fs::is_regular_file(FileIn(folder, name)))
      throw LanguageError("--database: no file " + FileIn(folder, name));
  }
  return [folder](DatabaseName name, DatabaseContent) -> std::unique_ptr<Session> {
    EmbeddedOptions options;
    options.schema_version = kSchemaVersion;
    return EmbeddedDatabase::Open(FileIn(folder, name), options);
  };
}

}  // namespace ovindra::driver
