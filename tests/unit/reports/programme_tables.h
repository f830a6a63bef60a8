// The tables of a programme keyed for lists that a test makes row by row, and the forms in which such lists
// are compared: where a statement asks for no order, none is expected.
#pragma once

#include <initializer_list>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tests/unit/reports/demonstration.h"

namespace ovindra {

/// Rows of a table by the value of a column.
using Keyed = std::multimap<std::string, TableRow>;

Keyed KeyedBy(const char* column, const TableRows& rows);
std::vector<TableRow> Of(const Keyed& keyed, const std::string& key);

/// The pieces between the commas in the order of their texts. The statements ask for none, and a name of the
/// hospital's may hold a comma itself.
std::string Sorted(const std::string& joined);
/// The names with commas between them, in that order.
std::string Joined(const std::vector<std::string>& names);

/// The lines in an order of their own, the joined names of those columns too.
std::multiset<SheetLine> Normal(std::vector<SheetLine> lines, std::initializer_list<std::size_t> joined);

/// The examinations of one camp.
struct Examinations {
  Examinations(Session& database, const std::string& suffix);

  TableRows records;
  Keyed treatments;
  Keyed diagnoses;
};

struct ProgrammeTables {
  explicit ProgrammeTables(const DemonstrationDatabases& databases);

  const TableRow& Child(const TableRow& record) const {
    return children.find(record.at("Enroll_No"))->second;
  }
  const TableRow& School(const TableRow& child) const { return schools.find(child.at("School_ID"))->second; }

  std::vector<std::string> Diagnoses(const Examinations& examinations, const TableRow& record) const;
  std::vector<std::string> Treatments(const Examinations& examinations, const TableRow& record) const;

  /// The sankul and the school of a child, once for each register row of the school.
  std::set<std::pair<std::string, std::string>> SankulsAndSchools(const TableRow& child) const;

  /// The diagnoses that the hospital holds of a patient, each once.
  std::vector<std::string> HospitalDiagnoses(const std::string& mr_no) const;

  Keyed children;
  Keyed schools;
  Keyed sankuls;
  Keyed registers;
  Keyed diagnosis_masters;
  Keyed treatment_masters;
  TableRows blocks;
  TableRows states;
  TableRows locations;
  Examinations assistants;
  Examinations surgeons;
  Keyed hospital_records;
  Keyed hospital_codes;
};

/// Those of the shared demonstration.
const ProgrammeTables& Facts();

/// FREE, PAID or nothing.
std::string RemarkText(const std::string& remark);

/// A date of a table in the machine's short form; no date stays none.
std::string ShortForm(const std::string& year_first);

}  // namespace ovindra
