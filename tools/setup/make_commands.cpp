#include <charconv>

#include "base/text/blanks.h"
#include "base/text/utf8.h"
#include "tools/setup/commands.h"
#include "tools/setup/database_files.h"
#include "tools/setup/demo/demo.h"
#include "tools/setup/setup.h"
#include "tools/setup/users.h"

namespace ovindra {
namespace {

// As wide as the columns of the user master; the boxes of the program take no more.
constexpr std::size_t kLongestName = 30;
constexpr std::size_t kLongestPassword = 10;
constexpr int kMostChildren = 5'000'000;

/// What is wrong with a name or password, or nothing.
std::string Flaw(std::string_view text, std::string_view what, std::size_t longest) {
  if (text.empty()) return "The " + std::string(what) + " must not be empty.";
  if (CharacterCount(text) > longest)
    return "The " + std::string(what) + " must not be longer than " + std::to_string(longest) +
           " characters.";
  if (text.find('\'') != std::string_view::npos)
    return "The " + std::string(what) + " must not hold a quote ('): it could not be used to log in.";
  return {};
}

/// The option's value, or the answer to the question, without the blanks around it: the login drops them too.
std::string Answer(const Arguments& arguments, std::string_view option,
                   const std::function<std::string()>& ask) {
  const std::string* given = arguments.Value(option);
  return std::string(Trim(std::string_view(given != nullptr ? *given : ask())));
}

struct Login {
  std::string name;
  std::string password;
};

Login ReadLogin(const Arguments& arguments, Console& console) {
  Login login;
  login.name = Answer(arguments, "--user", [&] { return Ask(console, "Name of the first user: "); });
  if (const std::string flaw = Flaw(login.name, "name", kLongestName); !flaw.empty()) throw UsageError(flaw);
  login.password = Answer(arguments, "--password", [&] { return AskSecretly(console, "Password: "); });
  if (const std::string flaw = Flaw(login.password, "password", kLongestPassword); !flaw.empty())
    throw UsageError(flaw);
  if (console.is_terminal && !arguments.Has("--password")) {
    const std::string again = AskSecretly(console, "The password again: ");
    if (Trim(std::string_view(again)) != login.password) throw UsageError("The two passwords differ.");
  }
  return login;
}

DemoScale ScaleOf(const Arguments& arguments) {
  const std::string* given = arguments.Value("--children");
  if (given == nullptr) return {};
  int children = 0;
  const char* end = given->data() + given->size();
  const auto read = std::from_chars(given->data(), end, children);
  if (read.ec != std::errc{} || read.ptr != end || children < 100 || children > kMostChildren)
    throw UsageError("--children takes a number from 100 to " + std::to_string(kMostChildren) + ", not \"" +
                     *given + "\".");
  return DemoScale::ForChildren(children);
}

void TellFiles(const std::string& folder, Console& console) {
  console.out << "Made " << DatabaseFile(folder, Source::kScreening).string() << " and "
              << DatabaseFile(folder, Source::kHospital).string() << ".\n";
}

}  // namespace

int Create(const Arguments& arguments, Console& console) {
  const std::string& folder = arguments.operand(0);
  // Before anyone is asked.
  RequireNoDatabases(folder);
  const Login login = ReadLogin(arguments, console);
  MakeDatabases(folder, [&](Session& screening, Session&) {
    AddUser(screening, login.name, login.password, EveryMenuItem());
  });
  TellFiles(folder, console);
  console.out << login.name << " may do everything.\n";
  return kDone;
}

int Demo(const Arguments& arguments, Console& console) {
  const std::string& folder = arguments.operand(0);
  const DemoScale scale = ScaleOf(arguments);
  MakeDatabases(folder, [&](Session& screening, Session& hospital) { FillDemo(screening, hospital, scale); });
  TellFiles(folder, console);
  console.out << scale.children << " children. Log in as:\n";
  for (const DemoUser& user : DemoUsers())
    console.out << "  " << user.name << ", password " << user.password << ": " << user.duty << '\n';
  return kDone;
}

}  // namespace ovindra
