-- The screening database: its tables, views and indexes, and the rows that must exist before the first child
-- is enrolled. One script for every place: a Transact-SQL server runs it as it is (quoted identifiers on: sqlcmd
-- -I), the embedded engine through its own translator.
--
-- What the types decide:
-- * Age is a number, so that a wrong age is refused when it is saved. Class, Month, Days, Mobile and the counts
--   held as text are texts, since an empty text stored in a number column would read 0.
-- * EnrollEntry and ScreenEntry hold a user's code, but are as wide as a user's name: the programme's export
--   writes the name over the code in its copy.
-- * School_ID is one wider than SC_ID, since enrollment writes it with a blank behind the code.
-- * Every Center_ID is a text, since a child's may read 'VC1', and a server refuses to compare that with a number.
-- * No foreign keys: deleting a child leaves its examinations behind.
-- * The masters that are looked up by the beginning of a name have no index on it: where two names begin alike the
--   row with the lower code is found first.

-- The child workflow

create table Enroll_Master (
  Enroll_No varchar(20) not null constraint PK_Enroll_Master primary key,
  Child_Name varchar(100),
  Fname varchar(100),
  Age int,
  Month varchar(2),
  Days varchar(2),
  Gender varchar(1),
  Class varchar(2),
  Center_ID varchar(20),
  Block_Code int,
  District_Code int,
  State_Code int,
  Country_Code int,
  Enroll_Date datetime,
  School_ID varchar(21),
  School_Going varchar(1),
  Location_ID varchar(1),
  Mobile varchar(10),
  Programme_Code varchar(20),
  EnrollEntry varchar(30),
  Screened varchar(1) not null constraint DF_Enroll_Master_Screened default 'N',
  Screened_By varchar(10),
  Condition varchar(1),
  Screened_Date datetime,
  PreExam varchar(100),
  FOccupation varchar(100),
  Card varchar(100),
  VC varchar(1),
  ScreenedBy_Name varchar(100),
  ReferTo varchar(100),
  ScreenEntry varchar(30),
  Attend varchar(1),
  Mr_No varchar(30)
)
GO
create table Child_Record (
  Child_RecordNo varchar(20) not null constraint PK_Child_Record primary key,
  Enroll_No varchar(20) not null,
  LE_Sph varchar(20),
  LE_Cyl varchar(20),
  LE_Axis varchar(20),
  LE_VA varchar(20),
  RE_Sph varchar(20),
  RE_Cyl varchar(20),
  RE_Axis varchar(20),
  RE_VA varchar(20),
  Record_Date datetime,
  Eye_Condition varchar(1),
  CodedBy varchar(30),
  -- Never written, but read: the school branch of the consolidation joins on it.
  Center_ID varchar(20)
)
GO
create table Child_RecordOS (
  Child_RecordNo varchar(20) not null constraint PK_Child_RecordOS primary key,
  Enroll_No varchar(20) not null,
  Sankul_ID int,
  School_ID varchar(21),
  LE_Sph varchar(20),
  LE_Cyl varchar(20),
  LE_Axis varchar(20),
  LE_VA varchar(20),
  RE_Sph varchar(20),
  RE_Cyl varchar(20),
  RE_Axis varchar(20),
  RE_VA varchar(20),
  Record_Date datetime,
  Eye_Condition varchar(1)
)
GO
-- Rows are inserted into the next four without a column list: no column may be added or moved.
create table Child_Diagnosis (
  Child_RecordNo varchar(20) not null,
  Diagnosis_Code int
)
GO
create table Child_Treatment (
  Child_RecordNo varchar(20) not null,
  Treatment_Code int,
  Remark varchar(1)
)
GO
create table Child_DiagnosisOS (
  Child_RecordNo varchar(20) not null,
  Diagnosis_Code int
)
GO
create table Child_TreatmentOS (
  Child_RecordNo varchar(20) not null,
  Treatment_Code int,
  Remark varchar(1)
)
GO

-- Geography

