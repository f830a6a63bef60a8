#include "tools/driver/world/databases.h"

#include <algorithm>

#include "base/database/connection_string.h"
#include "base/database/database_error.h"
#include "base/text/utf8.h"

namespace ovindra::driver {
namespace {

/// What a data source manager says where the name is not known to it.
RuntimeError DataSourceNotFound() {
  return ServerRefusal(Refusal::kOther, "Data source name not found and no default driver specified");
}

std::string Outcome(const Recordset& result) {
  if (result.HasColumns()) return std::to_string(result.row_count()) + " rows";
  return std::to_string(result.affected_rows()) + " rows changed";
}

}  // namespace

std::string_view WordFor(DatabaseName name) {
  return name == DatabaseName::kScreening ? "screening" : "hospital";
}

class Databases::RecordingSession : public Session {
 public:
  RecordingSession(Databases& databases, DatabaseName name) : databases_(databases), name_(name) {}
  Recordset Run(const SqlText& statement) override { return databases_.Run(name_, statement); }

 private:
  Databases& databases_;
  DatabaseName name_;
};

void Databases::Fill(DatabaseContent content) {
  content_ = content;
  for (Side& side : sides_) side.database.reset();
}

Recordset Databases::RunDirectly(DatabaseName name, const std::string& statement) {
  return Database(name).Run(WholeStatement(statement));
}

void Databases::FailNext(DatabaseName name, std::string fragment, RuntimeError error) {
  Of(name).fail_rules.push_back({std::move(fragment), std::move(error)});
}

void Databases::ForgetStatements() {
  for (Side& side : sides_) side.statements.clear();
}

std::unique_ptr<Session> Databases::Connect(std::string_view connection_string) {
  const std::string_view source = SourceName(connection_string);
  for (const auto& [dsn, name] :
       {std::pair("ZQR", DatabaseName::kScreening), std::pair("ward", DatabaseName::kHospital)}) {
    if (!SameWithoutCase(source, dsn) || !IsThere(name)) continue;
    // A file that can't be used says so now, as it does when the program connects.
    Database(name);
    return std::make_unique<RecordingSession>(*this, name);
  }
  throw DataSourceNotFound();
}

Session& Databases::Database(DatabaseName name) {
  Side& side = Of(name);
  if (side.database == nullptr) side.database = make_(name, content_);
  return *side.database;
}

Recordset Databases::Run(DatabaseName name, const SqlText& statement) {
  Side& side = Of(name);
  side.statements.push_back(statement.text());
  try {
    FailIfToldTo(side, statement.text());
    Recordset result = Database(name).Run(statement);
    trace_.Statement(WordFor(name), statement.text(), Outcome(result));
    return result;
  } catch (const RuntimeError& error) {
    trace_.Statement(WordFor(name), statement.text(), std::to_string(error.number()) + " " + error.text());
    throw;
  }
}

void Databases::FailIfToldTo(Side& side, const std::string& text) {
  const auto rule = std::find_if(
      side.fail_rules.begin(), side.fail_rules.end(),
      [&](const FailRule& candidate) { return text.find(candidate.fragment) != std::string::npos; });
  if (rule == side.fail_rules.end()) return;
  const RuntimeError error = rule->error;
  side.fail_rules.erase(rule);
  throw error;
}

}  // namespace ovindra::driver
