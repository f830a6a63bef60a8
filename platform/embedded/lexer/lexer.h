// Splits a statement into tokens as the server does: 5And is a number and a word, a literal needs no blank
// before what follows it, comments are passed over. Knows no grammar.
#pragma once

#include <string_view>
#include <vector>

#include "platform/embedded/lexer/token.h"

namespace ovindra::embedded {

/// The tokens of the statement, the last one of kind kEnd. Fails with the server's refusal for a literal or a
/// comment that does not end and for a character that begins no token.
std::vector<Token> Lex(std::string_view statement);

}  // namespace ovindra::embedded