create table Country_Master (
  Country_Code int identity(1,1) not null constraint PK_Country_Master primary key,
  Country_Name varchar(100)
)
GO
create table State_Master (
  State_Code int identity(1,1) not null constraint PK_State_Master primary key,
  State_Name varchar(100),
  Country_Code int
)
GO
create table District_Master (
  District_Code int identity(1,1) not null constraint PK_District_Master primary key,
  District_Name varchar(100),
  State_Code int
)
GO
create table Block_Master (
  Block_Code int identity(1,1) not null constraint PK_Block_Master primary key,
  Block_Name varchar(100),
  District_Code int
)
GO

-- Centers

create table Sankul_Master (
  Sankul_ID int identity(1,1) not null constraint PK_Sankul_Master primary key,
  Sankul_Name varchar(100),
  Block_Code int
)
GO
create table Center_Master1 (
  Center_No int identity(1,1) not null constraint PK_Center_Master1 primary key,
  Center_ID as convert(varchar(20),Center_No) persisted,
  Center_Name varchar(100),
  Sankul_ID int,
  Programme_Code varchar(20)
)
GO
-- The older list of centers, loaded with the database: no form writes it.
create table Center_Master (
  Center_ID varchar(20) not null constraint PK_Center_Master primary key,
  Center_Name varchar(100),
  Block_Code int,
  Center_Type varchar(10),
  No_of_TPerson varchar(10)
)
GO
create table School_Master (
  SC_ID varchar(20) not null constraint PK_School_Master primary key,
  SC_Name varchar(100),
  Block_Code int,
  No_of_TTeacher varchar(10),
  Programme_Code varchar(20),
  Center_ID varchar(20)
)
GO
create table Vision_Center (
  VC_ID varchar(20) not null constraint PK_Vision_Center primary key,
  VC_Name varchar(100),
  Block_Code int
)
GO
create table Anganwadi_Center (
  AW_ID varchar(20) not null constraint PK_Anganwadi_Center primary key,
  AW_Name varchar(100),
  Block_Code int,
  No_of_TAww varchar(10)
)
GO
create table Hospital (
  H_ID varchar(20) not null constraint PK_Hospital primary key,
  H_Name varchar(100)
)
GO

-- People and users

create table TPerson_Master (
  Person_ID int identity(1,1) not null constraint PK_TPerson_Master primary key,
  Person_Name varchar(100),
  Center_ID varchar(20),
  Person_Type varchar(10),
  Gender varchar(1),
  Block int,
  Mobile varchar(10),
  Programme_Code varchar(20)
)
GO
create table User_Master (
  User_Code int identity(1,1) not null constraint PK_User_Master primary key,
  User_Name varchar(30),
  Password varchar(10)
)
GO
-- Rows are inserted without a column list: no column may be added or moved.
create table User_Rights (
  User_Code int,
  Access varchar(10)
)
GO

-- The school register and the strength of classes

create table Screened_School (
  RNO int identity(1,1) not null constraint PK_Screened_School primary key,
  School_ID varchar(21),
  Sankul_ID int,
  Center_ID varchar(20),
  Screening_Date datetime,
  TNo_of_Boys varchar(10),
  TNo_of_Girls varchar(10),
  No_ofT_teacher varchar(10),
  Screened_Boys varchar(10),
  Screened_Girls varchar(10),
  Location_ID varchar(1)
)
GO
create table NewInfo (
  SrNo int identity(1,1) not null constraint PK_NewInfo primary key,
  VC_ID varchar(20),
  School_Name varchar(100),
  Boys varchar(10),
  Girls varchar(10),
  Total varchar(10)
)
GO
create table ClassWiseStrength (
  SrNo int,
  Class varchar(10),
  Boys varchar(10),
  Girls varchar(10),
  Total varchar(10)
)
GO

-- Counters and reference tables

