// The tables that the fuzz targets of the embedded engine stand on: one of each kind of column, key and
// index.
#pragma once

namespace ovindra::fuzz {

inline constexpr const char* kTables = R"(
create table Enroll_Master (
  Enroll_No varchar(20) not null constraint PK_Enroll_Master primary key, Child_Name varchar(100), Age int,
  Gender varchar(1), Class varchar(20), Center_ID varchar(20), Block_Code int, Enroll_Date datetime,
  School_ID varchar(21), Screened varchar(1) default 'N', Condition varchar(1), Screened_Date datetime,
  EnrollEntry varchar(50), Mr_No varchar(20))
create table School_Master (
  SC_ID varchar(20) primary key, SC_Name varchar(100), Block_Code int, No_of_TTeacher varchar(10), Center_ID varchar(20))
create table Center_Master1 (
  Center_No int identity primary key, Center_ID as convert(varchar(10),Center_No) persisted, Center_Name varchar(100),
  Amount numeric(10,2), Rate float)
create table User_Master (User_Code int identity, User_Name varchar(50) unique, Password varchar(50))
create view vw_Center as select Center_ID,Center_Name+'!' as Shown,Amount*2 as Twice from Center_Master1
create unique index IX_Mr on Enroll_Master(Mr_No) where Screened='Y'
)";

}  // namespace ovindra::fuzz
