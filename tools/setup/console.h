// Where the commands read and write: the terminal in the program, texts in tests.
#pragma once

#include <istream>
#include <ostream>
#include <string>
#include <string_view>

namespace ovindra {

struct Console {
  std::istream& in;
  std::ostream& out;
  std::ostream& error;
  /// A person sits at the terminal: questions are put, and what is typed as a password is not shown.
  bool is_terminal = false;
};

/// Asks for a line. At the end of the input the answer is empty.
std::string Ask(Console& console, std::string_view question);

/// Asks for a password, at a terminal without showing what is typed.
std::string AskSecretly(Console& console, std::string_view question);

/// Whether the program's own input is a terminal.
bool InputIsTerminal();

}  // namespace ovindra
