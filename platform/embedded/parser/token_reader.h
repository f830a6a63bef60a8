// Walks the tokens of a batch and knows the words and names of the grammar: what the parsers of statements
// and expressions share. Nesting is counted here, so that no text can exhaust the stack.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "base/runtime_error.h"
#include "platform/embedded/lexer/token.h"
#include "platform/embedded/parser/syntax_tree.h"

namespace ovindra::embedded {

class TokenReader {
 public:
  explicit TokenReader(std::span<const Token> tokens) : tokens_(tokens) {}

  const Token& Here() const { return tokens_[at_]; }
  const Token& Next(std::size_t ahead = 1) const {
    return tokens_[std::min(at_ + ahead, tokens_.size() - 1)];
  }
  Token Take();
  bool IsAtEnd() const { return Here().kind == TokenKind::kEnd; }

  /// Whether the token is that word, or that symbol. A quoted name is never a word.
  static bool IsWord(const Token& token, std::string_view word);
  bool AtWord(std::string_view word) const { return IsWord(Here(), word); }
  bool AtSymbol(std::string_view symbol) const;

  /// Takes the word or the symbol when it is here.
  bool TakeWord(std::string_view word);
  bool TakeSymbol(std::string_view symbol);
  void ExpectWord(std::string_view word);
  void ExpectSymbol(std::string_view symbol);

  /// Whether a name stands here: a word that the grammar keeps to itself is none.
  bool AtName() const;
  syntax::Name TakeName();
  syntax::ObjectName TakeObjectName();
  int TakeWholeNumber();

  /// "Incorrect syntax near" the token here.
  RuntimeError Refusal() const;

  /// Counts one level of nesting for as long as it stands.
  class Nesting {
   public:
    explicit Nesting(TokenReader& reader);
    ~Nesting() { --reader_.depth_; }
    Nesting(const Nesting&) = delete;
    Nesting& operator=(const Nesting&) = delete;

   private:
    TokenReader& reader_;
  };

 private:
  std::span<const Token> tokens_;
  std::size_t at_ = 0;
  int depth_ = 0;
};

}  // namespace ovindra::embedded
