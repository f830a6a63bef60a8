#include "bench/large_database.h"

#include <cstdio>
#include <stdexcept>

#include <sqlite3.h>

#include "core/schema/schema.h"
#include "tools/setup/demo/demo.h"

namespace ovindra::bench {
namespace {

void Make(const std::filesystem::path& folder, int children) {
  std::fprintf(stderr, "Making a database of %d children in %s ...\n", children, folder.c_str());
  const std::filesystem::path unfinished = folder.string() + ".unfinished";
  std::filesystem::remove_all(unfinished);
  std::filesystem::create_directories(unfinished);
  EmbeddedOptions create;
  create.access = EmbeddedOptions::Access::kCreate;
  {
    const auto screening = EmbeddedDatabase::Open(unfinished / "ZQR.db", create);
    const auto hospital = EmbeddedDatabase::Open(unfinished / "ward.db", create);
    RunScript(*screening, ScreeningSchema());
    RunScript(*hospital, HospitalSchema());
    screening->SetSchemaVersion(kSchemaVersion);
    hospital->SetSchemaVersion(kSchemaVersion);
    screening->RunTogether([&] {
      hospital->RunTogether([&] { FillDemo(*screening, *hospital, DemoScale::ForChildren(children)); });
    });
  }
  std::filesystem::rename(unfinished, folder);
}

std::unique_ptr<EmbeddedDatabase> OpenFile(int children, const char* name) {
  EmbeddedOptions options;
  options.schema_version = kSchemaVersion;
  return EmbeddedDatabase::Open(LargeFolder(children) / name, options);
}

void Check(int code, sqlite3* database) {
  if (code != SQLITE_OK) throw std::runtime_error(sqlite3_errmsg(database));
}

}  // namespace

std::filesystem::path LargeFolder(int children) {
  std::filesystem::path folder = BENCH_FOLDER;
  if (children != kMillion) folder += "-" + std::to_string(children);
  if (!std::filesystem::exists(folder)) Make(folder, children);
  return folder;
}

std::unique_ptr<EmbeddedDatabase> OpenLarge(int children) {
  return OpenFile(children, "ZQR.db");
}

std::unique_ptr<EmbeddedDatabase> OpenLargeHospital(int children) {
  return OpenFile(children, "ward.db");
}

ByHand::ByHand(const char* file) {
  Check(sqlite3_open((LargeFolder() / file).c_str(), &database_), database_);
  for (const char* setting : {"PRAGMA journal_mode=PERSIST", "PRAGMA journal_size_limit=4000000",
                              "PRAGMA synchronous=FULL", "PRAGMA mmap_size=0", "PRAGMA temp_store=MEMORY",
                              "PRAGMA cache_size=-64000", "PRAGMA cell_size_check=ON"}) {
    Check(sqlite3_exec(database_, setting, nullptr, nullptr, nullptr), database_);
  }
}

ByHand::~ByHand() {
  for (sqlite3_stmt* statement : statements_) sqlite3_finalize(statement);
  sqlite3_close(database_);
}

sqlite3_stmt* ByHand::Prepare(const std::string& sql) {
  sqlite3_stmt* statement = nullptr;
  Check(sqlite3_prepare_v2(database_, sql.c_str(), -1, &statement, nullptr), database_);
  return statements_.emplace_back(statement);
}

std::string SchoolOfThreeHundred(EmbeddedDatabase& database) {
  const Recordset school = database.Run(WholeStatement(
      "select top 1 b.SC_Name from Enroll_Master a,School_Master b where a.School_ID=b.SC_ID group "
      "by b.SC_Name having count(*) between 280 and 320 order by b.SC_Name"));
  return Trim(school["SC_Name"]);
}

}  // namespace ovindra::bench
