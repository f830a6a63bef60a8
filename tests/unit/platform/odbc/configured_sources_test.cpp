// Which way the program's own connections go.
#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/data_sources.h"
#include "core/startup/connection_strings.h"
#include "platform/embedded/embedded_database.h"
#include "tests/unit/platform/odbc/data_source.h"

namespace ovindra {
namespace {

namespace fs = std::filesystem;

class ProgramSources : public testing::Test {
 protected:
  ProgramSources() {
    std::string pattern = (fs::temp_directory_path() / "sources_test_XXXXXX").string();
    folder_ = mkdtemp(pattern.data());
  }
  ~ProgramSources() override { fs::remove_all(folder_); }

  fs::path folder_;
};

TEST_F(ProgramSources, AreTheServersWhereNoFileIsConfigured) {
  ConfiguredDataSources sources({folder_, folder_ / "none"});
  const auto screening = sources.Connect(kScreeningSource);
  EXPECT_THAT(Ask(*screening, "select version() as Product")["Product"].AsText(),
              testing::StartsWith("PostgreSQL"));
  EXPECT_EQ(Ask(*screening, "select current_user as Who")["Who"].AsText(), "sa");
  const auto hospital = sources.Connect(kHospitalSource);
  EXPECT_FALSE(Ask(*hospital, "select sqlite_version() as Product").Eof());
}

TEST_F(ProgramSources, AreTheFilesWhereThereAreSome) {
  EmbeddedOptions options;
  options.access = EmbeddedOptions::Access::kCreate;
  Ask(*EmbeddedDatabase::Open(folder_ / "ZQR.db", options), "create table Of_File (No int)");
  ConfiguredDataSources sources({folder_ / "none", folder_});
  EXPECT_TRUE(Ask(*sources.Connect(kScreeningSource), "select * from Of_File").Eof());
  // Each source goes its own way.
  EXPECT_FALSE(Ask(*sources.Connect(kHospitalSource), "select sqlite_version() as Product").Eof());
}

}  // namespace
}  // namespace ovindra
