#include "base/database/sql_text.h"

#include <algorithm>

#include "base/database/database_error.h"

namespace ovindra {
namespace {

bool IsWordCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

bool IsBareCharacter(char c) {
  return IsWordCharacter(c) || c == '.' || c == '+' || c == '-';
}

/// A comment begins with two hyphens, so a token never holds them.
bool IsBareToken(std::string_view value) {
  return std::all_of(value.begin(), value.end(), IsBareCharacter) &&
         value.find("--") == std::string_view::npos;
}

/// The word at the start of the text as the server names it: letters and digits, or one other character.
std::string_view WordAt(std::string_view text) {
  const std::size_t start = std::min(text.find_first_not_of(" \t\r\n"), text.size());
  text.remove_prefix(start);
  const auto end = std::find_if_not(text.begin(), text.end(), IsWordCharacter);
  const auto length = static_cast<std::size_t>(end - text.begin());
  return text.substr(0, std::max<std::size_t>(length, 1));
}

/// What the server finds wrong first in a text whose literal, opened before `start`, ends too early or never.
RuntimeError BrokenLiteral(std::string_view text, std::size_t start) {
  std::string literal;
  for (std::size_t at = start; at < text.size(); ++at) {
    if (text[at] == '\'' && !text.substr(at + 1).starts_with('\'')) {
      const std::string_view word = WordAt(text.substr(at + 1));
      return word.empty() ? UnclosedQuotation({}) : IncorrectSyntax(word);
    }
    if (text[at] == '\'') ++at;
    literal += text[at];
  }
  return UnclosedQuotation(literal);
}

/// The first word of a bare value that makes it more than one token.
std::string_view FirstStrayWord(std::string_view value) {
  const auto first_token = std::find_if_not(value.begin(), value.end(), IsBareCharacter);
  const std::string_view rest = value.substr(static_cast<std::size_t>(first_token - value.begin()));
  const std::string_view word = WordAt(rest);
  return word.empty() ? WordAt(value) : word;
}

}  // namespace

QuotedValue quoted(std::string_view value) {
  return {std::string(value), {}};
}

QuotedValue quoted(std::string_view value, Fragment tail) {
  return {std::string(value), tail.text()};
}

BareValue bare(std::string_view value) {
  return {std::string(value)};
}

void SqlText::Add(const QuotedValue& value) {
  text_ += '\'';
  values_.push_back({text_.size(), value.value.size() + value.tail.size(), true});
  if (!broken_literal_ && value.value.find('\'') != std::string::npos) broken_literal_ = text_.size();
  text_ += value.value;
  text_ += value.tail;
  text_ += '\'';
}

void SqlText::Add(const BareValue& value) {
  values_.push_back({text_.size(), value.value.size(), false});
  text_ += value.value;
  if (!broken_literal_ && !refusal_ && !IsBareToken(value.value)) {
    refusal_ = IncorrectSyntax(FirstStrayWord(value.value));
  }
}

void SqlText::Add(const SqlText& statement) {
  const std::size_t offset = text_.size();
  text_ += statement.text_;
  for (ValuePlace place : statement.values_)
    values_.push_back({place.offset + offset, place.length, place.is_quoted});
  if (!refusal_ && !broken_literal_) {
    refusal_ = statement.refusal_;
    if (statement.broken_literal_) broken_literal_ = *statement.broken_literal_ + offset;
  }
}

void SqlText::Finish() {
  if (broken_literal_) refusal_ = BrokenLiteral(text_, *broken_literal_);
}

SqlText WholeStatement(std::string_view text) {
  SqlText statement;
  statement.Add(text);
  return statement;
}

}  // namespace ovindra
