#include "core/startup/module1.h"

#include "base/text/blanks.h"
#include "core/startup/connection_strings.h"

namespace ovindra {
void Module1::OpenConnections() {
  try {
    ScreeningConnection.Open(data_sources_, kScreeningSource);
    HospitalConnection.Open(data_sources_, kHospitalSource);
  } catch (const RuntimeError& error) {
    ShowErrorTail(machine, error);
  }
}

std::string Module1::GetUserCode() {
  const Recordset user = ScreeningConnection.Execute(
      sql("select user_code from User_Master where  user_name=", quoted(Trim(CurrentUserName))));
  return Trim(user["user_code"]);
}

}  // namespace ovindra
