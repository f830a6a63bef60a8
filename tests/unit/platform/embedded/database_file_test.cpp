#include "platform/embedded/database_file.h"

#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include "test_database.h"

namespace ovindra {
namespace {

namespace fs = std::filesystem;

class DatabaseFile : public testing::Test {
 protected:
  DatabaseFile() {
    std::string pattern = (fs::temp_directory_path() / "ovindra_XXXXXX").string();
    folder_ = mkdtemp(pattern.data());
    path_ = folder_ / "ZQR.db";
  }
  ~DatabaseFile() override {
    fs::permissions(folder_, fs::perms::owner_all);
    fs::remove_all(folder_);
  }

  std::unique_ptr<EmbeddedDatabase> Open(
      EmbeddedOptions::Access access = EmbeddedOptions::Access::kExisting) {
    return EmbeddedDatabase::Open(path_, {access, 3, std::chrono::milliseconds(50)});
  }
  std::unique_ptr<EmbeddedDatabase> Create() {
    auto database = Open(EmbeddedOptions::Access::kCreate);
    database->Run(WholeStatement("create table A (x int, t varchar(10)) insert into A values(1,'one')"));
    return database;
  }
  std::string OpenRefusal(EmbeddedOptions::Access access = EmbeddedOptions::Access::kExisting) {
    return RefusalOf([&] { Open(access); });
  }
  std::string Error(const std::string& text) const { return "-2147467259 " + text; }
  static std::string Count(EmbeddedDatabase& database) {
    return RowsOf(database.Run(WholeStatement("select count(*) from A"))).at(0).at(0);
  }
  std::string Shown() const { return "The database file " + path_.string(); }

