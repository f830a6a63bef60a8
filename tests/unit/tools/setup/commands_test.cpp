#include <algorithm>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "core/schema/schema.h"
#include "tests/unit/tools/setup/played_command.h"
#include "tests/unit/tools/setup/test_database.h"
#include "tools/setup/answers.h"
#include "tools/setup/database_files.h"

namespace ovindra {
namespace {

namespace fs = std::filesystem;

/// The program in a folder of its own.
class SetupProgram : public testing::Test {
 protected:
  SetupProgram() {
    std::string pattern = (fs::temp_directory_path() / "setup_test_XXXXXX").string();
    root_ = mkdtemp(pattern.data());
    folder_ = (root_ / "data").string();
  }
  ~SetupProgram() override { fs::remove_all(root_); }

  /// Runs a command and gives its exit code; what it wrote is in out_ and error_.
  int Run(const std::vector<std::string>& arguments, const std::string& input = {}) {
    const PlayedCommand played = Play(arguments, input);
    out_ = played.out;
    error_ = played.error;
    return played.code;
  }
  int CreateBoss() { return Run({"create", folder_, "--user", "BOSS", "--password", "secret"}); }

  std::string Write(const std::string& name, const std::string& text) {
    fs::create_directories(folder_);
    std::ofstream(fs::path(folder_) / name) << text;
    return text;
  }
  std::string Read(const std::string& name) {
    std::ifstream file(fs::path(folder_) / name);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::vector<std::string> Files() {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_))
      names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }

