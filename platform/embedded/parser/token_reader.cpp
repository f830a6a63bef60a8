#include "platform/embedded/parser/token_reader.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "base/database/database_error.h"
#include "base/text/utf8.h"
#include "platform/embedded/refusals.h"

namespace ovindra::embedded {
namespace {

/// Deep enough for any statement that a person writes; SQLite's own parser gives up soon behind it.
constexpr int kDeepestNesting = 24;

/// The words that are no names unless they stand in brackets.
constexpr std::string_view kReservedWords[] = {
    "add",      "all",    "alter",   "and",      "any",        "as",      "asc",       "begin",  "between",
    "by",       "case",   "check",   "column",   "constraint", "convert", "create",    "cross",  "declare",
    "default",  "delete", "desc",    "distinct", "drop",       "else",    "end",       "except", "exec",
    "execute",  "exists", "foreign", "from",     "full",       "go",      "grant",     "group",  "having",
    "identity", "if",     "in",      "index",    "inner",      "insert",  "intersect", "into",   "is",
    "join",     "key",    "left",    "like",     "merge",      "not",     "null",      "of",     "on",
    "or",       "order",  "outer",   "primary",  "references", "return",  "right",     "select", "set",
    "table",    "then",   "top",     "truncate", "union",      "unique",  "update",    "use",    "values",
    "view",     "when",   "where",   "while",    "with",
};

bool IsReserved(std::string_view word) {
  return std::any_of(std::begin(kReservedWords), std::end(kReservedWords),
                     [&](std::string_view each) { return SameWithoutCase(each, word); });
}

}  // namespace

Token TokenReader::Take() {
  const Token token = Here();
  if (!IsAtEnd()) ++at_;
  return token;
}

bool TokenReader::IsWord(const Token& token, std::string_view word) {
  return token.kind == TokenKind::kWord && SameWithoutCase(token.text, word);
}

bool TokenReader::AtSymbol(std::string_view symbol) const {
  return Here().kind == TokenKind::kSymbol && Here().text == symbol;
}

bool TokenReader::TakeWord(std::string_view word) {
  const bool is_here = AtWord(word);
  if (is_here) ++at_;
  return is_here;
}

bool TokenReader::TakeSymbol(std::string_view symbol) {
  const bool is_here = AtSymbol(symbol);
  if (is_here) ++at_;
  return is_here;
}

void TokenReader::ExpectWord(std::string_view word) {
  if (!TakeWord(word)) throw Refusal();
}

void TokenReader::ExpectSymbol(std::string_view symbol) {
  if (!TakeSymbol(symbol)) throw Refusal();
}

bool TokenReader::AtName() const {
  return Here().kind == TokenKind::kQuotedName ||
         (Here().kind == TokenKind::kWord && !IsReserved(Here().text));
}

syntax::Name TokenReader::TakeName() {
  if (!AtName()) throw Refusal();
  const Token token = Take();
  std::string name = Unquoted(token);
  if (name.empty() || name.find('\0') != std::string::npos) throw IncorrectSyntax(name);
  return {std::move(name), token.offset};
}

syntax::ObjectName TokenReader::TakeObjectName() {
  syntax::ObjectName name{{}, TakeName()};
  if (TakeSymbol(".")) {
    name.schema = std::move(name.name.text);
    name.name = TakeName();
    if (AtSymbol(".")) throw NotSupported(name.schema + ".", name.name.offset);
  }
  return name;
}

int TokenReader::TakeWholeNumber() {
  int value = 0;
  const Token& token = Here();
  const auto read = std::from_chars(token.text.data(), token.text.data() + token.text.size(), value);
  if (token.kind != TokenKind::kInteger || read.ec != std::errc{}) throw Refusal();
  Take();
  return value;
}

RuntimeError TokenReader::Refusal() const {
  if (!IsAtEnd()) return IncorrectSyntax(Here().text);
  // At its end a statement is refused near its last word.
  return IncorrectSyntax(at_ > 0 ? tokens_[at_ - 1].text : std::string_view{});
}

TokenReader::Nesting::Nesting(TokenReader& reader) : reader_(reader) {
  if (reader_.depth_ >= kDeepestNesting) throw NestedTooDeeply();
  ++reader_.depth_;
}

}  // namespace ovindra::embedded
