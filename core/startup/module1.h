// The program's global values: the two connections, the user who has logged in, and the way to the machine
// and to other forms. One object, owned by the program and handed to every form.
#pragma once

#include <string>

#include "base/controls/form.h"
#include "base/database/connection.h"
#include "base/machine/machine.h"

namespace ovindra {

class Module1 {
 public:
  Module1(Machine& machine_services, DataSources& data_sources, FormHost& form_host)
      : machine(machine_services), forms(form_host), data_sources_(data_sources) {}

  Connection ScreeningConnection;
  Connection HospitalConnection;
  std::string CurrentUserName;

  Machine& machine;
  FormHost& forms;

  /// Opens both connections, the screening database first. An error is shown and leaves what was not opened
  /// closed.
  void OpenConnections();

  /// The code of the current user, trimmed. A name that is no user's is error 3021.
  std::string GetUserCode();

 private:
  DataSources& data_sources_;
};

}  // namespace ovindra
