#include <iostream>
#include <string>
#include <vector>

#include "tools/setup/setup.h"

int main(int count, char** words) {
  const std::vector<std::string> arguments(words + 1, words + count);
  ovindra::Console console{std::cin, std::cout, std::cerr, ovindra::InputIsTerminal()};
  return ovindra::RunSetup(arguments, console);
}
