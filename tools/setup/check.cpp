#include "tools/setup/check.h"

#include <algorithm>

#include "base/text/utf8.h"
#include "core/schema/schema.h"
#include "tools/setup/required_rows.h"
#include "tools/setup/running_numbers.h"
#include "tools/setup/schema_tables.h"
#include "tools/setup/statement.h"

namespace ovindra {
namespace {

/// The columns of a table; none when it can't be read.
std::vector<std::string> Columns(Session& session, std::string_view table) {
  try {
    return Execute(session, sql("select * from ", bare(table), " where 1=0")).columns();
  } catch (const RuntimeError&) {
    return {};
  }
}

bool Holds(const std::vector<std::string>& columns, std::string_view name) {
  return std::any_of(columns.begin(), columns.end(),
                     [&](const std::string& column) { return SameWithoutCase(column, name); });
}

void FindMissingTables(Session& session, Session& pristine, std::string_view schema,
                       std::vector<Fault>& faults) {
  for (const SchemaTable& table : TablesOf(schema)) {
    // The export makes its work table anew, with the columns of its own statement.
    if (table.name == kWorkTable) continue;
    const std::vector<std::string> columns = Columns(session, table.name);
    const std::string fault = "The table " + std::string(table.name);
    if (columns.empty()) {
      faults.push_back({fault + " is missing or can't be read. Restore a backup.", {}});
      continue;
    }
    for (const std::string& column : Columns(pristine, table.name)) {
      if (Holds(columns, column)) continue;
      faults.push_back({fault, {}});
      faults.back().text.append(" has no column ").append(column).append(". Restore a backup.");
    }
  }
}

void FindCounterFaults(Session& screening, std::vector<Fault>& faults) {
  for (const CountedNumber& counter : RunningNumbers()) {
    const Recordset row = Execute(
        screening, sql("select Control_Value,Control_String from Running_Number where RNControl_Code=",
                       quoted(counter.code)));
    if (row.Eof()) continue;
    const long long next = row.At(0).AsInteger();
    const long long highest = HighestNumberInUse(screening, counter, Trim(row.At(1)));
    if (next > highest) continue;
    faults.push_back(
        {"The counter " + std::string(counter.code) + " stands at " + std::to_string(next) + ", but " +
             std::string(counter.keys) + " are in use up to " + std::to_string(highest) +
             ": the next save would collide.",
         [&screening, &counter, highest] { SetRunningNumber(screening, counter.code, highest + 1); }});
  }
}

void FindWorkTableFaults(Session& screening, std::vector<Fault>& faults) {
  const auto add_blank_row = [&screening] {
    Execute(screening, sql("insert into GRANT2016 (Enroll_No) values (null)"));
  };
  if (Columns(screening, kWorkTable).empty()) {
    faults.push_back(
        {"The work table GRANT2016 is missing: the programme's export would fail.", [&, add_blank_row] {
           Execute(screening, WholeStatement(BatchOf(ScreeningSchema(), kWorkTable)));
           add_blank_row();
         }});
  } else if (Execute(screening, sql("select count(*) as Total from GRANT2016")).At(0).AsInteger() == 0) {
    faults.push_back(
        {"The work table GRANT2016 is empty: the programme's export would fail, since it replaces the table "
         "only "
         "when it holds a row.",
         add_blank_row});
  }
}

void FindMissingUsers(Session& screening, std::vector<Fault>& faults) {
  if (Execute(screening, sql("select User_Code from User_Master")).Eof())
    faults.push_back({"There is no user, so nobody can log in.", {}});
}

}  // namespace

std::vector<Fault> FindFaults(Session& screening, Session& pristine) {
  std::vector<Fault> faults;
  FindMissingTables(screening, pristine, ScreeningSchema(), faults);
  // What is read below stands in those tables.
  if (!faults.empty()) return faults;
  FindMissingRows(screening, pristine, faults);
  FindCounterFaults(screening, faults);
  FindWorkTableFaults(screening, faults);
  FindMissingUsers(screening, faults);
  return faults;
}

std::vector<Fault> FindHospitalFaults(Session& hospital, Session& pristine) {
  std::vector<Fault> faults;
  FindMissingTables(hospital, pristine, HospitalSchema(), faults);
  return faults;
}

bool CheckRows(Source source, Session& database, std::string_view name, bool repairs, Console& console) {
  const std::unique_ptr<EmbeddedDatabase> pristine = FreshDatabase(source);
  const auto find = [&] {
    return source == Source::kScreening ? FindFaults(database, *pristine)
                                        : FindHospitalFaults(database, *pristine);
  };
  std::vector<Fault> faults = find();
  // A row that has been put back may show a fault of its own: a new counter stands behind its keys.
  for (bool mended = repairs; mended;) {
    mended = false;
    for (const Fault& fault : faults) {
      if (!fault.repair) continue;
      fault.repair();
      console.out << name << ": Mended. " << fault.text << '\n';
      mended = true;
    }
    faults = find();
  }
  for (const Fault& fault : faults) console.out << name << ": " << fault.text << '\n';
  return faults.empty();
}

}  // namespace ovindra
