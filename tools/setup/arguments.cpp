#include "tools/setup/arguments.h"

#include <algorithm>

namespace ovindra {
namespace {

[[noreturn]] void Refuse(const CommandSyntax& command, const std::string& reason) {
  throw UsageError(reason + "\nUsage: ovindra-setup " + Usage(command));
}

}  // namespace

std::string Usage(const CommandSyntax& command) {
  std::string usage(command.name);
  for (const std::string_view operand : command.operands) usage.append(" ").append(operand);
  for (const OptionSyntax& option : command.options) {
    usage.append(" [").append(option.name);
    if (!option.value.empty()) usage.append(" ").append(option.value);
    usage += ']';
  }
  return usage;
}

Arguments::Arguments(const CommandSyntax& command, std::span<const std::string> given) {
  bool options_ended = false;
  for (std::size_t i = 0; i < given.size(); ++i) {
    const std::string& word = given[i];
    if (options_ended || !word.starts_with("--")) {
      operands_.push_back(word);
      continue;
    }
    if (word == "--") {
      options_ended = true;
      continue;
    }
    const auto option = std::find_if(command.options.begin(), command.options.end(),
                                     [&](const OptionSyntax& each) { return each.name == word; });
    if (option == command.options.end()) Refuse(command, "There is no option " + word + ".");
    if (option->value.empty()) {
      options_[word];
    } else if (i + 1 < given.size()) {
      options_[word] = given[++i];
    } else {
      Refuse(command, "The option " + word + " needs its " + std::string(option->value) + ".");
    }
  }
  if (operands_.size() < command.operands.size())
    Refuse(command, std::string(command.operands[operands_.size()]) + " is missing.");
  if (operands_.size() > command.operands.size())
    Refuse(command, "\"" + operands_[command.operands.size()] + "\" is one word too many.");
}

const std::string* Arguments::Value(std::string_view option) const {
  const auto found = options_.find(option);
  return found == options_.end() ? nullptr : &found->second;
}

}  // namespace ovindra
