#include "reports/defected_compile.h"

#include "core/entry/lists.h"
#include "reports/listing.h"

namespace ovindra {
namespace {

enum Gathered { kEnrollNo, kDiagnosis, kTreatment };

/// The children of the compile, where the joins before it name them b.
constexpr Fragment kCompiledChildren =
    " where b.Enroll_no like 'H%' and Screened_Date between '08/01/2007' and '06/11/2008' and Screened='Y' "
    "and "
    "Condition='D' and b.block_code=19 and b.Enroll_no=a.Enroll_no";

void MakeTable(Connection& database) {
  database.Execute(sql(
      "Select Enroll_no,Child_Name,Fname,Age,Gender,b.SC_Name,Attend,Mr_no into Temp61 from Enroll_Master "
      "a,school_master b where Enroll_no like 'H%'and Screened_Date between '08/01/2007' and '06/11/2008' "
      "and Screened='Y' and Condition='D' and a.block_code=19 and a.school_ID=b.SC_ID order by "
      "a.enroll_no"));
  database.Execute(
      sql("alter table Temp61 add RE_Sph varchar(20),RE_Cyl varchar(20),RE_Axis varchar(20),RE_VA "
          "varchar(20),LE_Sph varchar(20),LE_Cyl varchar(20),LE_Axis varchar(20),LE_VA varchar(20),Diagnosis "
          "varchar(200),Treatment varchar(200),remark varchar(5)"));
  database.Execute(sql("Update Temp61 Set Diagnosis ='' Where Diagnosis Is Null"));
  database.Execute(sql("Update Temp61 Set Treatment ='' Where Treatment Is Null"));
}

void SetEyes(Connection& database) {
  database.Execute(
      sql("Update Temp61 Set RE_Sph = t1.RE_Sph,RE_Cyl=t1.RE_Cyl,RE_Axis=t1.RE_Axis,RE_VA=t1.RE_VA,LE_Sph = "
          "t1.LE_Sph,LE_Cyl=t1.LE_Cyl,LE_Axis=t1.LE_Axis,LE_VA=t1.LE_VA from (Select distinct "
          "a.Enroll_no,RE_Sph,RE_Cyl,RE_Axis,RE_VA,LE_Sph,LE_Cyl,LE_Axis,LE_VA from Child_Record "
          "a,enroll_master b",
          kCompiledChildren, ") as T1 where Temp61.Enroll_No=t1.Enroll_No"));
}

void GatherTexts(Connection& database, Grid& gathered) {
  gathered.SetRows(gathered.fixed_rows());
  FillGrid(database, sql("select distinct enroll_no from Temp61"), {"enroll_no"}, gathered);
  const GridIndex children(gathered, kEnrollNo);
  Recordset diagnoses = database.Execute(
      sql("Select distinct a.Enroll_no,d.Diagnosis_Name from Child_Record a,enroll_master b,Child_Diagnosis "
          "c,Diagnosis_Master d",
          kCompiledChildren,
          " and a.Child_RecordNo = c.Child_RecordNo And c.Diagnosis_Code = d.Diagnosis_Code order by "
          "a.enroll_no"));
  JoinRecords(gathered, children, kDiagnosis, diagnoses, "Enroll_No", "Diagnosis_Name");
  Recordset treatments = database.Execute(
      sql("Select distinct b.Enroll_no ,d.Description from Child_Record a,enroll_master b,Child_Treatment "
          "c,Treatment_Master d",
          kCompiledChildren,
          " and a.Child_RecordNo = c.Child_RecordNo And c.Treatment_Code = d.Treatment_Code order by "
          "b.enroll_no"));
  JoinRecords(gathered, children, kTreatment, treatments, "Enroll_No", "Description");
}

void SetDiagnosesAndTreatments(Connection& database, const Grid& gathered) {
  for (int row = gathered.fixed_rows(); row < gathered.rows(); ++row) {
    database.Execute(sql("Update Temp61 set Diagnosis=", quoted(Trim(gathered.Cell(row, kDiagnosis))),
                         " where enroll_no=", quoted(Trim(gathered.Cell(row, kEnrollNo)))));
  }
  // One description for a child, whatever was gathered.
  database.Execute(
      sql("Update Temp61 Set Treatment=t1.Description from (Select distinct b.Enroll_no ,c.Description, Case "
          "a.remark when 'F' then 'FREE' when 'P' then 'PAID' end As remark from Child_Treatment "
          "a,Child_Record b,Treatment_Master c where b.Record_date between '08/01/2007' and '06/11/2008' and "
          "b.Enroll_No like 'H%' and b.Child_RecordNo = a.Child_RecordNo And a.Treatment_Code = "
          "c.Treatment_Code) as T1 where Temp61.Enroll_No=t1.Enroll_No"));
}

}  // namespace

void CompileDefected(Connection& database, Grid& gathered) {
  MakeTable(database);
  SetEyes(database);
  GatherTexts(database, gathered);
  SetDiagnosesAndTreatments(database, gathered);
}

}  // namespace ovindra
