#include "platform/odbc/diagnostics.h"

#include <array>
#include <string>

#include <sqlext.h>

#include "base/database/database_error.h"
#include "platform/odbc/wide_text.h"

namespace ovindra::odbc {
namespace {

struct StateRule {
  /// How the SQLSTATE begins.
  std::string_view state;
  Refusal kind;
};

/// The first row that fits holds. The states are those of ODBC, and of its second version, in which some
/// drivers still speak; 42P01 is what PostgreSQL says of a table that it does not know.
constexpr std::array kRules{
    StateRule{"42S02", Refusal::kUnknownTable}, StateRule{"42P01", Refusal::kUnknownTable},
    StateRule{"S0002", Refusal::kUnknownTable}, StateRule{"42", Refusal::kSyntax},
    StateRule{"37000", Refusal::kSyntax},       StateRule{"S0001", Refusal::kSyntax},
    StateRule{"S0022", Refusal::kSyntax},       StateRule{"21S01", Refusal::kSyntax},
    StateRule{"23", Refusal::kConstraint},      StateRule{"22018", Refusal::kConversion},
    StateRule{"22005", Refusal::kConversion},   StateRule{"22007", Refusal::kConversion},
    StateRule{"22008", Refusal::kConversion},   StateRule{"22P02", Refusal::kConversion},
    StateRule{"22001", Refusal::kTruncation},   StateRule{"22003", Refusal::kTruncation},
};

constexpr std::string_view kWarningClass = "01";

struct Diagnostic {
  std::string state;
  std::string text;
};

/// The record of that number, from 1 on; false when there are no more.
bool ReadRecord(SQLSMALLINT handle_kind, SQLHANDLE handle, SQLSMALLINT number, Diagnostic& record) {
  constexpr SQLSMALLINT kStateLength = 5;
  std::array<SQLWCHAR, kStateLength + 1> state{};
  std::array<SQLWCHAR, SQL_MAX_MESSAGE_LENGTH * 4> text{};
  SQLINTEGER native_number = 0;
  SQLSMALLINT length = 0;
  const SQLRETURN answer = SQLGetDiagRecW(handle_kind, handle, number, state.data(), &native_number,
                                          text.data(), static_cast<SQLSMALLINT>(text.size()), &length);
  if (!SQL_SUCCEEDED(answer)) return false;
  record.state = NarrowText(state.data(), kStateLength);
  // The length is that of the whole text, also where only its begin had room.
  record.text = NarrowText(text.data(), LengthOf(text.data(), text.size()));
  return true;
}

}  // namespace

std::string_view WithoutPrefixes(std::string_view text) {
  while (text.starts_with('[')) {
    const std::size_t end = text.find(']');
    if (end == std::string_view::npos || end + 1 == text.size() || text[end + 1] == ' ') break;
    text.remove_prefix(end + 1);
  }
  return text;
}

RuntimeError RefusalFor(std::string_view state, std::string_view text) {
  Refusal kind = Refusal::kOther;
  for (const StateRule& rule : kRules) {
    if (!state.starts_with(rule.state)) continue;
    kind = rule.kind;
    break;
  }
  return ServerRefusal(kind, std::string(WithoutPrefixes(text)));
}

RuntimeError LastError(SQLSMALLINT handle_kind, SQLHANDLE handle) {
  Diagnostic record;
  Diagnostic first;
  for (SQLSMALLINT number = 1; ReadRecord(handle_kind, handle, number, record); ++number) {
    if (number == 1) first = record;
    if (!record.state.starts_with(kWarningClass)) return RefusalFor(record.state, record.text);
  }
  if (first.text.empty()) first.text = "The driver of the data source failed and did not say why.";
  return RefusalFor(first.state, first.text);
}

RuntimeError NoDriverManager() {
  return ServerRefusal(Refusal::kOther, "The driver manager of the data sources can't be used.");
}

}  // namespace ovindra::odbc