  fs::path folder_;
  fs::path path_;
};

TEST_F(DatabaseFile, IsMadeForItsOwnerAlone) {
  Create();
  struct stat information {};
  ASSERT_EQ(stat(path_.c_str(), &information), 0);
  EXPECT_EQ(information.st_mode & 0777, 0600U);
  EXPECT_EQ(Count(*Open()), "1");
}

TEST_F(DatabaseFile, EachReasonHasItsOwnRefusal) {
  EXPECT_EQ(OpenRefusal(), Error(Shown() + " does not exist."));
  EXPECT_FALSE(fs::exists(path_)) << "asking for a file does not make it";
  std::ofstream(path_) << "this is a letter, and no database at all";
  EXPECT_EQ(OpenRefusal(), Error("The file " + path_.string() + " is not a database of this program."));
  EXPECT_EQ(OpenRefusal(EmbeddedOptions::Access::kCreate),
            Error("The file " + path_.string() + " exists already and is left as it is."));
  EXPECT_EQ(fs::file_size(path_), 40U);
  std::ofstream(path_, std::ios::trunc).flush();
  EXPECT_EQ(OpenRefusal(), Error("The file " + path_.string() + " is not a database of this program."));
  fs::remove(path_);
  Create()->SetSchemaVersion(4);
  EXPECT_EQ(OpenRefusal(),
            Error(Shown() + " was made by a newer version of the program (schema 4, this program knows 3)."));
}

TEST_F(DatabaseFile, AFileOrFolderThatCannotBeWrittenIsRefused) {
  if (geteuid() == 0) GTEST_SKIP() << "the administrator may write everywhere";
  Create();
  fs::permissions(path_, fs::perms::owner_read);
  EXPECT_NE(OpenRefusal().find("read-only"), std::string::npos);
  fs::permissions(path_, fs::perms::owner_read | fs::perms::owner_write);
  fs::permissions(folder_, fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_NE(OpenRefusal().find("read-only"), std::string::npos);
}

TEST(NetworkDrives, AreToldFromLocalDisks) {
  constexpr std::uint32_t kNfs = 0x6969;
  constexpr std::uint32_t kCifs = 0xFF534D42;
  constexpr std::uint32_t kExt4 = 0xEF53;
  constexpr std::uint32_t kFuse = 0x65735546;
  EXPECT_TRUE(embedded::IsNetworkFileSystem(kNfs, ""));
  EXPECT_TRUE(embedded::IsNetworkFileSystem(kCifs, ""));
  EXPECT_TRUE(embedded::IsNetworkFileSystem(kFuse, "fuse.sshfs"));
  EXPECT_FALSE(embedded::IsNetworkFileSystem(kFuse, "fuseblk"))
      << "a local disk with a driver that is a program";
  EXPECT_FALSE(embedded::IsNetworkFileSystem(kExt4, ""));
}

TEST_F(DatabaseFile, OpenedToReadItRefusesToWrite) {
  Create();
  const auto database = Open(EmbeddedOptions::Access::kReadOnly);
  EXPECT_EQ(Count(*database), "1");
  EXPECT_NE(RefusalOf([&] { database->Run(WholeStatement("delete from A")); }).find("read-only"),
            std::string::npos);
}

TEST_F(DatabaseFile, ATornFileIsRefusedAsDamaged) {
  {
    const auto database = Create();
    database->RunTogether([&] {
      for (int i = 0; i < 2000; ++i)
        database->Run(sql("insert into A values(", bare("2"), ",", quoted("row"), ")"));
    });
    EXPECT_TRUE(database->IntegrityReport().empty());
  }
  std::fstream file(path_, std::ios::in | std::ios::out | std::ios::binary);
  file.seekp(2L * 4096);
  file << std::string(8000, 'x');
  file.close();
  const auto database = Open();
  EXPECT_FALSE(database->IntegrityReport().empty());
  EXPECT_NE(RefusalOf([&] { database->Run(WholeStatement("select * from A")); }).find("is damaged"),
            std::string::npos);
}

TEST_F(DatabaseFile, ALockedFileIsWaitedForAndThenRefused) {
  const auto database = Create();
  sqlite3* other = nullptr;
  sqlite3_open(path_.c_str(), &other);
  ASSERT_EQ(sqlite3_exec(other, "begin exclusive", nullptr, nullptr, nullptr), SQLITE_OK);
  const std::string busy = Error(Shown() + " is in use by another program. Try again in a moment.");
  EXPECT_EQ(RefusalOf([&] { database->Run(WholeStatement("insert into A values(2,'two')")); }), busy);
  EXPECT_EQ(RefusalOf([&] { database->Run(WholeStatement("if exists(select * from A) delete from A")); }),
            busy);
  EXPECT_EQ(RefusalOf([&] { database->Run(WholeStatement("select x from A")); }), busy);
  EXPECT_EQ(OpenRefusal(), busy);
  EXPECT_EQ(RefusalOf([&] { database->BackupTo(folder_ / "copy.db"); }), busy);
  sqlite3_exec(other, "rollback", nullptr, nullptr, nullptr);
  sqlite3_close(other);
  EXPECT_EQ(Count(*database), "1");
}

TEST_F(DatabaseFile, TwoProgramsSeeEachOthersRowsAndTables) {
  const auto first = Create();
  const auto second = Open();
  const auto star = [&] { return RowsOf(second->Run(WholeStatement("select * from A where x=1"))); };
  EXPECT_EQ(star(), (Rows{{"1", "one"}}));
  second->Run(WholeStatement("insert into A values(2,'two')"));
  first->Run(WholeStatement("alter table A add extra varchar(5)"));
  EXPECT_EQ(star(), (Rows{{"1", "one", "NULL"}})) << "the star means the columns that are there now";
  EXPECT_EQ(RefusalOf([&] { second->Run(WholeStatement("insert into A values(2,'two')")); }),
            "-2147217900 Column name or number of supplied values does not match table definition.");
  first->Run(WholeStatement("select x as y into B from A"));
  EXPECT_EQ(RowsOf(second->Run(WholeStatement("select y from B order by y"))), (Rows{{"1"}, {"2"}}));
  first->Run(WholeStatement("drop table B create table B (y varchar(5))"));
  second->Run(WholeStatement("insert into B values('abc')"));
  EXPECT_EQ(RowsOf(first->Run(WholeStatement("select * from B"))), (Rows{{"abc"}}));
  first->Run(WholeStatement("drop table B"));
  EXPECT_EQ(RefusalOf([&] { second->Run(WholeStatement("select y from B order by y")); }),
            "-2147217865 Invalid object name 'B'.");
}

TEST_F(DatabaseFile, WorkDoneTogetherIsAllOrNothing) {
  const auto database = Create();
  EXPECT_NE(RefusalOf([&] {
              database->RunTogether([&] {
                database->Run(WholeStatement("insert into A values(2,'two') select x into C from A"));
                database->Run(WholeStatement("insert into A values(3,'longer than ten')"));
              });
            }),
            "not refused");
  EXPECT_EQ(Count(*database), "1");
  EXPECT_EQ(RefusalOf([&] { database->Run(WholeStatement("select * from C")); }),
            "-2147217865 Invalid object name 'C'.");
}

TEST_F(DatabaseFile, ABackupIsWholeAndReplacesTheOneBefore) {
  const auto database = Create();
  const fs::path copy = folder_ / "copy.db";
  database->BackupTo(copy);
  database->Run(WholeStatement("insert into A values(2,'two')"));
  database->BackupTo(copy);
  EXPECT_EQ(Count(*EmbeddedDatabase::Open(copy)), "2");
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder_)) names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (std::vector<std::string>{"ZQR.db", "ZQR.db-journal", "copy.db"}))
      << "and nothing is left beside it";
  EXPECT_NE(RefusalOf([&] { database->BackupTo(path_); }), "not refused");
  EXPECT_NE(RefusalOf([&] { database->BackupTo(folder_ / "no such folder" / "copy.db"); }), "not refused");
}

TEST_F(DatabaseFile, KeepsTheNumberOfItsSchema) {
  Create()->SetSchemaVersion(3);
  EXPECT_EQ(Open()->SchemaVersion(), 3);
}

}  // namespace
}  // namespace ovindra