  fs::path root_;
  std::string folder_;
  std::string out_;
  std::string error_;
};

TEST_F(SetupProgram, CreatesBothDatabasesWithAUserWhoMayDoEverything) {
  ASSERT_EQ(CreateBoss(), kDone) << error_;
  EXPECT_EQ(Files(), (std::vector<std::string>{"ZQR.db", "ward.db"}));
  const auto screening = OpenDatabase(folder_, Source::kScreening);
  EXPECT_EQ(RowsOf(*screening, "Select * from User_Master where User_Name='BOSS' and Password='secret'"),
            "1|BOSS|secret");
  const std::string rights = RowsOf(*screening, "select Access from User_Rights where User_Code=1");
  for (const char* right : {"m1(0)", "m1(4)", "m2(0)", "m2(10)", "m3(0)", "m3(11)"})
    EXPECT_NE(rights.find(right), std::string::npos) << right;
  // Open to everybody: the form of the users has no box for them.
  for (const char* item : {"m1(5)", "m1(6)", "m2(11)", "m2(12)"})
    EXPECT_EQ(rights.find(item), std::string::npos) << item;
  EXPECT_EQ(screening->SchemaVersion(), kSchemaVersion);
  EXPECT_EQ(RowsOf(*OpenDatabase(folder_, Source::kHospital), "select mr_no from medical_record_dtl"), "");
}

TEST_F(SetupProgram, AsksForTheUserWhoIsNotNamed) {
  ASSERT_EQ(Run({"create", folder_}, " BOSS \nsecret\n"), kDone) << error_;
  EXPECT_EQ(RowsOf(*OpenDatabase(folder_, Source::kScreening), "Select User_Name,Password from User_Master"),
            "BOSS|secret");
}

TEST_F(SetupProgram, RefusesAUserWhoCouldNotLogIn) {
  struct Bad {
    std::string name;
    std::string password;
    const char* text;
  };
  for (const Bad& bad :
       {Bad{"", "x", "name must not be empty"}, Bad{"BOSS", " ", "password must not be empty"},
        Bad{std::string(31, 'N'), "x", "longer than 30"}, Bad{"BOSS", "12345678901", "longer than 10"},
        Bad{"O'NEIL", "x", "quote"}, Bad{"BOSS", "it's", "quote"}}) {
    EXPECT_EQ(Run({"create", folder_, "--user", bad.name, "--password", bad.password}), kMisused);
    EXPECT_NE(error_.find(bad.text), std::string::npos) << error_;
    EXPECT_FALSE(fs::exists(folder_));
  }
}

TEST_F(SetupProgram, OverwritesNothing) {
  for (const char* file : {"ZQR.db", "ward.db"}) {
    fs::remove_all(folder_);
    const std::string before = Write(file, "somebody's file");
    EXPECT_EQ(CreateBoss(), kFailed);
    EXPECT_NE(error_.find("exists already"), std::string::npos) << error_;
    EXPECT_EQ(Run({"demo", folder_}), kFailed);
    EXPECT_EQ(Read(file), before);
    EXPECT_EQ(Files(), std::vector<std::string>{file});
  }
  fs::remove_all(folder_);
  ASSERT_EQ(CreateBoss(), kDone);
  const std::string before = Write("saved.db", "an older copy");
  EXPECT_EQ(Run({"backup", folder_, folder_ + "/saved.db"}), kFailed);
  EXPECT_EQ(Read("saved.db"), before);
}

TEST_F(SetupProgram, FinishesWhatAKilledRunHasLeft) {
  Write("ZQR.db.unfinished", "half a database");
  ASSERT_EQ(CreateBoss(), kDone) << error_;
  EXPECT_EQ(Files(), (std::vector<std::string>{"ZQR.db", "ward.db"}));
}

TEST_F(SetupProgram, TellsWhyAFileCannotBeUsed) {
  const auto refused = [&](const char* reason) {
    EXPECT_EQ(Run({"sql", folder_, "select 1 as A"}), kFailed);
    EXPECT_NE(error_.find(reason), std::string::npos) << error_;
    EXPECT_EQ(std::count(error_.begin(), error_.end(), '\n'), 1) << error_;
    EXPECT_EQ(Run({"check", folder_}), kFailed);
    EXPECT_EQ(Run({"backup", folder_, folder_ + "/copy.db"}), kFailed);
    EXPECT_FALSE(fs::exists(folder_ + "/copy.db"));
  };
  refused("does not exist");
  Write("ZQR.db", "A letter, and no database at all.");
  refused("is not a database");
  fs::remove_all(folder_);
  ASSERT_EQ(CreateBoss(), kDone);
  OpenDatabase(folder_, Source::kScreening)->SetSchemaVersion(kSchemaVersion + 1);
  refused("newer version");
}

TEST_F(SetupProgram, DemoPrintsItsLogins) {
  ASSERT_EQ(Run({"demo", folder_, "--children", "200"}), kDone) << error_;
  EXPECT_NE(out_.find("ADMIN, password admin"), std::string::npos) << out_;
  EXPECT_EQ(RowsOf(*OpenDatabase(folder_, Source::kScreening), "select count(*) as Total from Enroll_Master"),
            "200");
  EXPECT_EQ(Run({"check", folder_}), kDone) << out_;
  for (const char* number : {"99", "many", "12x", "-5", "5000001"})
    EXPECT_EQ(Run({"demo", folder_ + "2", "--children", number}), kMisused) << number;
}

TEST_F(SetupProgram, ChecksAndRepairs) {
  ASSERT_EQ(CreateBoss(), kDone);
  {
    const auto screening = OpenDatabase(folder_, Source::kScreening);
    screening->Run(WholeStatement("insert into Enroll_Master (Enroll_No) values ('A41')"));
    screening->Run(WholeStatement("delete from Running_Number where RNControl_Code='ENROLL_NO'"));
  }
  EXPECT_EQ(Run({"check", folder_}), kFailed);
  EXPECT_NE(out_.find("ZQR.db: The table Running_Number has no row ENROLL_NO."), std::string::npos) << out_;
  // The counter that is put back stands behind the child, which shows only then.
  EXPECT_EQ(Run({"check", folder_, "--repair"}), kDone) << out_;
  EXPECT_EQ(RowsOf(*OpenDatabase(folder_, Source::kScreening),
                   "select Control_Value from Running_Number where RNControl_Code='ENROLL_NO'"),
            "42");
  EXPECT_EQ(Run({"check", folder_}), kDone) << out_;
  EXPECT_EQ(out_, "All is well.\n");
}

TEST_F(SetupProgram, SavesACopyWhileTheProgramHasTheFileOpen) {
  ASSERT_EQ(CreateBoss(), kDone);
  const auto program = OpenDatabase(folder_, Source::kScreening);
  program->Run(WholeStatement("insert into Hospital values ('H1','ONE')"));
  ASSERT_EQ(Run({"backup", folder_, folder_ + "/saved.db"}), kDone) << error_;
  program->Run(WholeStatement("insert into Hospital values ('H2','TWO')"));

  const fs::path restored = root_ / "restored";
  fs::create_directories(restored);
  fs::rename(folder_ + "/saved.db", restored / "ZQR.db");
  EXPECT_EQ(RowsOf(*OpenDatabase(restored, Source::kScreening), "select H_ID from Hospital"), "H1");
  ASSERT_EQ(Run({"backup", "--hospital", folder_, (restored / "ward.db").string()}), kDone) << error_;
  EXPECT_EQ(Run({"check", restored.string()}), kDone) << out_;
}

TEST_F(SetupProgram, AnswersStatements) {
  ASSERT_EQ(CreateBoss(), kDone);
  EXPECT_EQ(
      Run({"sql", folder_, "select Location_ID,Location_Name from Location_Master where Location_ID='S'"}),
      kDone);
  EXPECT_EQ(out_,
            "Location_ID  Location_Name\n"
            "-----------  -------------\n"
            "S            SCHOOL\n"
            "1 row\n");
  EXPECT_EQ(Run({"sql", folder_, "--hospital", "insert into icd_code_master values ('H55','NYSTAGMUS')"}),
            kDone);
  EXPECT_EQ(out_, "1 row changed\n");
  EXPECT_EQ(Run({"sql", folder_, "select * from Nowhere"}), kFailed);
  EXPECT_EQ(error_, "Error -2147217865: Invalid object name 'Nowhere'.\n");
  EXPECT_EQ(Run({"sql", folder_, " "}), kFailed);
}

TEST_F(SetupProgram, AnswersEachLineWithALineOfJson) {
  ASSERT_EQ(CreateBoss(), kDone);
  EXPECT_EQ(Run({"sql", folder_, "--json", "-"},
                "insert into Enroll_Master (Enroll_No,Age,Enroll_Date) values ('A1',7,'05/31/2016')\n"
                "\n"
                "select Enroll_No,Age,Enroll_Date,Class from Enroll_Master\n"
                "select Class from Enroll_Master where 1=0\n"
                "select * from Nowhere"),
            kFailed);
  EXPECT_EQ(out_,
            "{\"count\":1}\n"
            "{\"columns\":[\"Enroll_No\",\"Age\",\"Enroll_Date\",\"Class\"],"
            "\"rows\":[[\"A1\",\"7\",\"2016-05-31\",null]]}\n"
            "{\"columns\":[\"Class\"],\"rows\":[]}\n"
            "{\"error\":-2147217865,\"text\":\"Invalid object name 'Nowhere'.\"}\n");
}

TEST_F(SetupProgram, TellsHowACommandIsUsed) {
  const std::vector<std::vector<std::string>> misused{{},
                                                      {"frobnicate"},
                                                      {"create"},
                                                      {"create", "a", "b"},
                                                      {"create", "a", "--user"},
                                                      {"check", "a", "--mend"},
                                                      {"backup", "a"},
                                                      {"sql", "a"}};
  for (const auto& arguments : misused) {
    EXPECT_EQ(Run(arguments), kMisused);
    EXPECT_NE(error_.find("ovindra-setup"), std::string::npos);
    EXPECT_TRUE(out_.empty());
  }
  EXPECT_EQ(Run({"create", "--help"}), kDone);
  EXPECT_NE(out_.find("backup FOLDER FILE [--hospital]"), std::string::npos) << out_;
}

TEST(JsonText, EscapesWhatMayNotStandInAString) {
  EXPECT_EQ(JsonString("plain"), "\"plain\"");
  EXPECT_EQ(JsonString("a\"b\\c"), R"("a\"b\\c")");
  EXPECT_EQ(JsonString("1\n2\r3\t4"), R"("1\n2\r3\t4")");
  EXPECT_EQ(JsonString(std::string_view("\0\x1f", 2)), R"("\u0000\u001f")");
  EXPECT_EQ(JsonString("गाँव"), "\"गाँव\"");
  EXPECT_EQ(JsonString("\xff"), "\"\xEF\xBF\xBD\"");
}

}  // namespace
}  // namespace ovindra
