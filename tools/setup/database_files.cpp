#include "tools/setup/database_files.h"

#include <system_error>

#include "core/schema/schema.h"
#include "core/startup/connection_strings.h"
#include "platform/embedded/database_file.h"
#include "platform/embedded/refusals.h"

namespace ovindra {
namespace {

namespace fs = std::filesystem;

constexpr Source kSources[] = {Source::kHospital, Source::kScreening};

/// A database that is being made. Without Keep() it is gone when the object goes.
class UnfinishedFile {
 public:
  UnfinishedFile(const fs::path& folder, Source source)
      : place_(DatabaseFile(folder, source)), file_(place_.string() + ".unfinished") {
    // What an earlier run has left when it was killed.
    Remove();
    EmbeddedOptions options;
    options.access = EmbeddedOptions::Access::kCreate;
    options.schema_version = kSchemaVersion;
    database_ = EmbeddedDatabase::Open(file_, options);
    database_->RunTogether([&] { RunScript(*database_, SchemaOf(source)); });
    database_->SetSchemaVersion(kSchemaVersion);
  }
  ~UnfinishedFile() {
    database_.reset();
    Remove();
  }
  UnfinishedFile(const UnfinishedFile&) = delete;
  UnfinishedFile& operator=(const UnfinishedFile&) = delete;

  EmbeddedDatabase& database() { return *database_; }

  void Keep() {
    database_.reset();
    // A link, unlike a new name, never replaces a file that has come there meanwhile. Not every disk has
    // links.
    std::error_code error;
    fs::create_hard_link(file_, place_, error);
    if (error == std::errc::file_exists) throw embedded::FileIsThere(place_.string());
    if (error) fs::rename(file_, place_);
  }

 private:
  void Remove() {
    std::error_code error;
    fs::remove(file_, error);
    fs::remove(file_.string() + "-journal", error);
  }

  fs::path place_;
  fs::path file_;
  std::unique_ptr<EmbeddedDatabase> database_;
};

}  // namespace

fs::path DatabaseFile(const fs::path& folder, Source source) {
  return folder / (source == Source::kScreening ? "ZQR.db" : "ward.db");
}

std::string_view SchemaOf(Source source) {
  return source == Source::kScreening ? ScreeningSchema() : HospitalSchema();
}

std::string_view ConnectionStringOf(Source source) {
  return source == Source::kScreening ? kScreeningSource : kHospitalSource;
}

std::unique_ptr<EmbeddedDatabase> OpenDatabase(const fs::path& folder, Source source) {
  EmbeddedOptions options;
  options.schema_version = kSchemaVersion;
  return EmbeddedDatabase::Open(DatabaseFile(folder, source), options);
}

std::unique_ptr<EmbeddedDatabase> FreshDatabase(Source source) {
  std::unique_ptr<EmbeddedDatabase> database = EmbeddedDatabase::OpenInMemory();
  RunScript(*database, SchemaOf(source));
  return database;
}

void RequireNoDatabases(const fs::path& folder) {
  for (const Source source : kSources) {
    const fs::path file = DatabaseFile(folder, source);
    if (fs::exists(file)) throw embedded::FileIsThere(file.string());
  }
}

void MakeDatabases(const fs::path& folder,
                   const std::function<void(Session& screening, Session& hospital)>& fill) {
  RequireNoDatabases(folder);
  fs::create_directories(folder);
  UnfinishedFile hospital(folder, Source::kHospital);
  UnfinishedFile screening(folder, Source::kScreening);
  screening.database().RunTogether(
      [&] { hospital.database().RunTogether([&] { fill(screening.database(), hospital.database()); }); });
  hospital.Keep();
  screening.Keep();
  embedded::SyncFolder(folder);
}

}  // namespace ovindra
