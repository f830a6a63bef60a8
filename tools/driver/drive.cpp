#include "tools/driver/drive.h"

#include <fstream>

#include "tools/driver/language/grammar.h"
#include "tools/driver/language/script.h"
#include "tools/driver/runner/runner.h"
#include "tools/driver/world/statement_log.h"

namespace ovindra::driver {
namespace {

constexpr int kAllHeld = 0;
constexpr int kSomeFailed = 1;
constexpr int kNotUnderstood = 2;

constexpr const char* kUsage =
    "usage: ovindra-drive [--window [--dark]] [--trace] [--database FOLDER] [--pictures FOLDER]\n"
    "                     [--statements FILE] FILE...";

struct CommandLine {
  bool window = false;
  Look look = Look::kLight;
  bool trace = false;
  std::string database_folder;
  std::string picture_folder = ".";
  std::string statement_file;
  std::vector<std::string> files;
};

CommandLine ReadCommandLine(const std::vector<std::string>& arguments) {
  CommandLine line;
  for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
    const auto value_of = [&] {
      const std::string option = *argument;
      if (++argument == arguments.end()) throw LanguageError(option + " needs a name\n" + kUsage);
      return *argument;
    };
    if (*argument == "--window") {
      line.window = true;
    } else if (*argument == "--dark") {
      line.look = Look::kDark;
    } else if (*argument == "--trace") {
      line.trace = true;
    } else if (*argument == "--database") {
      line.database_folder = value_of();
    } else if (*argument == "--pictures") {
      line.picture_folder = value_of();
    } else if (*argument == "--statements") {
      line.statement_file = value_of();
    } else if (argument->starts_with("--")) {
      throw LanguageError("unknown option '" + *argument + "'\n" + kUsage);
    } else {
      line.files.push_back(*argument);
    }
  }
  if (line.files.empty()) throw LanguageError(std::string("no file to play\n") + kUsage);
  return line;
}

std::unique_ptr<Player> MakePlayer(const CommandLine& line, const DriveParts& parts) {
  if (!line.window) return parts.on_controls();
  if (!parts.on_windows) throw LanguageError("--window: this program was built without its desktop");
  return parts.on_windows(line.look);
}

std::vector<Scenario> ReadAll(const std::vector<std::string>& files) {
  std::vector<Scenario> all;
  for (const std::string& file : files) {
    std::vector<Scenario> scenarios = ReadScript(file);
    all.insert(all.end(), std::make_move_iterator(scenarios.begin()),
               std::make_move_iterator(scenarios.end()));
  }
  return all;
}

void WriteLog(const StatementLog& log, const std::string& file) {
  std::ofstream out(file);
  log.Write(out);
  if (!out.flush()) throw LanguageError("--statements: can't write " + file);
}

}  // namespace

int Drive(const std::vector<std::string>& arguments, const DriveParts& parts, std::ostream& out,
          std::ostream& err) {
  try {
    const CommandLine line = ReadCommandLine(arguments);
    const std::vector<Scenario> scenarios = ReadAll(line.files);
    const std::unique_ptr<Player> player = MakePlayer(line, parts);
    const StatementLog log;
    Runner runner(
        {parts.forms, log.Over(parts.databases(line.database_folder)), line.picture_folder, line.trace},
        *player, out);
    int passed = 0;
    for (const Scenario& scenario : scenarios) passed += runner.Play(scenario) ? 1 : 0;
    if (!line.statement_file.empty()) WriteLog(log, line.statement_file);
    const int failed = static_cast<int>(scenarios.size()) - passed;
    out << passed << " passed, " << failed << " failed" << std::endl;
    return failed == 0 ? kAllHeld : kSomeFailed;
  } catch (const LanguageError& error) {
    err << error.what() << std::endl;
    return kNotUnderstood;
  }
}

}  // namespace ovindra::driver
