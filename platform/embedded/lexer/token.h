// A token of a statement: what it is, its text and where it stands. A token looks into the statement's text
// and is valid as long as that text stands.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace ovindra::embedded {

enum class TokenKind : std::uint8_t {
  kWord,        // letters, digits and _, a keyword or a name
  kQuotedName,  // [name] or "name"
  kInteger,
  kDecimal,
  kFloat,
  kText,  // 'text'
  kSymbol,
  kEnd,
};

struct Token {
  TokenKind kind;
  /// The token as it is written; of a quoted name or a text what stands between the quotes.
  std::string_view text;
  /// Where `text` begins in the statement.
  std::size_t offset;
};

/// What a text or a quoted name says, its doubled closing quotes made single.
std::string Unquoted(const Token& token);

}  // namespace ovindra::embedded
