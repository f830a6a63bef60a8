#include "tools/setup/demo/demo.h"

#include <gtest/gtest.h>

#include "tests/unit/tools/setup/test_database.h"
#include "tools/setup/check.h"
#include "tools/setup/database_files.h"

namespace ovindra {
namespace {

struct DemoDatabases {
  explicit DemoDatabases(const DemoScale& scale = {}) { FillDemo(*screening, *hospital, scale); }

  std::unique_ptr<EmbeddedDatabase> screening = FreshDatabase(Source::kScreening);
  std::unique_ptr<EmbeddedDatabase> hospital = FreshDatabase(Source::kHospital);
};

class Demo : public testing::Test {
 protected:
  static void SetUpTestSuite() { databases_ = std::make_unique<DemoDatabases>(); }
  static void TearDownTestSuite() { databases_.reset(); }

  static std::string Rows(std::string_view statement) { return RowsOf(*databases_->screening, statement); }
  static std::string HospitalRows(std::string_view statement) {
    return RowsOf(*databases_->hospital, statement);
  }

  static std::unique_ptr<DemoDatabases> databases_;
};

std::unique_ptr<DemoDatabases> Demo::databases_;

constexpr const char* kWorkflowTables[] = {
    "Enroll_Master",     "Child_Record",      "Child_RecordOS",  "Child_Diagnosis",   "Child_Treatment",
    "Child_DiagnosisOS", "Child_TreatmentOS", "Screened_School", "ClassWiseStrength", "TPerson_Master"};

TEST_F(Demo, IsTheSameEveryTime) {
  DemoDatabases again;
  for (const std::string table : kWorkflowTables) {
    const std::string rows = Rows("select * from " + table);
    EXPECT_FALSE(rows.empty()) << table;
    EXPECT_EQ(rows, RowsOf(*again.screening, "select * from " + table)) << table;
  }
  EXPECT_EQ(HospitalRows("select * from medical_record_dtl"),
            RowsOf(*again.hospital, "select * from medical_record_dtl"));
}

TEST_F(Demo, HasTheSizeOfAProgramme) {
  struct Least {
    const char* table;
    int rows;
  };
  for (const Least& least :
       {Least{"State_Master", 3}, Least{"Block_Master", 8}, Least{"Sankul_Master", 10},
        Least{"School_Master", 40}, Least{"Vision_Center", 6}, Least{"Anganwadi_Center", 12},
        Least{"Hospital", 3}, Least{"User_Master", 6}, Least{"Center_Master", 1},
        Least{"Screened_School", 30}, Least{"NewInfo", 3}, Least{"Child_RecordOS", 20}}) {
    EXPECT_GE(std::stoi(Rows(std::string("select count(*) as Total from ") + least.table)), least.rows)
        << least.table;
  }
  EXPECT_EQ(Rows("select count(*) as Total from Enroll_Master"), "3000");
  EXPECT_EQ(
      Rows("select count(distinct Category_Code) as Total from Child_Diagnosis a,Diagnosis_Master b where "
           "a.Diagnosis_Code=b.Diagnosis_Code"),
      "6");
  EXPECT_EQ(Rows("select count(distinct Treatment_Code) as Total from Child_Treatment"), "7");
}

TEST_F(Demo, HasTheNamesThatThePapersUse) {
  EXPECT_EQ(Rows("select Center_Name,Programme_Name,SC_Name from Center_Master1 a,Programme_Master "
                 "b,School_Master c "
                 "where a.Programme_Code=b.Programme_Code and c.Center_ID=a.Center_ID and "
                 "Programme_Name='GRANT 2016' "
                 "and Center_Name='MOTIPUR SCREENING CENTER' and SC_Name='MOTIPUR PRIMARY SCHOOL'"),
            "MOTIPUR SCREENING CENTER|GRANT 2016|MOTIPUR PRIMARY SCHOOL");
  EXPECT_EQ(Rows("select Block_Name,District_Name from Block_Master a,District_Master b where "
                 "a.District_Code=b.District_Code and Block_Name like 'MOTIPUR%'"),
            "MOTIPUR|MUZAFFARPUR");
  EXPECT_EQ(Rows("select Child_Name from Enroll_Master where Child_Name='ASHA DEVI'"), "");
}

/// The statements count what must not be there.
TEST_F(Demo, EveryRoadIsOneThatTheFormsWouldHaveWritten) {
  for (const char* stray : {
           // Columns that the road of a location fills or leaves.
           "select Enroll_No from Enroll_Master where Location_ID='A' and (Programme_Code is null or Month "
           "is null or "
           "Days is null or Mobile is null or EnrollEntry is null or School_ID is null)",
           "select Enroll_No from Enroll_Master where Location_ID<>'A' and (Programme_Code is not null or "
           "Month is not "
           "null or Days is not null or Mobile is not null or EnrollEntry is not null)",
           "select Enroll_No from Enroll_Master where School_Going='Y' and (School_ID is null or Class='')",
           "select Enroll_No from Enroll_Master where Location_ID not in('A','V','H')",
           "select Enroll_No from Enroll_Master where Location_ID='A' and Center_ID not in(select Center_ID "
           "from "
           "Center_Master1)",
           "select Enroll_No from Enroll_Master where Location_ID='V' and Center_ID not in(select VC_ID from "
           "Vision_Center)",
           "select Enroll_No from Enroll_Master where Location_ID='H' and Center_ID not in(select H_ID from "
           "Hospital)",
           "select Enroll_No from Enroll_Master where Age>20 or Age<1",
           // A step without the one before it.
           "select Enroll_No from Enroll_Master where Screened='N' and (Condition is not null or "
           "Screened_Date is not "
           "null or ScreenEntry is not null or Attend is not null)",
           "select Enroll_No from Enroll_Master where Screened='Y' and (Condition is null or Screened_By is "
           "null or "
           "ScreenedBy_Name='')",
           "select Enroll_No from Enroll_Master where Condition='N' and ReferTo<>''",
           "select a.Enroll_No from Child_Record a,Enroll_Master b where a.Enroll_No=b.Enroll_No and "
           "Condition<>'D'",
           "select Enroll_No from Child_Record where Enroll_No not in(select Enroll_No from Enroll_Master)",
           "select Enroll_No from Child_RecordOS where School_ID not in(select School_ID from "
           "Screened_School)",
           "select Enroll_No from Enroll_Master where Attend='Y' and (Mr_No is null or Condition<>'D')",
           // Steps against the order of days.
           "select Enroll_No from Enroll_Master where Screened_Date<Enroll_Date or Enroll_Date>'05/31/2016' "
           "or "
           "Screened_Date>'05/31/2016'",
           "select a.Enroll_No from Child_Record a,Enroll_Master b where a.Enroll_No=b.Enroll_No and "
           "(Record_Date<Screened_Date or Record_Date>'05/31/2016')",
           "select a.Enroll_No from Child_RecordOS a,Child_Record b where a.Enroll_No=b.Enroll_No and "
           "a.Record_Date<b.Record_Date",
           // Diagnoses and treatments.
           "select a.Child_RecordNo from Child_Record a,Child_Diagnosis b where "
           "a.Child_RecordNo=b.Child_RecordNo and "
           "Eye_Condition='N'",
           "select Child_RecordNo from Child_Record where Eye_Condition='D' and Child_RecordNo not in(select "
           "Child_RecordNo from Child_Diagnosis)",
           "select Child_RecordNo from Child_Treatment where Treatment_Code=2 and Remark is null",
           "select Child_RecordNo from Child_Treatment where Treatment_Code<>2 and Remark is not null",
           "select RE_Sph from Child_Record where RE_Sph<>'' and RE_Sph not in(select Spherical from "
           "Spherical)",
           "select LE_Cyl from Child_Record where LE_Cyl<>'' and LE_Cyl not in(select Cylendrical from "
           "Cylendrical)",
           "select LE_Axis from Child_Record where LE_Axis<>'' and LE_Axis not in(select Axis from Axis)",
           "select RE_VA from Child_Record where RE_VA not in(select VA_Text from VA)",
           // The register.
           "select RNO from Screened_School where "
           "convert(numeric,Screened_Boys)>convert(numeric,TNo_of_Boys)",
       }) {
    EXPECT_EQ(Rows(stray), "") << stray;
  }
  EXPECT_EQ(Rows("select count(*) as Total from Child_Record"),
            Rows("select count(distinct Enroll_No) as Total from Child_Record"));
}

TEST_F(Demo, NumbersRiseWithTheDaysOfTheirRows) {
  for (const char* statement :
       {"select Enroll_Date as Day from Enroll_Master order by convert(int,"
        "substring(Enroll_No,2,20))",
        "select Record_Date as Day from Child_Record order by convert(int,Child_RecordNo)",
        "select Record_Date as Day from Child_RecordOS order by convert(int,Child_RecordNo)"}) {
    Moment last{};
    std::size_t earlier = 0;
    for (Recordset rows = databases_->screening->Run(WholeStatement(statement)); !rows.Eof();
         rows.MoveNext()) {
      const Moment day = rows.At(0).AsMoment();
      if (day < last) ++earlier;
      last = day;
    }
    EXPECT_EQ(earlier, 0U) << statement;
    EXPECT_NE(last, Moment{}) << statement;
  }
}

TEST_F(Demo, TheHospitalKnowsMostOfTheChildrenWhoCame) {
  std::size_t known = 0;
  Recordset children =
      databases_->screening->Run(WholeStatement("select Mr_No from Enroll_Master where Attend='Y'"));
  const std::size_t all = children.row_count();
  for (; !children.Eof(); children.MoveNext()) {
    const std::string statement =
        "select i.icd_description from medical_record_dtl m,icd_code_master i where "
        "m.icd_code=i.icd_code and m.mr_no='" +
        children.At(0).AsText() + "'";
    if (!HospitalRows(statement).empty()) ++known;
  }
  EXPECT_GE(all, 20U);
  EXPECT_GT(known, all * 8 / 10);
}

TEST_F(Demo, HasNothingThatTheCheckWouldFind) {
  const auto fresh = FreshDatabase(Source::kScreening);
  for (const Fault& fault : FindFaults(*databases_->screening, *fresh)) ADD_FAILURE() << fault.text;
}

TEST_F(Demo, TheAdministratorMayDoEverythingAndNobodyElseDoes) {
  EXPECT_EQ(Rows("select User_Name,Password from User_Master where User_Code=1"), "ADMIN|admin");
  EXPECT_EQ(Rows("select count(*) as Total from User_Rights where User_Code=1"), "28");
  EXPECT_EQ(Rows("select User_Code from User_Rights where User_Code<>1 and Access='m3(7)'"), "");
  EXPECT_EQ(Rows("select count(distinct User_Code) as Total from User_Rights"), "6");
}

TEST(DemoScale, GrowsWithTheChildren) {
  const DemoScale million = DemoScale::ForChildren(1000000);
  EXPECT_EQ(million.children / million.schools, 300);
  EXPECT_EQ(million.waiting, 5000);
  EXPECT_EQ(DemoScale::ForChildren(3000).schools, DemoScale().schools);

  DemoDatabases databases(DemoScale::ForChildren(15000));
  Session& screening = *databases.screening;
  EXPECT_EQ(RowsOf(screening, "select count(*) as Total from Enroll_Master"), "15000");
  EXPECT_EQ(
      RowsOf(screening, "select count(*) as Total from Enroll_Master where Center_ID='2' and screened='N'"),
      "500");
  EXPECT_EQ(RowsOf(screening, "select count(*) as Total from School_Master"),
            RowsOf(screening, "select count(distinct SC_Name) as Total from School_Master"));
}

}  // namespace
}  // namespace ovindra
