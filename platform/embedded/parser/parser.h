// Reads the tokens of a batch as statements of the dialect. Knows no catalog: a name is whatever stands where
// a name may stand. What is no statement is the server's "Incorrect syntax", what is one that the embedded
// engine does not have is refused by word and position.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "base/database/sql_text.h"
#include "platform/embedded/lexer/token.h"
#include "platform/embedded/parser/syntax_tree.h"

namespace ovindra::embedded {

/// Whether a value that was joined into a statement is a parameter of it: a quoted one, or a bare one that is
/// a plain whole number. Any other is part of the statement's text.
bool IsParameter(const ValuePlace& place, std::string_view statement);

/// The statements of a batch. `values` are the places of the values that were joined into the text: a literal
/// that is one of them, and a parameter, is marked with its number.
syntax::Batch Parse(std::string_view statement, std::span<const Token> tokens,
                    std::span<const ValuePlace> values);

}  // namespace ovindra::embedded
