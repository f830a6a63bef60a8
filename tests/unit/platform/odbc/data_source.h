// A data source of a test: its rows as one text, and the errors of its statements.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "base/database/database_error.h"
#include "platform/odbc/odbc_session.h"

namespace ovindra {

/// The session that the program's own user has with a data source.
inline std::unique_ptr<OdbcSession> Connected(const std::string& source) {
  return OdbcSession::Connect("DSN=" + source + ";user ID=sa;pwd=nova..381;");
}

inline Recordset Ask(Session& session, const std::string& statement) {
  return session.Run(WholeStatement(statement));
}

/// "NUMBER TEXT" of the error that the action ends in, or "none".
template <typename Action>
std::string ErrorOf(Action action) {
  try {
    action();
  } catch (const RuntimeError& error) {
    return std::to_string(error.number()) + " " + error.text();
  }
  return "none";
}

inline std::string Number(Refusal kind) {
  return std::to_string(static_cast<long>(kind));
}

}  // namespace ovindra
