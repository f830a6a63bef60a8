#include "core/schema/schema.h"

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "base/database/database_error.h"
#include "platform/embedded/embedded_database.h"

namespace ovindra {
namespace {

class Schema : public testing::Test {
 protected:
  Schema() { RunScript(*database_, ScreeningSchema()); }

  Recordset Run(const std::string& statement) { return database_->Run(WholeStatement(statement)); }

  /// The rows, fields parted by | and rows by ; .
  std::string Rows(const std::string& statement) {
    std::string text;
    for (Recordset rows = Run(statement); !rows.Eof(); rows.MoveNext()) {
      if (!text.empty()) text += ';';
      for (std::size_t i = 0; i < rows.columns().size(); ++i) {
        if (i > 0) text += '|';
        text += rows.At(i).IsNull() ? "NULL" : YearFirstText(rows.At(i));
      }
    }
    return text;
  }

  /// The number of the refusal, 0 when the statement runs.
  long RefusalOf(const std::string& statement) {
    try {
      Run(statement);
      return 0;
    } catch (const RuntimeError& error) {
      return error.number();
    }
  }

  std::unique_ptr<EmbeddedDatabase> database_ = EmbeddedDatabase::OpenInMemory();
};

TEST_F(Schema, HoldsTheRowsThatTheProgramTests) {
  EXPECT_EQ(
      Rows("select RNControl_Code,Control_Value,Control_String from Running_Number order by RNControl_Code"),
      "AW_ID|1|AW;CHILD_RECORDNO|1|NULL;CHILD_RECORDNOOS|1|NULL;ENROLL_NO|1|NULL;SC_ID|1|SC;VC_ID|1|VC");
  EXPECT_EQ(Rows("select * from Location_Master order by Location_Name"),
            "A|ANGANWADI CENTER;H|HOSPITAL;S|SCHOOL;V|VISION CENTER");
  EXPECT_EQ(Rows("select * from Programme_Master"), "GRANT2016|GRANT 2016|Y");
  EXPECT_EQ(Rows("select * from Center_Type"), "SS|SCHOOL SCREENING");
  EXPECT_EQ(Rows("select * from ScreenedbyType order by Type_Code"),
            "AWW|ANGANWADI WORKER;OA|OPHTHALMIC ASSISTANT;T|TRAINED TEACHER");
  EXPECT_EQ(Rows("select * from TPerson_Type_Master order by Type_Code"),
            "AWW|ANGANWADI WORKER;TEACHER|TEACHER");
  EXPECT_EQ(Rows("select * from Category_Master order by Category_Code"),
            "1|REFRACTIVE ERROR;2|CATARACTS;3|SQUINT;4|VITAMIN A DEFICIENCY;5|OTHER;6|PTOSIS");
  EXPECT_EQ(Rows("select * from Treatment_Master order by Treatment_Code"),
            "1|MEDICINE;2|SPECTACLE PRESCRIBED;3|REFER TO OS CAMP;4|REFER TO EYE HOSPITAL;"
            "5|REFER TO OTHER EYE HOSPITAL;6|SPECTACLE ADVISED;7|REFER TO VISION CENTER");
  EXPECT_EQ(Rows("select * from User_Master"), "");
}

TEST_F(Schema, KeepsTheOpticalListsInClinicalOrder) {
  EXPECT_EQ(Rows("Select VA_Text from VA"), "6/6;6/9;6/12;6/18;6/24;6/36;6/60;CF;HM;PL;NPL");
  struct Edge {
    const char* statement;
    std::size_t count;
    const char* first;
    std::size_t middle_place;
    const char* middle;
    const char* last;
  };
  for (const Edge& list : {Edge{"Select Spherical from Spherical", 161, "+20.00", 80, "0.00", "-20.00"},
                           Edge{"Select Cylendrical from Cylendrical", 49, "+6.00", 24, "0.00", "-6.00"},
                           Edge{"Select Axis from Axis", 36, "5", 17, "90", "180"}}) {
    const Recordset rows = Run(list.statement);
    std::vector<std::string> values;
    for (Recordset row = rows; !row.Eof(); row.MoveNext()) values.push_back(row.At(0).AsText());
    ASSERT_EQ(values.size(), list.count) << list.statement;
    EXPECT_EQ(values.front(), list.first);
    EXPECT_EQ(values[list.middle_place], list.middle);
    EXPECT_EQ(values[list.middle_place + 1], list.count == 36 ? "95" : "-0.25");
    EXPECT_EQ(values.back(), list.last);
  }
}

TEST_F(Schema, NumbersRowsFromOneAndDerivesTheTextOfACenter) {
  Run("insert into COUNTRY_MASTER (COUNTRY_NAME) Values ('INDIA')");
  Run("insert into Center_Master1 (Center_Name,Sankul_ID,Programme_Code) Values ('ONE',1,'GRANT2016')");
  Run("insert into Center_Master1 (Center_Name,Sankul_ID,Programme_Code) Values ('TWO',1,'')");
  Run("insert into NewInfo(VC_ID,School_Name,Boys,Girls,Total) values('VC1','A SCHOOL','','','')");
  EXPECT_EQ(Rows("select * from Country_Master"), "1|INDIA");
  EXPECT_EQ(Rows("select Center_ID,Center_Name from Center_Master1 order by Center_Name"), "1|ONE;2|TWO");
  EXPECT_EQ(Rows("select SrNo,Boys from NewInfo"), "1|");
  EXPECT_EQ(Run("select Center_ID from Center_Master1").At(0).kind(), FieldKind::kText);
}

TEST_F(Schema, AnEnrolledChildIsNotYetScreened) {
  Run("insert into Enroll_Master(Enroll_No,Child_Name) values('A1','ASHA')");
  EXPECT_EQ(
      Rows("select Enroll_No,Screened,Condition,Attend,School_ID from Enroll_Master where screened='N'"),
      "A1|N|NULL|NULL|NULL");
}

TEST_F(Schema, RefusesASecondRowOfOneKey) {
  for (const char* statement :
       {"insert into Enroll_Master(Enroll_No) values('A1')",
        "insert into Child_Record(Child_RecordNo,Enroll_No) values('1','A1')",
        "insert into Child_RecordOS(Child_RecordNo,Enroll_No) values('1','A1')",
        "insert into School_Master (SC_ID,SC_Name,Center_ID) Values ('SC1','A',1)",
        "insert into Vision_Center (VC_ID,VC_Name,Block_Code) Values ('VC1','A',1)",
        "insert into Anganwadi_Center (AW_ID,AW_Name,Block_Code,No_of_TAww) Values ('AW1','A',1,'1.5')"}) {
    EXPECT_EQ(RefusalOf(statement), 0) << statement;
    EXPECT_EQ(RefusalOf(statement), static_cast<long>(Refusal::kConstraint)) << statement;
  }
}

TEST_F(Schema, DiagnosesAndTreatmentsMayRepeat) {
  for (int i = 0; i < 2; ++i) {
    Run("insert into child_diagnosis values('7',3)");
    Run("insert into child_Treatment values('7',2,'P')");
    Run("insert into child_TreatmentOS(Child_RecordNo,Treatment_Code) values('7',4)");
    Run("insert into User_Rights values(5,'m3(11)')");
  }
  EXPECT_EQ(Rows("select Child_RecordNo,Diagnosis_Code from Child_Diagnosis"), "7|3;7|3");
  EXPECT_EQ(Rows("select Child_RecordNo,Treatment_Code,Remark from Child_Treatment"), "7|2|P;7|2|P");
  EXPECT_EQ(Rows("select Treatment_Code,Remark from Child_TreatmentOS"), "4|NULL;4|NULL");
  EXPECT_EQ(Rows("select User_Code,Access from User_Rights"), "5|m3(11);5|m3(11)");
}

TEST_F(Schema, TypesRefuseAndKeepWhatTheyMust) {
  EXPECT_EQ(RefusalOf("insert into Enroll_Master(Enroll_No,Age) values('A1','5.')"),
            static_cast<long>(Refusal::kConversion));
  Run("insert into Enroll_Master(Enroll_No,Age,Class,Month,Days,Mobile,Center_ID,School_ID,Enroll_Date) "
      "values('A2','9','','','','','VC1','SC12 ','05/31/2016')");
  Run("insert into School_Master (SC_ID,SC_Name,Center_ID) values ('SC12','A SCHOOL',1)");
  Run("insert into Center_Master1 (Center_Name) values ('A CENTER')");
  EXPECT_EQ(Rows("select Class,Month,Days,Mobile from Enroll_Master"), "|||");
  EXPECT_EQ(Rows("select Enroll_No from Enroll_Master where Age between 6 and 10 and Enroll_Date between "
                 "'05/31/2016' and '05/31/2016'"),
            "A2");
  EXPECT_EQ(Rows("select a.Enroll_No from Enroll_Master a,School_Master b where a.School_ID=b.Sc_ID"), "A2");
  EXPECT_EQ(Rows("select Enroll_No from Enroll_Master a,Center_Master1 b where a.Center_ID=b.Center_ID"), "");
  EXPECT_EQ(Rows("select sc_name from School_Master a,Center_Master1 b where a.Center_ID=b.Center_ID"),
            "A SCHOOL");
}

TEST_F(Schema, ANameOfFullLengthFitsOverACodeInTheExport) {
  const std::string name(30, 'X');
  Run("insert into user_master(user_name,password) values('" + name + "','secret')");
  EXPECT_EQ(RefusalOf("insert into user_master(user_name,password) values('" + name + "X','secret')"),
            static_cast<long>(Refusal::kTruncation));
  Run("insert into Enroll_Master (Enroll_No,EnrollEntry,ScreenEntry) values ('A1','1','1')");
  Run("DROP TABLE dbo.GRANT2016");
  Run("Select EnrollEntry,ScreenEntry into GRANT2016 from Enroll_Master");
  Run("Update GRANT2016 Set GRANT2016.EnrollEntry = t1.User_Name from (Select distinct * from User_Master) "
      "as T1 "
      "Where GRANT2016.EnrollEntry = t1.User_Code");
  Run("Update GRANT2016 Set GRANT2016.ScreenEntry = t1.User_Name from (Select distinct * from User_Master) "
      "as T1 "
      "Where GRANT2016.ScreenEntry = t1.User_Code");
  EXPECT_EQ(Rows("select EnrollEntry,ScreenEntry from GRANT2016"), name + "|" + name);
}

TEST_F(Schema, TheExportReplacesItsWorkTable) {
  EXPECT_EQ(Rows("select count(*) as Total from GRANT2016"), "1");
  Run("insert into Center_Master1 (Center_Name,Sankul_ID,Programme_Code) values ('CENTER',1,'GRANT2016')");
  Run("insert into School_Master (SC_ID,SC_Name,Center_ID) values ('SC1','SCHOOL',1)");
  Run("insert into Block_Master (Block_Name,District_Code) values ('BLOCK',1)");
  Run("insert into Enroll_Master "
      "(Enroll_No,Center_ID,School_ID,Block_Code,Programme_Code,Enroll_Date,Month,VC) "
      "values ('A1','1','SC1 ',1,'GRANT2016','05/01/2016','3','Y')");
  for (int round = 0; round < 2; ++round) {
    Run("IF EXISTS(SELECT * FROM   dbo.GRANT2016) DROP TABLE dbo.GRANT2016");
    Run("Select b.Center_Name,c.SC_Name,Screened_By,ScreenedBy_Name,d.Block_Name,a.Enroll_Date,a.Enroll_No,"
        "Child_Name,Fname,Age,Month,Days,Gender,Class,Screened,Condition,Screened_Date,School_Going,Mobile,"
        "Attend,"
        "PreExam,FOccupation,Card,VC,ReferTo,EnrollEntry,ScreenEntry into GRANT2016 from Enroll_Master a,"
        "Center_Master1 b,School_Master c,Block_Master d where a.Enroll_Date between '01/01/2016 ' and "
        "'05/31/2016' "
        "and a.Programme_Code='GRANT2016' and a.Center_ID=b.Center_ID and a.School_ID=c.SC_ID and "
        "a.Block_Code= "
        "d.Block_Code");
    EXPECT_EQ(Rows("select Center_Name,SC_Name,Block_Name,Enroll_No,Month,VC from GRANT2016"),
              "CENTER|SCHOOL|BLOCK|A1|3|Y");
  }
}

TEST_F(Schema, ViewsFollowTheCodes) {
  Run("insert into Country_Master (Country_Name) values ('INDIA')");
  Run("insert into State_Master (State_Name,Country_Code) values ('BIHAR',1)");
  Run("insert into District_Master (District_Name,State_Code) values ('MUZAFFARPUR',1)");
  Run("insert into Block_Master (Block_Name,District_Code) values ('MOTIPUR',1)");
  Run("insert into Center_Master (Center_ID,Center_Name,Block_Code) values ('9','OLD CENTER',1)");
  Run("insert into Diagnosis_Master (Diagnosis_name,Category_Code) Values ('ESOTROPIA',3)");
  EXPECT_EQ(Rows("select * from vw_Center_Address"), "9|OLD CENTER|MOTIPUR|MUZAFFARPUR|BIHAR|INDIA");
  EXPECT_EQ(Rows("select * from vw_Diagnosis_Category order by category"), "1|ESOTROPIA|SQUINT");
}

/// A column too many in one of the tables would make an unqualified name of these statements ambiguous.
TEST_F(Schema, UnqualifiedNamesOfTheProgramStayUnambiguous) {
  for (
      const char* statement :
      {"select * from Enroll_Master a,School_Master b where a.School_ID=b.Sc_ID and b.Sc_Name='X' order by "
       "Enroll_no",
       "select Child_Name,fName,Age,Gender,Class,b.Block_Name,c.District_Name,d.State_Name,e.Country_Name,"
       "f.Child_RecordNo from Enroll_Master a,Block_Master b,District_Master c,State_Master d,Country_Master "
       "e,"
       "Child_Record f where a.Enroll_No='A1' and a.Block_Code=b.Block_COde and "
       "a.District_Code=c.District_Code and "
       "a.State_Code=d.State_Code and a.Country_Code=e.Country_Code and a.Enroll_no=f.Enroll_no",
       "Select "
       "a.Record_date,c.Center_Name,d.SC_Name,e.Block_Name,a.CodedBy,RE_Sph,RE_Cyl,RE_Axis,RE_VA,LE_Sph,"
       "LE_Cyl,LE_Axis,LE_VA,a.Eye_Condition,f.Programme_Name from Child_Record a,Enroll_Master "
       "b,Center_Master1 c,"
       "School_Master d,Block_Master e,programme_master f where  a.Enroll_No='A1' and  "
       "a.Enroll_no=b.Enroll_no and "
       "b.Programme_Code='GRANT2016' and b.Programme_Code=f.Programme_Code and b.Center_ID=c.Center_ID and "
       "b.School_ID=d.SC_ID and b.Block_Code= e.Block_Code",
       "select sc_name from Screened_School a,School_Master b Where a.Sankul_ID =5And a.school_ID = b.Sc_ID "
       "order by "
       "sc_name",
       "select "
       "RNO,sc_name,center_name,Screening_date,A.tno_of_boys,A.tno_of_girls,A.no_oft_teacher,A.Screened_Boys,"
       "A.Screened_Girls from Screened_School a,school_master b,Center_Master1 c Where a.School_ID = b.Sc_ID "
       "And "
       "a.Center_ID = c.Center_ID And a.Sankul_ID =5 and b.Sc_ID not in(select School_ID from Enroll_Master) "
       "order "
       "by Center_Name",
       "select RNO,Person_Name from Screened_School a,TPerson_Master b Where a.School_ID = b.Center_ID And "
       "Sankul_ID "
       "=5",
       "select Gender,b.Block_name as Block from TPerson_Master a,Block_Master b where Person_ID=1 and "
       "a.Block=b.Block_Code",
       "Select  distinct a.Block_Name,sum(convert(numeric,No_ofT_teacher)) as Total from Block_Master a,"
       "School_Master b,Screened_School c where c.School_ID=b.SC_ID and b.Block_Code=a.Block_Code and "
       "Location_ID='H'  group by a.Block_Name",
       "select count(*) as Total from Enroll_Master a,Screened_School b where Enroll_Date between "
       "'01/01/2016'and "
       "'05/31/2016' and Enroll_No like 'H%' and Screened='Y' and Screened_by='T' and Condition='D' and "
       "a.School_ID=b.School_ID and b.Sankul_ID=5",
       "Select distinct "
       "a.enroll_no,a.child_name,a.fname,a.age,a.gender,a.class,d.Sc_Name,f.sankul_Name,a.mr_no from "
       "Enroll_Master a,Child_Record b, Child_Treatment c,school_master d,screened_school e,sankul_master f "
       "where "
       "a.Enroll_Date between '01/01/2016' and '05/31/2016' and a.Enroll_No like 'H%' and "
       "a.Enroll_No=b.Enroll_No and "
       "b.Child_RecordNo=c.Child_RecordNo and Attend='Y' and c.Treatment_Code=4 and a.Block_Code=1 and "
       "a.school_ID=d.SC_ID and a.school_ID=e.school_ID and e.sankul_ID=f.Sankul_ID order by a.enroll_no",
       "Select Distinct a.Enroll_no,Child_Name,Fname,Age,Gender,Class ,f.Sankul_Name ,d.Sc_Name from "
       "Enroll_Master a,"
       "Child_Record b,Child_Treatment c,School_Master d,Screened_School e,sankul_master f where "
       "b.Record_date "
       "between '01/01/2016'and'05/31/2016'and a.enroll_no=b.enroll_no and a.Block_Code=1and a.Enroll_no "
       "like 'H%'"
       "and a.School_ID=d.Sc_ID and d.Sc_ID=e.School_ID and e.sankul_ID=f.sankul_ID and "
       "b.Child_RecordNo=c.Child_RecordNo and c.Treatment_Code=3 Order By Child_Name",
       "select Person_Name,Gender,AW_Name,Mobile from TPerson_Master a,Programme_Master b,Anganwadi_Center c "
       "where "
       "b.Programme_Name='X' and a.Programme_Code=b.Programme_Code and a.Center_ID=c.AW_ID order by "
       "Person_Name",
       "select count(*) as Total from Enroll_Master a,Child_Record b,Center_Master1 c where "
       "b.Center_ID=c.Center_ID",
       "Select Enroll_no,Child_Name,Fname,Age,Gender,b.SC_Name,Attend,Mr_no into Temp61 from Enroll_Master a,"
       "school_master b where Enroll_no like 'H%'and Screened_Date between '08/01/2007' and '06/11/2008' and "
       "Screened='Y' and Condition='D' and a.block_code=19 and a.school_ID=b.SC_ID order by a.enroll_no"}) {
    EXPECT_NO_THROW(Run(statement)) << statement;
  }
}

TEST(HospitalSchemaScript, AnswersTheLookUpOfAChild) {
  const std::unique_ptr<EmbeddedDatabase> database = EmbeddedDatabase::OpenInMemory();
  RunScript(*database, HospitalSchema());
  database->Run(WholeStatement("insert into icd_code_master values ('H52.1','MYOPIA')"));
  database->Run(WholeStatement("insert into medical_record_dtl values ('MR1','H52.1'),('MR1','H52.1')"));
  const Recordset rows =
      database->Run(WholeStatement("select distinct i.icd_description from medical_record_dtl "
                                   "m,icd_code_master i Where m.icd_code = I.icd_code "
                                   "and m.mr_no='MR1'"));
  EXPECT_EQ(rows.row_count(), 1U);
  EXPECT_EQ(rows["icd_description"].AsText(), "MYOPIA");
}

}  // namespace
}  // namespace ovindra
