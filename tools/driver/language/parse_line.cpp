// Matching of a line against the rows of the grammar.
#include <algorithm>
#include <cctype>
#include <charconv>
#include <optional>

#include "base/text/utf8.h"
#include "tools/driver/language/grammar.h"
#include "tools/driver/language/token.h"

namespace ovindra::driver {
namespace {

std::string_view TrimBlanks(std::string_view line) {
  const std::size_t begin = line.find_first_not_of(" \t");
  if (begin == std::string_view::npos) return {};
  return line.substr(begin, line.find_last_not_of(" \t") - begin + 1);
}

/// One place of a pattern.
struct Element {
  std::string_view lead;  // the word in front of the shape, where there is one
  std::string_view word;  // literal, choice or shape
  char quantifier = 0;    // ? + * or none

  bool IsShape() const { return std::isupper(static_cast<unsigned char>(word.front())) != 0; }
  bool IsChoice() const { return word.find('|') != std::string_view::npos; }
  bool IsArgument() const { return IsShape() || IsChoice() || quantifier != 0; }
  bool MayRepeat() const { return quantifier == '+' || quantifier == '*'; }
  bool MayBeLeftOut() const { return quantifier == '?' || quantifier == '*'; }
};

std::vector<Element> ElementsOf(std::string_view pattern) {
  std::vector<Element> elements;
  while (!pattern.empty()) {
    Element element{{}, pattern.substr(0, pattern.find(' '))};
    pattern.remove_prefix(std::min(pattern.size(), element.word.size() + 1));
    if (const std::size_t lead = element.word.find('='); lead != std::string_view::npos) {
      element.lead = element.word.substr(0, lead);
      element.word.remove_prefix(lead + 1);
    }
    if (std::string_view("?+*").find(element.word.back()) != std::string_view::npos) {
      element.quantifier = element.word.back();
      element.word.remove_suffix(1);
    }
    elements.push_back(element);
  }
  return elements;
}

struct CompiledRow {
  StepKind kind;
  std::vector<Element> elements;
};

const std::vector<CompiledRow>& CompiledGrammar() {
  static const std::vector<CompiledRow> rows = [] {
    std::vector<CompiledRow> compiled;
    for (const GrammarRow& row : Grammar()) compiled.push_back({row.kind, ElementsOf(row.pattern)});
    return compiled;
  }();
  return rows;
}

template <typename Number>
std::optional<Number> ReadNumber(std::string_view text) {
  Number value{};
  const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
  if (text.empty() || read.ec != std::errc{} || read.ptr != text.data() + text.size()) return {};
  return value;
}

std::optional<Value> ReadInteger(const std::string& text) {
  if (const auto value = ReadNumber<long>(text)) return *value;
  return {};
}

std::optional<Value> ReadDecimal(const std::string& text) {
  if (const auto value = ReadNumber<double>(text)) return *value;
  return {};
}

/// A control, a member of a control array, a panel: letters, digits and underlines, then perhaps a bracketed
/// index.
std::optional<Value> ReadName(const std::string& text) {
  const auto is_name_character = [](unsigned char c) { return std::isalnum(c) != 0 || c == '_'; };
  if (std::isalpha(static_cast<unsigned char>(text.front())) == 0) return {};
  const auto end = std::find_if_not(text.begin(), text.end(), is_name_character);
  if (end == text.end()) return text;
  const auto index = std::string_view(text).substr(static_cast<std::size_t>(end - text.begin()));
  if (index.size() < 3 || index.front() != '(' || index.back() != ')') return {};
  if (!ReadNumber<unsigned>(index.substr(1, index.size() - 2))) return {};
  return text;
}

/// Two numbers of at most two digits each around a separator, then the end or the rest.
std::optional<unsigned> ReadPart(std::string_view text) {
  return text.size() > 2 ? std::nullopt : ReadNumber<unsigned>(text);
}

std::optional<Value> ReadMonthFirstDate(const std::string& text) {
  const std::string_view view(text);
  const std::size_t first = view.find('/');
  const std::size_t second = first == std::string_view::npos ? first : view.find('/', first + 1);
  if (second == std::string_view::npos) return {};
  const auto month = ReadPart(view.substr(0, first));
  const auto day = ReadPart(view.substr(first + 1, second - first - 1));
  const auto year = ReadNumber<unsigned>(view.substr(second + 1));
  if (!month || !day || !year || *year > 9999) return {};
  const Date date(std::chrono::year(static_cast<int>(*year)), std::chrono::month(*month),
                  std::chrono::day(*day));
  if (!date.ok()) return {};
  return date;
}

std::optional<Value> ReadTime(const std::string& text) {
  const std::string_view view(text);
  const std::size_t colon = view.find(':');
  if (colon == std::string_view::npos) return {};
  const auto hour = ReadPart(view.substr(0, colon));
  const auto minute = ReadPart(view.substr(colon + 1));
  if (!hour || !minute || *hour > 23 || *minute > 59) return {};
  return TimeOfDay(*hour * 60 + *minute);
}

std::optional<Value> ReadKeyName(const std::string& text) {
  static const std::pair<std::string_view, KeyName> kKeys[] = {
      {"Enter", KeyName::kEnter},   {"Space", KeyName::kSpace}, {"Backspace", KeyName::kBackspace},
      {"Delete", KeyName::kDelete}, {"Down", KeyName::kDown},   {"Tab", KeyName::kTab},
      {"F8", KeyName::kF8},         {"F9", KeyName::kF9},
  };
  for (const auto& [name, key] : kKeys) {
    if (text == name) return Key{key};
  }
  return {};
}

std::optional<Value> ReadCharacterKey(const std::string& text) {
  const std::u32string characters = Characters(text);
  if (characters.size() != 1) return {};
  return Key::Of(characters.front());
}

struct Shape {
  std::string_view name;
  TokenKind kind;
  std::optional<Value> (*read)(const std::string&);
};

std::optional<Value> ReadAsItStands(const std::string& text) {
  return text;
}

constexpr Shape kShapes[] = {
    {"TEXT", TokenKind::kText, ReadAsItStands},     {"NAME", TokenKind::kWord, ReadName},
    {"INTEGER", TokenKind::kWord, ReadInteger},     {"DECIMAL", TokenKind::kWord, ReadDecimal},
    {"DATE", TokenKind::kWord, ReadMonthFirstDate}, {"TIME", TokenKind::kWord, ReadTime},
    {"KEY", TokenKind::kWord, ReadKeyName},         {"KEY", TokenKind::kText, ReadCharacterKey},
};

std::optional<Value> ReadShape(std::string_view shape, const Token& token) {
  for (const Shape& candidate : kShapes) {
    if (candidate.name != shape || candidate.kind != token.kind) continue;
    if (auto value = candidate.read(token.value)) return value;
  }
  return {};
}

std::optional<Value> ReadWord(std::string_view words, const Token& token) {
  if (token.kind != TokenKind::kWord) return {};
  while (!words.empty()) {
    const std::string_view word = words.substr(0, words.find('|'));
    if (word == token.value) return token.value;
    words.remove_prefix(std::min(words.size(), word.size() + 1));
  }
  return {};
}

/// How far a row goes along with a line, and the arguments when it goes to the end.
class RowMatch {
 public:
  RowMatch(const CompiledRow& row, std::string_view line, const std::vector<Token>& tokens)
      : line_(line), tokens_(tokens) {
    matches_ = std::all_of(row.elements.begin(), row.elements.end(),
                           [this](const Element& element) { return Take(element); }) &&
               at_ == tokens_.size();
  }

