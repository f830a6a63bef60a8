#include "tests/unit/reports/programme_facts.h"

#include "base/database/sql_text.h"
#include "base/text/utf8.h"
#include "core/text/text.h"

namespace ovindra {
namespace {

long Number(const Field& field) {
  return static_cast<long>(Val(Trim(field)));
}

Date DayOfField(const Field& field) {
  return DayOf(field.AsMoment());
}

std::optional<Date> MaybeDay(const Field& field) {
  if (field.IsNull()) return std::nullopt;
  return DayOfField(field);
}

struct RecordTables {
  const char* records;
  const char* diagnoses;
  const char* treatments;
};

constexpr RecordTables kAssistants{"select * from Child_Record", "select * from Child_Diagnosis",
                                   "select * from Child_Treatment"};
constexpr RecordTables kSurgeons{"select * from Child_RecordOS", "select * from Child_DiagnosisOS",
                                 "select * from Child_TreatmentOS"};

Recordset All(Session& database, const char* statement) {
  return database.Run(WholeStatement(statement));
}

std::vector<ExaminationFacts> ReadExaminations(Session& database, const RecordTables& tables) {
  std::map<int, int> category_of;
  std::map<int, std::string> name_of;
  for (auto rows = All(database, "select * from Diagnosis_Master"); !rows.Eof(); rows.MoveNext()) {
    const int code = static_cast<int>(Number(rows["Diagnosis_Code"]));
    category_of[code] = static_cast<int>(Number(rows["Category_Code"]));
    name_of[code] = Trim(rows["Diagnosis_Name"]);
  }
  std::map<std::string, ExaminationFacts> records;
  for (auto rows = All(database, tables.records); !rows.Eof(); rows.MoveNext())
    records[Trim(rows["Child_RecordNo"])] = {
        Trim(rows["Enroll_No"]), Trim(rows["Eye_Condition"]), {}, {}, DayOfField(rows["Record_Date"]), {}};
  for (auto rows = All(database, tables.diagnoses); !rows.Eof(); rows.MoveNext()) {
    ExaminationFacts& record = records.at(Trim(rows["Child_RecordNo"]));
    const int code = static_cast<int>(Number(rows["Diagnosis_Code"]));
    record.categories.push_back(category_of.at(code));
    record.diagnoses.push_back(name_of.at(code));
  }
  for (auto rows = All(database, tables.treatments); !rows.Eof(); rows.MoveNext())
    records.at(Trim(rows["Child_RecordNo"]))
        .treatments.push_back(static_cast<int>(Number(rows["Treatment_Code"])));
  std::vector<ExaminationFacts> all;
  all.reserve(records.size());
  for (auto& [number, record] : records) all.push_back(std::move(record));
  return all;
}

}  // namespace

ProgrammeFacts::ProgrammeFacts(Session& database)
    : assistants(ReadExaminations(database, kAssistants)), surgeons(ReadExaminations(database, kSurgeons)) {
  for (auto rows = All(database, "select * from Enroll_Master"); !rows.Eof(); rows.MoveNext()) {
    const std::string enroll_no = Trim(rows["Enroll_No"]);
    children[enroll_no] = {enroll_no,
                           DayOfField(rows["Enroll_Date"]),
                           Trim(rows["School_ID"]),
                           Trim(rows["Center_ID"]),
                           Trim(rows["Block_Code"]),
                           Trim(rows["Programme_Code"]),
                           Trim(rows["Screened"]),
                           Trim(rows["Screened_By"]),
                           Trim(rows["Condition"]),
                           Trim(rows["Attend"]),
                           Trim(rows["Child_Name"]),
                           Trim(rows["Fname"]),
                           Trim(rows["Age"]),
                           Trim(rows["Gender"]),
                           Trim(rows["Class"]),
                           MaybeDay(rows["Screened_Date"])};
  }
  for (auto rows = All(database, "select * from Screened_School"); !rows.Eof(); rows.MoveNext()) {
    registers.push_back(
        {Trim(rows["School_ID"]), Trim(rows["Sankul_ID"]), Trim(rows["Location_ID"]),
         DayOfField(rows["Screening_Date"]), Number(rows["TNo_of_Boys"]) + Number(rows["TNo_of_Girls"]),
         Number(rows["Screened_Boys"]) + Number(rows["Screened_Girls"]), Number(rows["No_ofT_teacher"])});
  }
  for (auto rows = All(database, "select * from School_Master"); !rows.Eof(); rows.MoveNext())
    schools[Trim(rows["SC_ID"])] = {Trim(rows["Block_Code"]), Number(rows["No_of_TTeacher"])};
  for (auto rows = All(database, "select * from Anganwadi_Center"); !rows.Eof(); rows.MoveNext())
    anganwadi_centers[Trim(rows["AW_ID"])] = {Trim(rows["Block_Code"]), Number(rows["No_of_TAww"])};
  for (auto rows = All(database, "select * from Block_Master"); !rows.Eof(); rows.MoveNext())
    block_names[Trim(rows["Block_Code"])] = LowerCaseLatin(Trim(rows["Block_Name"]));
  for (auto rows = All(database, "select * from Treatment_Master"); !rows.Eof(); rows.MoveNext())
    treatment_names[static_cast<int>(Number(rows["Treatment_Code"]))] = Trim(rows["Description"]);
}

}  // namespace ovindra
