#include "tools/driver/world/statement_log.h"

namespace ovindra::driver {
namespace {

class LoggedSession : public Session {
 public:
  LoggedSession(std::unique_ptr<Session> database, std::shared_ptr<std::set<std::string>> statements)
      : database_(std::move(database)), statements_(std::move(statements)) {}

  Recordset Run(const SqlText& statement) override {
    Recordset answer = database_->Run(statement);
    statements_->insert(statement.text());
    return answer;
  }

 private:
  std::unique_ptr<Session> database_;
  std::shared_ptr<std::set<std::string>> statements_;
};

}  // namespace

DatabaseMaker StatementLog::Over(DatabaseMaker make) const {
  return [make = std::move(make), statements = statements_](DatabaseName name, DatabaseContent content) {
    return std::make_unique<LoggedSession>(make(name, content), statements);
  };
}

void StatementLog::Write(std::ostream& out) const {
  for (const std::string& statement : *statements_) out << statement << "\nGO\n";
}

}  // namespace ovindra::driver
