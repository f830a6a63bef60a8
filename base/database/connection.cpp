#include "base/database/connection.h"

#include "base/database/database_error.h"
#include "base/text/blanks.h"

namespace ovindra {

Recordset Connection::Execute(const SqlText& statement) {
  if (!IsOpen()) throw ConnectionIsClosed();
  if (Trim(std::string_view(statement.text())).empty()) throw NoCommandText();
  if (statement.refusal()) throw *statement.refusal();
  return session_->Run(statement);
}

}  // namespace ovindra