create table Running_Number (
  RNControl_Code varchar(20) not null constraint PK_Running_Number primary key,
  Control_Value int not null,
  Control_String varchar(10)
)
GO
create table Location_Master (
  Location_ID varchar(1) not null constraint PK_Location_Master primary key,
  Location_Name varchar(100)
)
GO
create table Programme_Master (
  Programme_Code varchar(20) not null constraint PK_Programme_Master primary key,
  Programme_Name varchar(100),
  Active varchar(1)
)
GO
create table Center_Type (
  Type_ID varchar(10) not null constraint PK_Center_Type primary key,
  Type_Description varchar(100)
)
GO
create table ScreenedbyType (
  Type_Code varchar(10) not null constraint PK_ScreenedbyType primary key,
  Description varchar(100)
)
GO
create table TPerson_Type_Master (
  Type_Code varchar(10) not null constraint PK_TPerson_Type_Master primary key,
  Description varchar(100)
)
GO
create table Category_Master (
  Category_Code int not null constraint PK_Category_Master primary key,
  Category varchar(100)
)
GO
create table Diagnosis_Master (
  Diagnosis_Code int identity(1,1) not null constraint PK_Diagnosis_Master primary key,
  Diagnosis_Name varchar(100),
  Category_Code int
)
GO
create table Treatment_Master (
  Treatment_Code int not null constraint PK_Treatment_Master primary key,
  Description varchar(100)
)
GO
-- The optical lists are read without an order; their keys keep the one in which the rows were put in.
create table Spherical (
  Spherical_No int identity(1,1) not null constraint PK_Spherical primary key,
  Spherical varchar(20)
)
GO
create table Cylendrical (
  Cylendrical_No int identity(1,1) not null constraint PK_Cylendrical primary key,
  Cylendrical varchar(20)
)
GO
create table Axis (
  Axis_No int identity(1,1) not null constraint PK_Axis primary key,
  Axis varchar(20)
)
GO
create table VA (
  VA_No int identity(1,1) not null constraint PK_VA primary key,
  VA_Text varchar(20)
)
GO

-- The work table of the programme's export. The export drops it when it holds a row and makes it anew where it
-- must not stand, so it stands from the start and holds one blank row.
create table GRANT2016 (
  Center_Name varchar(100),
  SC_Name varchar(100),
  Screened_By varchar(10),
  ScreenedBy_Name varchar(100),
  Block_Name varchar(100),
  Enroll_Date datetime,
  Enroll_No varchar(20),
  Child_Name varchar(100),
  Fname varchar(100),
  Age int,
  Month varchar(2),
  Days varchar(2),
  Gender varchar(1),
  Class varchar(2),
  Screened varchar(1),
  Condition varchar(1),
  Screened_Date datetime,
  School_Going varchar(1),
  Mobile varchar(10),
  Attend varchar(1),
  PreExam varchar(100),
  FOccupation varchar(100),
  Card varchar(100),
  VC varchar(1),
  ReferTo varchar(100),
  EnrollEntry varchar(30),
  ScreenEntry varchar(30)
)
GO

-- Views

create view vw_Center_Address as
select a.Center_ID,a.Center_Name,b.Block_Name,c.District_Name,d.State_Name,e.Country_Name
from Center_Master a,Block_Master b,District_Master c,State_Master d,Country_Master e
where a.Block_Code=b.Block_Code and b.District_Code=c.District_Code and c.State_Code=d.State_Code
  and d.Country_Code=e.Country_Code
GO
create view vw_Diagnosis_Category as
select a.Diagnosis_Code as Code,a.Diagnosis_Name as Diagnosis,b.Category
from Diagnosis_Master a,Category_Master b
where a.Category_Code=b.Category_Code
GO

-- Indexes. Each serves statements that a million children would make slow; every further one on Enroll_Master is
-- paid for at each enrollment.

