#include "tools/setup/setup.h"

#include <algorithm>
#include <array>
#include <filesystem>

#include "base/runtime_error.h"
#include "tools/setup/arguments.h"
#include "tools/setup/commands.h"

namespace ovindra {
namespace {

struct Command {
  CommandSyntax syntax;
  int (*run)(const Arguments&, Console&);
};

constexpr std::array<std::string_view, 1> kFolder{"FOLDER"};
constexpr std::array<std::string_view, 2> kFolderAndFile{"FOLDER", "FILE"};
constexpr std::array<std::string_view, 2> kFolderAndStatement{"FOLDER", "STATEMENT"};

constexpr std::array kCreateOptions{OptionSyntax{"--user", "NAME"}, OptionSyntax{"--password", "TEXT"}};
constexpr std::array kDemoOptions{OptionSyntax{"--children", "NUMBER"}};
constexpr std::array kCheckOptions{OptionSyntax{"--repair", ""}};
constexpr std::array kHospitalOption{OptionSyntax{"--hospital", ""}};
constexpr std::array kSqlOptions{OptionSyntax{"--hospital", ""}, OptionSyntax{"--json", ""}};

constexpr std::array kCommands{
    Command{
        {"create", kFolder, kCreateOptions,
         "makes the two databases, ZQR.db and ward.db, with a first user who may do everything. The user is\n"
         "asked for, or named by the options."},
        Create},
    Command{{"demo", kFolder, kDemoOptions,
             "makes the two databases with a demonstration programme of 3000 children, or of that many, and\n"
             "prints the logins."},
            Demo},
    Command{
        {"check", kFolder, kCheckOptions,
         "tells what is wrong with the databases, and mends with --repair what can be mended without loss."},
        Check},
    Command{{"backup", kFolderAndFile, kHospitalOption,
             "saves the screening database as a new file, also while the program runs; with --hospital the\n"
             "hospital records. To go back, put the file in the place of ZQR.db or ward.db while no program\n"
             "runs."},
            Backup},
    Command{
        {"sql", kFolderAndStatement, kSqlOptions,
         "runs a statement and shows its rows; with --hospital on the hospital records. Where the statement\n"
         "is -, each line of the input is one. With --json each answer is one line."},
        Sql},
    Command{
        {"server-script",
         {},
         kHospitalOption,
         "prints the script that makes the tables of the screening database on a Transact-SQL server, or\n"
         "those of the hospital records: for the server's own tool."},
        ServerScript},
    Command{{"move", kFolder, kHospitalOption,
             "copies the rows of ZQR.db to the data source ZQR, where the script has been run, or those of\n"
             "ward.db to ward. All numbers stay as they are. A move that fails leaves the server as it was."},
            Move},
    Command{{"check-server",
             {},
             kCheckOptions,
             "tells what is wrong with the rows of the data source ZQR, and mends with --repair what can be\n"
             "mended without loss."},
            CheckServer},
};

std::string Help() {
  std::string help = "ovindra-setup makes and looks after the databases of Ovindra Desk.\n";
  for (const Command& command : kCommands) {
    help += "\n  ovindra-setup " + Usage(command.syntax) + "\n      ";
    for (const char c : command.syntax.help) {
      help += c;
      if (c == '\n') help += "      ";
    }
    help += '\n';
  }
  help +=
      "\nThe exit code is 0 when all is well, 1 when the work failed or a fault was found, 2 when the "
      "command line\n"
      "does not fit.\n";
  return help;
}

/// What a command line without a known command is told.
[[noreturn]] void RefuseCommand(const std::string& what_is_wrong) {
  std::string text = what_is_wrong + " The commands are:";
  for (const Command& command : kCommands) text += "\n  ovindra-setup " + Usage(command.syntax);
  throw UsageError(text + "\novindra-setup --help tells what they do.");
}

int RunCommand(std::span<const std::string> arguments, Console& console) {
  if (arguments.empty()) RefuseCommand("No command was given.");
  if (std::find(arguments.begin(), arguments.end(), "--help") != arguments.end()) {
    console.out << Help();
    return kDone;
  }
  const auto command = std::find_if(kCommands.begin(), kCommands.end(),
                                    [&](const Command& each) { return each.syntax.name == arguments[0]; });
  if (command == kCommands.end()) RefuseCommand("There is no command " + arguments[0] + ".");
  return command->run(Arguments(command->syntax, arguments.subspan(1)), console);
}

}  // namespace

int RunSetup(std::span<const std::string> arguments, Console& console) {
  try {
    return RunCommand(arguments, console);
  } catch (const UsageError& error) {
    console.error << "ovindra-setup: " << error.what() << '\n';
    return kMisused;
  } catch (const RuntimeError& error) {
    console.error << "ovindra-setup: " << error.text() << '\n';
  } catch (const std::filesystem::filesystem_error& error) {
    console.error << "ovindra-setup: " << error.path1().string() << ": " << error.code().message() << '\n';
  }
  return kFailed;
}

}  // namespace ovindra
