#include "tests/unit/reports/programme_tables.h"

#include <algorithm>
#include <sstream>

#include "base/date.h"

namespace ovindra {
namespace {

std::string WithCommas(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? "" : ",") + name;
  return text;
}

std::vector<std::string> NamesOf(const Keyed& rows, const TableRow& record, const char* code,
                                 const Keyed& masters, const char* name) {
  std::vector<std::string> names;
  for (const TableRow& row : Of(rows, record.at("Child_RecordNo")))
    names.push_back(masters.find(row.at(code))->second.at(name));
  return names;
}

}  // namespace

Keyed KeyedBy(const char* column, const TableRows& rows) {
  Keyed keyed;
  for (const TableRow& row : rows) keyed.emplace(row.at(column), row);
  return keyed;
}

std::vector<TableRow> Of(const Keyed& keyed, const std::string& key) {
  std::vector<TableRow> rows;
  const auto [begin, end] = keyed.equal_range(key);
  for (auto row = begin; row != end; ++row) rows.push_back(row->second);
  return rows;
}

std::string Sorted(const std::string& joined) {
  std::vector<std::string> pieces;
  std::istringstream text(joined);
  for (std::string piece; std::getline(text, piece, ',');) pieces.push_back(piece);
  std::sort(pieces.begin(), pieces.end());
  return WithCommas(pieces);
}

std::string Joined(const std::vector<std::string>& names) {
  return Sorted(WithCommas(names));
}

std::multiset<SheetLine> Normal(std::vector<SheetLine> lines, std::initializer_list<std::size_t> joined) {
  for (SheetLine& line : lines) {
    for (const std::size_t column : joined) line[column] = Sorted(line[column]);
  }
  return {lines.begin(), lines.end()};
}

Examinations::Examinations(Session& database, const std::string& suffix)
    : records(AllOf(database, "Child_Record" + suffix)),
      treatments(KeyedBy("Child_RecordNo", AllOf(database, "Child_Treatment" + suffix))),
      diagnoses(KeyedBy("Child_RecordNo", AllOf(database, "Child_Diagnosis" + suffix))) {}

ProgrammeTables::ProgrammeTables(const DemonstrationDatabases& databases)
    : children(KeyedBy("Enroll_No", AllOf(*databases.screening, "Enroll_Master"))),
      schools(KeyedBy("SC_ID", AllOf(*databases.screening, "School_Master"))),
      sankuls(KeyedBy("Sankul_ID", AllOf(*databases.screening, "Sankul_Master"))),
      registers(KeyedBy("School_ID", AllOf(*databases.screening, "Screened_School"))),
      diagnosis_masters(KeyedBy("Diagnosis_Code", AllOf(*databases.screening, "Diagnosis_Master"))),
      treatment_masters(KeyedBy("Treatment_Code", AllOf(*databases.screening, "Treatment_Master"))),
      blocks(AllOf(*databases.screening, "Block_Master")),
      states(AllOf(*databases.screening, "State_Master")),
      locations(AllOf(*databases.screening, "Location_Master")),
      assistants(*databases.screening, ""),
      surgeons(*databases.screening, "OS"),
      hospital_records(KeyedBy("mr_no", AllOf(*databases.hospital, "medical_record_dtl"))),
      hospital_codes(KeyedBy("icd_code", AllOf(*databases.hospital, "icd_code_master"))) {}

std::vector<std::string> ProgrammeTables::Diagnoses(const Examinations& examinations,
                                                    const TableRow& record) const {
  return NamesOf(examinations.diagnoses, record, "Diagnosis_Code", diagnosis_masters, "Diagnosis_Name");
}

std::vector<std::string> ProgrammeTables::Treatments(const Examinations& examinations,
                                                     const TableRow& record) const {
  return NamesOf(examinations.treatments, record, "Treatment_Code", treatment_masters, "Description");
}

std::set<std::pair<std::string, std::string>> ProgrammeTables::SankulsAndSchools(
    const TableRow& child) const {
  std::set<std::pair<std::string, std::string>> found;
  for (const TableRow& school : Of(schools, child.at("School_ID"))) {
    for (const TableRow& row : Of(registers, child.at("School_ID"))) {
      for (const TableRow& sankul : Of(sankuls, row.at("Sankul_ID")))
        found.emplace(sankul.at("Sankul_Name"), school.at("SC_Name"));
    }
  }
  return found;
}

std::vector<std::string> ProgrammeTables::HospitalDiagnoses(const std::string& mr_no) const {
  std::set<std::string> names;
  for (const TableRow& row : Of(hospital_records, mr_no))
    names.insert(hospital_codes.find(row.at("icd_code"))->second.at("icd_description"));
  return {names.begin(), names.end()};
}

const ProgrammeTables& Facts() {
  static const ProgrammeTables tables(Demonstration());
  return tables;
}

std::string RemarkText(const std::string& remark) {
  return remark == "F" ? "FREE" : remark == "P" ? "PAID" : "";
}

std::string ShortForm(const std::string& year_first) {
  return year_first.empty() ? year_first : ShortDate(ReadMoment(year_first).value());
}

}  // namespace ovindra
