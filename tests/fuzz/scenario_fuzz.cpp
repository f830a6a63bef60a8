// Feeds any bytes to the reader of scenarios, line by line. A line is either refused as none of the language
// or read; what was read reads the same when it is read again, and a text that is written as a scenario
// writes it is that text.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <string>

#include "tools/driver/language/grammar.h"
#include "tools/driver/language/token.h"

namespace {

using namespace ovindra::driver;

[[noreturn]] void Fail(const char* what, const std::string& line) {
  std::fprintf(stderr, "%s\n  %s\n", what, line.c_str());
  std::abort();
}

void TryTokens(const std::string& line) {
  for (const Token& token : CutLine(line)) {
    const std::vector<Token> again = CutLine(Quote(token.value));
    if (again.size() != 1 || again.front().kind != TokenKind::kText || again.front().value != token.value)
      Fail("a text that is another one when it is written", line);
  }
}

void TryLine(const Place& place, const std::string& line) {
  try {
    const Step step = ParseLine(place, line);
    const Step again = ParseLine(place, step.line());
    if (again.kind() != step.kind() || again.line() != step.line())
      Fail("a step that reads as another", line);
  } catch (const LanguageError&) {
    // None of the language, as most lines are.
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::istringstream file(std::string(reinterpret_cast<const char*>(data), size));
  std::string line;
  for (int number = 1; std::getline(file, line); ++number) {
    TryTokens(line);
    // Blank lines and comments never come to the parser.
    const std::size_t begin = line.find_first_not_of(" \t");
    if (begin != std::string::npos && line[begin] != '#') TryLine({"fuzz", number}, line);
  }
  return 0;
}
