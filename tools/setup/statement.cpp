#include "tools/setup/statement.h"

namespace ovindra {

Recordset Execute(Session& session, const SqlText& statement) {
  if (statement.refusal()) throw *statement.refusal();
  return session.Run(statement);
}

}  // namespace ovindra
