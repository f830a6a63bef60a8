#include "tools/driver/language/token.h"

namespace ovindra::driver {
namespace {

constexpr std::string_view kBlanks = " \t";

/// Reads what follows a backslash at that place; leaves the place behind what was read.
char ReadEscape(std::string_view line, std::size_t& at) {
  const char next = at < line.size() ? line[at] : '\0';
  switch (next) {
    case 't':
      ++at;
      return '\t';
    case 'n':
      ++at;
      return '\n';
    case 'r':
      ++at;
      return '\r';
    case '\\':
      ++at;
      return '\\';
    default:
      return '\\';
  }
}

Token ReadText(std::string_view line, std::size_t begin) {
  Token token{TokenKind::kUnclosedText, {}, begin, 0};
  std::size_t at = begin + 1;
  while (at < line.size()) {
    const char c = line[at++];
    if (c == '\\') {
      token.value += ReadEscape(line, at);
    } else if (c != '"') {
      token.value += c;
    } else if (at < line.size() && line[at] == '"') {
      token.value += '"';
      ++at;
    } else {
      token.kind = TokenKind::kText;
      break;
    }
  }
  token.length = at - begin;
  return token;
}

/// Whether a backslash before that would be read as an escape.
bool BeginsEscape(std::string_view rest) {
  constexpr std::string_view kWrittenAsEscape = "tnr\\\t\n\r";
  return !rest.empty() && kWrittenAsEscape.find(rest.front()) != std::string_view::npos;
}

}  // namespace

std::vector<Token> CutLine(std::string_view line) {
  std::vector<Token> tokens;
  for (std::size_t at = line.find_first_not_of(kBlanks); at < line.size();
       at = line.find_first_not_of(kBlanks, at)) {
    if (line[at] == '"') {
      tokens.push_back(ReadText(line, at));
    } else {
      const std::string_view word = line.substr(at, line.find_first_of(" \t\"", at) - at);
      tokens.push_back({TokenKind::kWord, std::string(word), at, word.size()});
    }
    at += tokens.back().length;
  }
  return tokens;
}

std::string Quote(std::string_view text) {
  std::string quoted = "\"";
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char c = text[at];
    switch (c) {
      case '\\':
        quoted += BeginsEscape(text.substr(at + 1)) ? "\\\\" : "\\";
        break;
      case '"':
        quoted += "\"\"";
        break;
      case '\t':
        quoted += "\\t";
        break;
      case '\n':
        quoted += "\\n";
        break;
      case '\r':
        quoted += "\\r";
        break;
      default:
        quoted += c;
    }
  }
  return quoted + '"';
}

std::string QuoteAll(const std::vector<std::string>& texts) {
  std::string all;
  for (const std::string& text : texts) all += (all.empty() ? "" : " ") + Quote(text);
  return all.empty() ? "none" : all;
}

}  // namespace ovindra::driver