  bool matches() const { return matches_; }
  /// How many tokens were matched.
  std::size_t reach() const { return at_; }
  std::vector<Argument>& arguments() { return arguments_; }

 private:
  bool Take(const Element& element) {
    if (element.word == "REST") return TakeRest();
    if (element.word == "QUERY") return TakeQuery();
    Argument argument;
    if (!element.lead.empty()) {
      if (at_ < tokens_.size() && ReadWord(element.lead, tokens_[at_])) {
        ++at_;
      } else {
        arguments_.emplace_back();
        return element.MayBeLeftOut();
      }
    }
    while (at_ < tokens_.size()) {
      const auto value =
          element.IsShape() ? ReadShape(element.word, tokens_[at_]) : ReadWord(element.word, tokens_[at_]);
      if (!value) break;
      argument.push_back(*value);
      ++at_;
      if (!element.MayRepeat()) break;
    }
    const bool may_be_missing = element.MayBeLeftOut() && element.lead.empty();
    if (argument.empty() && !may_be_missing) return false;
    if (element.IsArgument()) arguments_.push_back(std::move(argument));
    return true;
  }

  bool TakeRest() {
    if (at_ == tokens_.size()) return false;
    arguments_.push_back({std::string(line_.substr(tokens_[at_].offset))});
    at_ = tokens_.size();
    return true;
  }

  bool TakeQuery() {
    if (at_ == tokens_.size()) return false;
    const std::string_view rest = line_.substr(tokens_[at_].offset);
    const std::size_t arrow = rest.find("=>");
    // Without its arrow the line ends too soon, whatever stands in it.
    at_ = tokens_.size();
    if (arrow == std::string_view::npos) return false;
    arguments_.push_back(
        {std::string(TrimBlanks(rest.substr(0, arrow))), std::string(TrimBlanks(rest.substr(arrow + 2)))});
    return true;
  }

  std::string_view line_;
  const std::vector<Token>& tokens_;
  std::size_t at_ = 0;
  bool matches_ = false;
  std::vector<Argument> arguments_;
};

[[noreturn]] void Refuse(const Place& place, std::string_view line, const std::vector<Token>& tokens,
                         std::size_t reach) {
  const Token& token = tokens[std::min(reach, tokens.size() - 1)];
  const std::string word(line.substr(token.offset, token.length));
  if (reach == tokens.size())
    throw LanguageError(place, "not in the language: something is missing after '" + word + "'");
  const bool is_unclosed = token.kind == TokenKind::kUnclosedText;
  throw LanguageError(
      place, (is_unclosed ? "a text without its closing quote: '" : "not in the language: '") + word + "'");
}

}  // namespace

Step ParseLine(const Place& place, std::string_view line) {
  line = TrimBlanks(line);
  const std::vector<Token> tokens = CutLine(line);
  std::size_t reach = 0;
  for (const CompiledRow& row : CompiledGrammar()) {
    RowMatch match(row, line, tokens);
    if (match.matches()) return {place, std::string(line), row.kind, std::move(match.arguments())};
    reach = std::max(reach, match.reach());
  }
  Refuse(place, line, tokens, reach);
}

}  // namespace ovindra::driver
