#include "platform/embedded/lexer/lexer.h"

#include <algorithm>
#include <string>

#include "base/database/database_error.h"
#include "platform/embedded/refusals.h"

namespace ovindra::embedded {
namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

/// Letters of other alphabets are bytes above 127.
bool BeginsWord(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == '@' || c == '#' ||
         static_cast<unsigned char>(c) >= 0x80;
}

bool ContinuesWord(char c) {
  return BeginsWord(c) || IsDigit(c) || c == '$';
}

bool IsBlank(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}

constexpr std::string_view kLongSymbols[] = {"<>", "<=", ">=", "!=", "!<", "!>"};
constexpr std::string_view kSymbols = "(),.;=<>+-*/%&|^~";

class Lexer {
 public:
  explicit Lexer(std::string_view statement) : text_(statement) {}

  std::vector<Token> Run() {
    if (text_.find('\0') != std::string_view::npos) throw IncorrectSyntax(std::string_view("\0", 1));
    tokens_.reserve(text_.size() / 4 + 2);
    for (SkipBlanksAndComments(); at_ < text_.size(); SkipBlanksAndComments()) ReadToken();
    Add(TokenKind::kEnd, at_, at_);
    return std::move(tokens_);
  }

 private:
  char Here(std::size_t ahead = 0) const { return at_ + ahead < text_.size() ? text_[at_ + ahead] : '\0'; }

  void Add(TokenKind kind, std::size_t begin, std::size_t end) {
    tokens_.push_back({kind, text_.substr(begin, end - begin), begin});
  }

  void SkipBlanksAndComments() {
    while (at_ < text_.size()) {
      if (IsBlank(Here())) {
        ++at_;
      } else if (Here() == '-' && Here(1) == '-') {
        at_ = std::min(text_.find('\n', at_), text_.size());
      } else if (Here() == '/' && Here(1) == '*') {
        SkipComment();
      } else {
        return;
      }
    }
  }

  /// Comments nest.
  void SkipComment() {
    for (int depth = 0; at_ < text_.size();) {
      if (Here() == '/' && Here(1) == '*') {
        ++depth;
        at_ += 2;
      } else if (Here() == '*' && Here(1) == '/') {
        at_ += 2;
        if (--depth == 0) return;
      } else {
        ++at_;
      }
    }
    throw UnclosedComment();
  }

  void ReadToken() {
    const char c = Here();
    if (c == '\'') {
      ReadQuoted(TokenKind::kText, '\'');
    } else if ((c == 'N' || c == 'n') && Here(1) == '\'') {
      ++at_;
      ReadQuoted(TokenKind::kText, '\'');
    } else if (c == '[') {
      ReadQuoted(TokenKind::kQuotedName, ']');
    } else if (c == '"') {
      ReadQuoted(TokenKind::kQuotedName, '"');
    } else if (BeginsWord(c)) {
      const auto begin = text_.begin() + static_cast<std::ptrdiff_t>(at_);
      const auto end = std::find_if_not(begin, text_.end(), ContinuesWord);
      Add(TokenKind::kWord, at_, at_ + static_cast<std::size_t>(end - begin));
      at_ += tokens_.back().text.size();
    } else if (IsDigit(c) || (c == '.' && IsDigit(Here(1)))) {
      ReadNumber();
    } else {
      ReadSymbol();
    }
  }

  void ReadQuoted(TokenKind kind, char closing) {
    const std::size_t begin = ++at_;
    while (at_ < text_.size()) {
      if (Here() != closing) {
        ++at_;
      } else if (Here(1) == closing) {
        at_ += 2;
      } else {
        Add(kind, begin, at_++);
        return;
      }
    }
    throw UnclosedQuotation(text_.substr(begin));
  }

  /// An exponent counts only with a digit in it, so that what follows a number may be a word.
  void ReadNumber() {
    const std::size_t begin = at_;
    TokenKind kind = TokenKind::kInteger;
    while (IsDigit(Here())) ++at_;
    if (Here() == '.') {
      kind = TokenKind::kDecimal;
      ++at_;
      while (IsDigit(Here())) ++at_;
    }
    const std::size_t sign = Here(1) == '+' || Here(1) == '-' ? 1 : 0;
    if ((Here() == 'e' || Here() == 'E') && IsDigit(Here(1 + sign))) {
      kind = TokenKind::kFloat;
      at_ += 1 + sign;
      while (IsDigit(Here())) ++at_;
    }
    Add(kind, begin, at_);
  }

  void ReadSymbol() {
    const std::string_view two = text_.substr(at_, 2);
    const bool is_long =
        std::find(std::begin(kLongSymbols), std::end(kLongSymbols), two) != std::end(kLongSymbols);
    if (!is_long && kSymbols.find(Here()) == std::string_view::npos)
      throw IncorrectSyntax(text_.substr(at_, 1));
    const std::size_t length = is_long ? 2 : 1;
    Add(TokenKind::kSymbol, at_, at_ + length);
    at_ += length;
  }

  std::string_view text_;
  std::size_t at_ = 0;
  std::vector<Token> tokens_;
};

}  // namespace

std::vector<Token> Lex(std::string_view statement) {
  return Lexer(statement).Run();
}

std::string Unquoted(const Token& token) {
  std::string text(token.text);
  if (token.kind != TokenKind::kText && token.kind != TokenKind::kQuotedName) return text;
  // Within the quotes a closing quote stands only doubled; an opening bracket stands for itself.
  const char before = *(token.text.data() - 1);
  const char closing = before == '[' ? ']' : before;
  std::size_t to = 0;
  for (std::size_t from = 0; from < text.size(); ++from) {
    text[to++] = text[from];
    if (text[from] == closing) ++from;
  }
  text.resize(to);
  return text;
}

}  // namespace ovindra::embedded
