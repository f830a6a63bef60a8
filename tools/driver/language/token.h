// One line of a scenario cut into its words and quoted texts. A text that is never closed is a token of its
// own kind and no error yet, since the rest of an SQL line may hold any quotes.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ovindra::driver {

enum class TokenKind { kWord, kText, kUnclosedText };

struct Token {
  TokenKind kind;
  std::string value;   // the word; of a text what it stands for
  std::size_t offset;  // where it begins in the line
  std::size_t length;  // of what is written there, quotes included
};

/// Cuts the line at blanks and tabs outside quotes. In a text "" is one quote, \t \n \r \\ a tab, a line end,
/// a carriage return and one backslash; a backslash before anything else stands for itself.
std::vector<Token> CutLine(std::string_view line);

/// The text as a scenario writes it: in quotes, with the escapes that CutLine reads.
std::string Quote(std::string_view text);

/// All of them so, a blank between; "none" where there are none.
std::string QuoteAll(const std::vector<std::string>& texts);

}  // namespace ovindra::driver