-- The children of a location and period, counted by the reports
create index IX_Enroll_Location on Enroll_Master (Enroll_No,Enroll_Date,Condition,Screened,Screened_By)
GO
create index IX_Enroll_Defected on Enroll_Master (Enroll_Date,Enroll_No,Condition,Screened,Screened_By)
where Condition='D'
GO
create index IX_Enroll_Attended on Enroll_Master (Enroll_Date,Enroll_No,Attend) where Attend='Y'
GO
-- The children of a school or of a center, listed by the forms. A school is picked by its name.
create index IX_Enroll_School on Enroll_Master (School_ID,Screened)
GO
create index IX_School_Name on School_Master (SC_Name)
GO
create index IX_Enroll_Center on Enroll_Master (Center_ID,Screened,Condition)
GO
create index IX_Child_Record_Child on Child_Record (Enroll_No,Eye_Condition,Child_RecordNo)
GO
create index IX_Child_Record_Date on Child_Record (Record_Date,Eye_Condition,Enroll_No,Child_RecordNo)
GO
create index IX_Child_RecordOS_Child on Child_RecordOS (Enroll_No,Eye_Condition,Child_RecordNo)
GO
create index IX_Child_Diagnosis on Child_Diagnosis (Child_RecordNo,Diagnosis_Code)
GO
create index IX_Child_Treatment on Child_Treatment (Child_RecordNo,Treatment_Code)
GO
create index IX_Child_DiagnosisOS on Child_DiagnosisOS (Child_RecordNo,Diagnosis_Code)
GO
create index IX_Child_TreatmentOS on Child_TreatmentOS (Child_RecordNo,Treatment_Code)
GO
-- The school register
create index IX_Screened_School_School on Screened_School (School_ID,Sankul_ID)
GO
create index IX_Screened_School_Location on Screened_School (Location_ID,School_ID,No_ofT_teacher)
GO
create index IX_Screened_School_Date
on Screened_School (Location_ID,Screening_Date,TNo_of_Boys,TNo_of_Girls,Screened_Boys,Screened_Girls)
GO

-- The rows that must exist

insert into Running_Number (RNControl_Code,Control_Value,Control_String) values
  ('ENROLL_NO',1,null),('CHILD_RECORDNO',1,null),('CHILD_RECORDNOOS',1,null),
  ('SC_ID',1,'SC'),('VC_ID',1,'VC'),('AW_ID',1,'AW')
GO
insert into Location_Master (Location_ID,Location_Name) values
  ('S','SCHOOL'),('A','ANGANWADI CENTER'),('V','VISION CENTER'),('H','HOSPITAL')
GO
insert into Programme_Master (Programme_Code,Programme_Name,Active) values ('GRANT2016','GRANT 2016','Y')
GO
insert into Center_Type (Type_ID,Type_Description) values ('SS','SCHOOL SCREENING')
GO
insert into ScreenedbyType (Type_Code,Description) values
  ('T','TRAINED TEACHER'),('AWW','ANGANWADI WORKER'),('OA','OPHTHALMIC ASSISTANT')
GO
insert into TPerson_Type_Master (Type_Code,Description) values ('TEACHER','TEACHER'),('AWW','ANGANWADI WORKER')
GO
insert into Category_Master (Category_Code,Category) values
  (1,'REFRACTIVE ERROR'),(2,'CATARACTS'),(3,'SQUINT'),(4,'VITAMIN A DEFICIENCY'),(5,'OTHER'),(6,'PTOSIS')
GO
insert into Treatment_Master (Treatment_Code,Description) values
  (1,'MEDICINE'),(2,'SPECTACLE PRESCRIBED'),(3,'REFER TO OS CAMP'),(4,'REFER TO EYE HOSPITAL'),
  (5,'REFER TO OTHER EYE HOSPITAL'),(6,'SPECTACLE ADVISED'),(7,'REFER TO VISION CENTER')
