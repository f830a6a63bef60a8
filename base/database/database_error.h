// The errors of the database: those of the client, with their fixed texts, and the server's refusals, whose
// number tells their class and whose text is the server's own.
#pragma once

#include <string>
#include <string_view>

#include "base/runtime_error.h"

namespace ovindra {

/// The class of a server's refusal; its value is the error's number.
enum class Refusal : long {
  kSyntax = -2147217900,  // syntax, unknown column, a table that is there already
  kUnknownTable = -2147217865,
  kConstraint = -2147217873,  // key or constraint
  kConversion = -2147217913,  // a value that does not convert
  kTruncation = -2147217833,  // a value that does not fit
  kOther = -2147467259,       // anything else, a lost server too
};

/// A refusal with the server's own text.
RuntimeError ServerRefusal(Refusal kind, std::string text);

RuntimeError NoCurrentRecord();
RuntimeError NoSuchField();
RuntimeError ConnectionIsClosed();
RuntimeError NoCommandText();

/// Incorrect syntax near 'WORD'.
RuntimeError IncorrectSyntax(std::string_view word);

/// Unclosed quotation mark after the character string 'TEXT'.
RuntimeError UnclosedQuotation(std::string_view text);

}  // namespace ovindra
