#include "base/database/database_error.h"
#include "base/text/blanks.h"
#include "platform/embedded/refusals.h"
#include "tools/setup/answers.h"
#include "tools/setup/check.h"
#include "tools/setup/commands.h"
#include "tools/setup/database_files.h"
#include "tools/setup/setup.h"
#include "tools/setup/statement.h"

namespace ovindra {
namespace {

/// Tells the faults of one database and mends them when told so. True when none is left.
bool CheckDatabase(const std::filesystem::path& folder, Source source, bool repairs, Console& console) {
  const std::unique_ptr<EmbeddedDatabase> database = OpenDatabase(folder, source);
  const std::string name = DatabaseFile(folder, source).filename().string();
  if (const std::vector<std::string> findings = database->IntegrityReport(); !findings.empty()) {
    console.out << name << ": The file is damaged. Restore a backup.\n";
    for (const std::string& finding : findings) console.out << "  " << finding << '\n';
    return false;
  }
  return CheckRows(source, *database, name, repairs, console);
}

/// Runs one statement and writes its answer. False when it failed.
bool AnswerStatement(Session& database, const std::string& statement, bool as_json, Console& console) {
  try {
    if (Trim(std::string_view(statement)).empty()) throw NoCommandText();
    Recordset answer = Execute(database, WholeStatement(statement));
    if (as_json) {
      console.out << JsonLine(std::move(answer)) << '\n';
    } else {
      WriteTable(console.out, std::move(answer));
    }
    return true;
  } catch (const RuntimeError& error) {
    if (as_json) {
      console.out << JsonLine(error) << '\n';
    } else {
      console.error << "Error " << error.number() << ": " << error.text() << '\n';
    }
    return false;
  }
}

}  // namespace

int Check(const Arguments& arguments, Console& console) {
  const std::filesystem::path folder = arguments.operand(0);
  const bool repairs = arguments.Has("--repair");
  bool is_sound = CheckDatabase(folder, Source::kScreening, repairs, console);
  if (std::filesystem::exists(DatabaseFile(folder, Source::kHospital))) {
    is_sound = CheckDatabase(folder, Source::kHospital, repairs, console) && is_sound;
  } else {
    console.out << "There is no ward.db here: the hospital records are reached through the data source.\n";
  }
  if (is_sound) console.out << "All is well.\n";
  return is_sound ? kDone : kFailed;
}

int Backup(const Arguments& arguments, Console& console) {
  const Source source = ChosenSource(arguments);
  const std::filesystem::path file = arguments.operand(1);
  const std::unique_ptr<EmbeddedDatabase> database = OpenDatabase(arguments.operand(0), source);
  if (std::filesystem::exists(file)) throw embedded::FileIsThere(file.string());
  database->BackupTo(file);
  console.out << "Saved " << DatabaseFile(arguments.operand(0), source).string() << " as " << file.string()
              << ".\n";
  return kDone;
}

int Sql(const Arguments& arguments, Console& console) {
  const std::unique_ptr<EmbeddedDatabase> database =
      OpenDatabase(arguments.operand(0), ChosenSource(arguments));
  const bool as_json = arguments.Has("--json");
  const std::string& statement = arguments.operand(1);
  if (statement != "-") return AnswerStatement(*database, statement, as_json, console) ? kDone : kFailed;
  bool all_ran = true;
  for (std::string line; std::getline(console.in, line);) {
    if (Trim(std::string_view(line)).empty()) continue;
    all_ran = AnswerStatement(*database, line, as_json, console) && all_ran;
    // Another program may wait for this answer before it sends the next statement.
    console.out.flush();
  }
  return all_ran ? kDone : kFailed;
}

}  // namespace ovindra