GO
insert into Spherical (Spherical) values
  ('+20.00'),('+19.75'),('+19.50'),('+19.25'),('+19.00'),('+18.75'),('+18.50'),('+18.25'),
  ('+18.00'),('+17.75'),('+17.50'),('+17.25'),('+17.00'),('+16.75'),('+16.50'),('+16.25'),
  ('+16.00'),('+15.75'),('+15.50'),('+15.25'),('+15.00'),('+14.75'),('+14.50'),('+14.25'),
  ('+14.00'),('+13.75'),('+13.50'),('+13.25'),('+13.00'),('+12.75'),('+12.50'),('+12.25'),
  ('+12.00'),('+11.75'),('+11.50'),('+11.25'),('+11.00'),('+10.75'),('+10.50'),('+10.25'),
  ('+10.00'),('+9.75'),('+9.50'),('+9.25'),('+9.00'),('+8.75'),('+8.50'),('+8.25'),
  ('+8.00'),('+7.75'),('+7.50'),('+7.25'),('+7.00'),('+6.75'),('+6.50'),('+6.25'),
  ('+6.00'),('+5.75'),('+5.50'),('+5.25'),('+5.00'),('+4.75'),('+4.50'),('+4.25'),
  ('+4.00'),('+3.75'),('+3.50'),('+3.25'),('+3.00'),('+2.75'),('+2.50'),('+2.25'),
  ('+2.00'),('+1.75'),('+1.50'),('+1.25'),('+1.00'),('+0.75'),('+0.50'),('+0.25'),
  ('0.00'),('-0.25'),('-0.50'),('-0.75'),('-1.00'),('-1.25'),('-1.50'),('-1.75'),
  ('-2.00'),('-2.25'),('-2.50'),('-2.75'),('-3.00'),('-3.25'),('-3.50'),('-3.75'),
  ('-4.00'),('-4.25'),('-4.50'),('-4.75'),('-5.00'),('-5.25'),('-5.50'),('-5.75'),
  ('-6.00'),('-6.25'),('-6.50'),('-6.75'),('-7.00'),('-7.25'),('-7.50'),('-7.75'),
  ('-8.00'),('-8.25'),('-8.50'),('-8.75'),('-9.00'),('-9.25'),('-9.50'),('-9.75'),
  ('-10.00'),('-10.25'),('-10.50'),('-10.75'),('-11.00'),('-11.25'),('-11.50'),('-11.75'),
  ('-12.00'),('-12.25'),('-12.50'),('-12.75'),('-13.00'),('-13.25'),('-13.50'),('-13.75'),
  ('-14.00'),('-14.25'),('-14.50'),('-14.75'),('-15.00'),('-15.25'),('-15.50'),('-15.75'),
  ('-16.00'),('-16.25'),('-16.50'),('-16.75'),('-17.00'),('-17.25'),('-17.50'),('-17.75'),
  ('-18.00'),('-18.25'),('-18.50'),('-18.75'),('-19.00'),('-19.25'),('-19.50'),('-19.75'),
  ('-20.00')
GO
insert into Cylendrical (Cylendrical) values
  ('+6.00'),('+5.75'),('+5.50'),('+5.25'),('+5.00'),('+4.75'),('+4.50'),('+4.25'),
  ('+4.00'),('+3.75'),('+3.50'),('+3.25'),('+3.00'),('+2.75'),('+2.50'),('+2.25'),
  ('+2.00'),('+1.75'),('+1.50'),('+1.25'),('+1.00'),('+0.75'),('+0.50'),('+0.25'),
  ('0.00'),('-0.25'),('-0.50'),('-0.75'),('-1.00'),('-1.25'),('-1.50'),('-1.75'),
  ('-2.00'),('-2.25'),('-2.50'),('-2.75'),('-3.00'),('-3.25'),('-3.50'),('-3.75'),
  ('-4.00'),('-4.25'),('-4.50'),('-4.75'),('-5.00'),('-5.25'),('-5.50'),('-5.75'),
  ('-6.00')
GO
insert into Axis (Axis) values
  ('5'),('10'),('15'),('20'),('25'),('30'),('35'),('40'),('45'),('50'),('55'),('60'),
  ('65'),('70'),('75'),('80'),('85'),('90'),('95'),('100'),('105'),('110'),('115'),('120'),
  ('125'),('130'),('135'),('140'),('145'),('150'),('155'),('160'),('165'),('170'),('175'),('180')
GO
insert into VA (VA_Text) values
  ('6/6'),('6/9'),('6/12'),('6/18'),('6/24'),('6/36'),('6/60'),('CF'),('HM'),('PL'),('NPL')
GO
insert into GRANT2016 (Enroll_No) values (null)
GO
