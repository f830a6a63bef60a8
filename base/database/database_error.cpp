#include "base/database/database_error.h"

namespace ovindra {

RuntimeError ServerRefusal(Refusal kind, std::string text) {
  return {static_cast<long>(kind), std::move(text)};
}

RuntimeError NoCurrentRecord() {
  return {3021,
          "Either BOF or EOF is True, or the current record has been deleted. Requested operation requires a "
          "current record."};
}

RuntimeError NoSuchField() {
  return {3265, "Item cannot be found in the collection corresponding to the requested name or ordinal."};
}

RuntimeError ConnectionIsClosed() {
  return {3709,
          "The connection cannot be used to perform this operation. It is either closed or invalid in this "
          "context."};
}

RuntimeError NoCommandText() {
  return {-2147217908, "Command text was not set for the command object."};
}

RuntimeError IncorrectSyntax(std::string_view word) {
  return ServerRefusal(Refusal::kSyntax, "Incorrect syntax near '" + std::string(word) + "'.");
}

RuntimeError UnclosedQuotation(std::string_view text) {
  return ServerRefusal(Refusal::kSyntax,
                       "Unclosed quotation mark after the character string '" + std::string(text) + "'.");
}

}  // namespace ovindra
