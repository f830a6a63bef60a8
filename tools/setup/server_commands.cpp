#include "platform/odbc/odbc_session.h"
#include "tools/setup/check.h"
#include "tools/setup/commands.h"
#include "tools/setup/database_files.h"
#include "tools/setup/move.h"
#include "tools/setup/setup.h"

namespace ovindra {
int ServerScript(const Arguments& arguments, Console& console) {
  // Not every tool sets these, and the computed column and the filtered indexes can't be made without them.
  console.out << "set ansi_nulls on\nset quoted_identifier on\nGO\n" << SchemaOf(ChosenSource(arguments));
  return kDone;
}

int Move(const Arguments& arguments, Console& console) {
  const Source source = ChosenSource(arguments);
  const std::filesystem::path file = DatabaseFile(arguments.operand(0), source);
  const std::unique_ptr<EmbeddedDatabase> database = OpenDatabase(arguments.operand(0), source);
  const std::unique_ptr<OdbcSession> server = OdbcSession::Connect(ConnectionStringOf(source));
  const std::unique_ptr<EmbeddedDatabase> pristine = FreshDatabase(source);
  std::int64_t total = 0;
  for (const MovedTable& table : MoveRows(*database, *server, *pristine, SchemaOf(source))) {
    console.out << table.name << ": " << table.rows_here << " rows here, " << table.rows_there
                << " rows there\n";
    total += table.rows_there;
  }
  console.out << "Moved " << total << " rows; both sides hold the same count of every table.\n"
              << "Keep " << file.string()
              << " in a place where the program does not look: as long as it finds the file it uses it.\n";
  return kDone;
}

int CheckServer(const Arguments& arguments, Console& console) {
  const std::unique_ptr<OdbcSession> server = OdbcSession::Connect(ConnectionStringOf(Source::kScreening));
  if (!CheckRows(Source::kScreening, *server, "ZQR", arguments.Has("--repair"), console)) return kFailed;
  console.out << "All is well.\n";
  return kDone;
}

}  // namespace ovindra
