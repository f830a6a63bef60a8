#include "tools/setup/check.h"

#include <gtest/gtest.h>

#include "tests/unit/tools/setup/test_database.h"
#include "tools/setup/database_files.h"

namespace ovindra {
namespace {

class CheckedDatabase : public testing::Test {
 protected:
  CheckedDatabase() { Run("insert into User_Master (User_Name,Password) values ('BOSS','secret')"); }

  void Run(const std::string& statement) { database_->Run(WholeStatement(statement)); }
  std::vector<Fault> Faults() { return FindFaults(*database_, *pristine_); }

  std::unique_ptr<EmbeddedDatabase> database_ = FreshDatabase(Source::kScreening);
  std::unique_ptr<EmbeddedDatabase> pristine_ = FreshDatabase(Source::kScreening);
};

struct Planted {
  const char* statement;
  const char* fault;
  /// What stands there after the repair.
  const char* look;
  const char* mended;
};

TEST_F(CheckedDatabase, FindsAndMendsEachPlantedFault) {
  ASSERT_TRUE(Faults().empty());
  for (const Planted& planted : {
           Planted{"delete from Location_Master where Location_ID='S'",
                   "Location_Master has no row S (SCHOOL)",
                   "select Location_Name from Location_Master where Location_ID='S'", "SCHOOL"},
           Planted{"update Location_Master set Location_Name='SCHOOLS' where Location_ID='S'",
                   "named \"SCHOOLS\"", "select Location_Name from Location_Master where Location_ID='S'",
                   "SCHOOL"},
           Planted{"update Location_Master set Location_Name='Anganwadi Center' where Location_ID='A'",
                   "named \"Anganwadi Center\"",
                   "select Location_Name from Location_Master where Location_ID='A'", "ANGANWADI CENTER"},
           Planted{"delete from Programme_Master", "no row GRANT2016", "select * from Programme_Master",
                   "GRANT2016|GRANT 2016|Y"},
           Planted{"update Treatment_Master set Description='GLASSES' where Treatment_Code=2",
                   "knows it as \"SPECTACLE PRESCRIBED\"",
                   "select Description from Treatment_Master where Treatment_Code=2", "SPECTACLE PRESCRIBED"},
           Planted{"delete from Category_Master where Category_Code=6", "no row 6 (PTOSIS)",
                   "select Category from Category_Master where Category_Code=6", "PTOSIS"},
           Planted{"delete from TPerson_Type_Master where Type_Code='AWW'", "no row AWW",
                   "select Description from TPerson_Type_Master where Type_Code='AWW'", "ANGANWADI WORKER"},
           Planted{"delete from Running_Number where RNControl_Code='VC_ID'", "no row VC_ID",
                   "select Control_Value,Control_String from Running_Number where RNControl_Code='VC_ID'",
                   "1|VC"},
           Planted{"delete from Running_Number where RNControl_Code='ENROLL_NO'", "no row ENROLL_NO",
                   "select Control_Value,Control_String from Running_Number where RNControl_Code='ENROLL_NO'",
                   "1|NULL"},
           Planted{"delete from VA", "list VA of optical values is empty", "select count(*) as Total from VA",
                   "11"},
           Planted{"delete from GRANT2016", "GRANT2016 is empty", "select count(*) as Total from GRANT2016",
                   "1"},
           Planted{"drop table GRANT2016", "GRANT2016 is missing", "select count(*) as Total from GRANT2016",
                   "1"},
       }) {
    Run(planted.statement);
    const std::vector<Fault> faults = Faults();
    ASSERT_EQ(faults.size(), 1U) << planted.statement;
    EXPECT_NE(faults[0].text.find(planted.fault), std::string::npos) << faults[0].text;
    ASSERT_TRUE(faults[0].repair) << planted.statement;
    faults[0].repair();
    EXPECT_EQ(RowsOf(*database_, planted.look), planted.mended) << planted.statement;
    EXPECT_TRUE(Faults().empty()) << planted.statement;
  }
}

TEST_F(CheckedDatabase, MovesACounterBehindTheHighestOfItsKeys) {
  struct Key {
    const char* statement;
    const char* counter;
    const char* next;
  };
  for (const Key& key : {
           Key{"insert into Enroll_Master (Enroll_No) values ('A9'),('H10'),('V2')", "ENROLL_NO", "11"},
           Key{"insert into Child_Record (Child_RecordNo,Enroll_No) values ('9','A9'),('10','A9')",
               "CHILD_RECORDNO", "11"},
           Key{"insert into Child_RecordOS (Child_RecordNo,Enroll_No) values ('1','A9')", "CHILD_RECORDNOOS",
               "2"},
           // Codes that the counter has not made, and one that another prefix has made.
           Key{"insert into School_Master (SC_ID) values ('SC3'),('SCOUT 7'),('XX99')", "SC_ID", "4"},
           Key{"insert into Vision_Center (VC_ID) values ('vc5')", "VC_ID", "6"},
           Key{"insert into Anganwadi_Center (AW_ID) values ('AW1')", "AW_ID", "2"},
       }) {
    Run(key.statement);
    const std::vector<Fault> faults = Faults();
    ASSERT_EQ(faults.size(), 1U) << key.statement;
    EXPECT_NE(faults[0].text.find(key.counter), std::string::npos) << faults[0].text;
    faults[0].repair();
    EXPECT_EQ(
        RowsOf(*database_, std::string("select Control_Value from Running_Number where RNControl_Code='") +
                               key.counter + "'"),
        key.next);
    EXPECT_TRUE(Faults().empty()) << key.statement;
  }
}

TEST_F(CheckedDatabase, LetsAloneWhatAProgrammeMayChange) {
  Run("update Location_Master set Location_Name='HOSPITALS' where Location_ID='H'");
  Run("update Programme_Master set Active='N'");
  Run("update Treatment_Master set Description='GLASSES ADVISED' where Treatment_Code=6");
  Run("update Running_Number set Control_Value=500,Control_String='SCH' where RNControl_Code='SC_ID'");
  Run("delete from Spherical where Spherical='+20.00'");
  Run("insert into Center_Type values ('XX','ANOTHER')");
  EXPECT_TRUE(Faults().empty());
}

TEST_F(CheckedDatabase, LeavesToAPersonWhatItCanNotKnow) {
  Run("delete from User_Master");
  std::vector<Fault> faults = Faults();
  ASSERT_EQ(faults.size(), 1U);
  EXPECT_NE(faults[0].text.find("nobody can log in"), std::string::npos);
  EXPECT_FALSE(faults[0].repair);

  Run("drop table Child_Treatment");
  Run("drop table NewInfo");
  Run("create table NewInfo (SrNo int,VC_ID varchar(20))");
  faults = Faults();
  ASSERT_EQ(faults.size(), 5U);
  EXPECT_EQ(faults[0].text, "The table Child_Treatment is missing or can't be read. Restore a backup.");
  EXPECT_EQ(faults[1].text, "The table NewInfo has no column School_Name. Restore a backup.");
  EXPECT_FALSE(faults[0].repair);
}

}  // namespace
}  // namespace ovindra
