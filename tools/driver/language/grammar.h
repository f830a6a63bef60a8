// The language as a table: every step is a row, a pattern of the words and argument shapes that its line
// holds. A line is read by the first row that matches it to its end.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "tools/driver/language/step.h"

namespace ovindra::driver {

/// A pattern is words parted by blanks. A lower-case word stands for itself; `a|b` is one of the words named;
/// an upper-case word is a shape: NAME, TEXT, INTEGER, DECIMAL, DATE, TIME, KEY, REST (the rest of the line
/// as it stands), QUERY (the rest, parted in two at its `=>`). `title=TEXT` is the shape behind that word. A
/// `?` at the end makes it optional, `+` one or more, `*` any number. Every shape, choice and quantified word
/// is an argument of the step, a plain word is not.
struct GrammarRow {
  StepKind kind;
  std::string_view pattern;
};

const std::vector<GrammarRow>& Grammar();

/// A line that is not in the language, or a file that can't be read; the text names file, line and word.
class LanguageError : public std::runtime_error {
 public:
  LanguageError(const Place& place, const std::string& what)
      : std::runtime_error(place.text() + ": " + what) {}
  explicit LanguageError(const std::string& what) : std::runtime_error(what) {}
};

/// Reads one line that is neither blank nor a comment. Fails with LanguageError.
Step ParseLine(const Place& place, std::string_view line);

}  // namespace ovindra::driver
