// The commands of the setup program that reach a server, on data sources.
#include <clocale>
#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/schema/schema.h"
#include "tests/unit/platform/odbc/data_source.h"
#include "tests/unit/tools/setup/played_command.h"

namespace ovindra {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

class ServerCommands : public testing::Test {
 protected:
  ServerCommands() {
    std::setlocale(LC_CTYPE, "C.UTF-8");
    std::string pattern = (fs::temp_directory_path() / "server_test_XXXXXX").string();
    root_ = mkdtemp(pattern.data());
  }
  ~ServerCommands() override {
    std::setlocale(LC_CTYPE, "C");
    fs::remove_all(root_);
  }

  int Run(const std::vector<std::string>& arguments) {
    const PlayedCommand played = Play(arguments);
    out_ = played.out;
    error_ = played.error;
    return played.code;
  }

  std::string Folder() { return (root_ / "data").string(); }

  fs::path root_;
  std::string out_;
  std::string error_;
};

TEST_F(ServerCommands, MoveTheHospitalRecords) {
  ASSERT_EQ(Run({"demo", Folder(), "--children", "300"}), kDone) << error_;
  ASSERT_EQ(Run({"sql", Folder(), "insert into icd_code_master values ('X''1','दृष्टि''s')", "--hospital"}),
            kDone);
  ASSERT_EQ(Run({"sql", Folder(), "select * from medical_record_dtl", "--hospital", "--json"}), kDone);
  const auto rows_here = std::count(out_.begin(), out_.end(), '[') - 2;
  const auto server = Connected("ward");
  EXPECT_EQ(Run({"move", Folder(), "--hospital"}), kFailed);
  EXPECT_THAT(error_, HasSubstr("has no table medical_record_dtl"));

  Ask(*server, "create table medical_record_dtl (mr_no varchar(30) not null,icd_code varchar(20) not null)");
  Ask(*server,
      "create table icd_code_master (icd_code varchar(20) primary key,icd_description varchar(200))");
  // The second table refuses one of its rows, so the first one is empty again.
  Ask(*server,
      "create trigger Odd before insert on icd_code_master when new.icd_code='X''1' "
      "begin select raise(abort,'odd code'); end");
  EXPECT_EQ(Run({"move", Folder(), "--hospital"}), kFailed);
  EXPECT_THAT(error_, HasSubstr("odd code"));
  EXPECT_EQ(Ask(*server, "select count(*) as Total from medical_record_dtl")["Total"].AsInteger(), 0);

  Ask(*server, "drop trigger Odd");
  ASSERT_EQ(Run({"move", Folder(), "--hospital"}), kDone) << error_;
  const std::string count = std::to_string(rows_here);
  EXPECT_GT(rows_here, 3);
  EXPECT_THAT(out_, HasSubstr("medical_record_dtl: " + count + " rows here, " + count + " rows there\n"));
  EXPECT_EQ(Ask(*server, "select icd_description from icd_code_master where icd_code='X''1'").At(0).AsText(),
            "दृष्टि's");

  EXPECT_EQ(Run({"move", Folder(), "--hospital"}), kFailed);
  EXPECT_THAT(error_, HasSubstr("medical_record_dtl of the data source has rows already: " + count));
}

TEST_F(ServerCommands, TellAServerWithoutTables) {
  ASSERT_EQ(Run({"demo", Folder(), "--children", "100"}), kDone) << error_;
  EXPECT_EQ(Run({"move", Folder()}), kFailed);
  EXPECT_THAT(error_, HasSubstr("The data source has no table Enroll_Master that can be read: "));
  EXPECT_EQ(Run({"check-server"}), kFailed);
  EXPECT_THAT(out_, HasSubstr("ZQR: The table Enroll_Master is missing or can't be read."));
}

TEST_F(ServerCommands, PrintTheScript) {
  ASSERT_EQ(Run({"server-script"}), kDone);
  EXPECT_THAT(out_, testing::StartsWith("set ansi_nulls on\nset quoted_identifier on\nGO\n"));
  EXPECT_THAT(out_, testing::EndsWith(std::string(ScreeningSchema())));
  ASSERT_EQ(Run({"server-script", "--hospital"}), kDone);
  EXPECT_THAT(out_, testing::EndsWith(std::string(HospitalSchema())));
}

}  // namespace
}  // namespace ovindra
