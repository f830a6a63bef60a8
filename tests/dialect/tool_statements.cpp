// Prints every distinct statement that the setup program and the client of a server send, each as a batch of
// its own.
#include <iostream>
#include <set>
#include <sstream>

#include "core/schema/schema.h"
#include "platform/odbc/odbc_session.h"
#include "tools/setup/check.h"
#include "tools/setup/demo/demo.h"
#include "tools/setup/move.h"

namespace {

using namespace ovindra;

class RecordedDatabase : public TransactionSession {
 public:
  RecordedDatabase(Source source, std::set<std::string>& statements)
      : database_(FreshDatabase(source)), statements_(statements) {}

  Recordset Run(const SqlText& statement) override {
    Recordset answer = database_->Run(statement);
    statements_.insert(statement.text());
    return answer;
  }
  void RunTogether(const std::function<void()>& work) override { database_->RunTogether(work); }

 private:
  std::unique_ptr<EmbeddedDatabase> database_;
  std::set<std::string>& statements_;
};

/// Everything that a check can mend is wrong, and is mended.
void MendEverything(RecordedDatabase& database) {
  for (const char* damage :
       {"delete from Running_Number", "delete from Location_Master", "delete from VA", "drop table GRANT2016",
        "update Category_Master set Category='X'", "delete from Programme_Master"})
    database.Run(WholeStatement(damage));
  std::istringstream in;
  std::ostringstream out;
  Console console{in, out, out};
  CheckRows(Source::kScreening, database, "ZQR", true, console);
}

}  // namespace

int main() {
  std::set<std::string> statements;
  RecordedDatabase screening(Source::kScreening, statements);
  RecordedDatabase hospital(Source::kHospital, statements);
  RecordedDatabase server(Source::kScreening, statements);
  screening.RunTogether([&] { FillDemo(screening, hospital, DemoScale::ForChildren(200)); });
  MendEverything(screening);
  MoveRows(screening, server, *FreshDatabase(Source::kScreening), ScreeningSchema());
  for (const std::string_view setting : odbc::SessionSettings("SQL Server")) statements.emplace(setting);
  for (const std::string& statement : statements) std::cout << statement << "\nGO\n";
}
