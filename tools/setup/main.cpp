#include <clocale>
#include <iostream>
#include <string>
#include <vector>

#include "tools/setup/setup.h"

int main(int count, char** words) {
  // The ODBC driver manager converts by the locale for a driver that has no wide functions.
  std::setlocale(LC_CTYPE, "");
  const std::vector<std::string> arguments(words + 1, words + count);
  ovindra::Console console{std::cin, std::cout, std::cerr, ovindra::InputIsTerminal()};
  return ovindra::RunSetup(arguments, console);
}
