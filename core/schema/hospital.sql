-- The hospital records database, as far as the program reads it: the diagnoses that the hospital has coded for a
-- medical record number. It belongs to the hospital; where a server holds it, nothing here is run.

create table medical_record_dtl (
  mr_no varchar(30) not null,
  icd_code varchar(20) not null
)
GO
create table icd_code_master (
  icd_code varchar(20) not null constraint PK_icd_code_master primary key,
  icd_description varchar(200)
)
GO
create index IX_medical_record_dtl on medical_record_dtl (mr_no,icd_code)
GO
