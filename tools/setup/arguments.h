// The command line: what the commands are called, what they take, and what was given. A command line that
// does not fit is a UsageError, whose text says what is wrong and how the command is used.
#pragma once

#include <map>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace ovindra {

class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// An option, "--user"; what its value is called in the usage, or nothing for a switch.
struct OptionSyntax {
  std::string_view name;
  std::string_view value;
};

/// A command and what it takes.
struct CommandSyntax {
  std::string_view name;
  /// All must be given, in this order.
  std::span<const std::string_view> operands;
  std::span<const OptionSyntax> options;
  std::string_view help;
};

/// "create FOLDER [--user NAME]".
std::string Usage(const CommandSyntax& command);

class Arguments {
 public:
  /// Reads what follows the command's name.
  Arguments(const CommandSyntax& command, std::span<const std::string> given);

  const std::string& operand(std::size_t place) const { return operands_[place]; }
  bool Has(std::string_view option) const { return options_.contains(option); }

  /// The value of the option; nothing when it was not given.
  const std::string* Value(std::string_view option) const;

 private:
  std::vector<std::string> operands_;
  std::map<std::string, std::string, std::less<>> options_;
};

}  // namespace ovindra
