// The world of one scenario, shared by both players: the databases, the machine, the program that runs on
// them, and which of its forms the steps go to. It is made fresh for every scenario and owns all of this; the
// player and the trace are lent to it.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/startup/program.h"
#include "tools/driver/player.h"
#include "tools/driver/world/databases.h"
#include "tools/driver/world/recording_machine.h"
#include "tools/driver/world/trace.h"

namespace ovindra::driver {

class World : private ProgramObserver {
 public:
  World(FormList forms, DatabaseMaker make_database, Player& player, Trace& trace);
  ~World() override;
  World(const World&) = delete;
  World& operator=(const World&) = delete;

  Databases& databases() { return databases_; }
  RecordingMachine& machine() { return machine_; }
  Trace& trace() { return trace_; }

  /// The program. Where none was started it is made now, past its splash and login windows: nobody is signed
  /// in, the connections are open as far as their data sources are there, no form is open.
  Program& program();
  bool HasProgram() const { return program_ != nullptr; }
  /// Whether the program came up through its splash window.
  bool WasStarted() const { return was_started_; }

  /// Lets the program start anew: its splash window is up, the connections are closed until it opens them.
  void StartProgram();

  /// Signs a person in without the login window.
  void SignIn(std::string name);

  /// The connection closes under the program, and opens no more.
  void Disconnect(DatabaseName name);

  /// Opens a form as its menu item does. A form that has its place in the main window brings that one up
  /// first. False for a name that is no form's.
  bool Open(std::string_view form);

  /// Opens the main window where it is not, as it stands behind every form.
  void BringUpMainWindow();

  /// The form that the steps go to; null when none is open.
  Form* current_form() const;
  /// From now on the steps go to this form, which is open.
  void TurnTo(Form& form);

  /// The open form of that name; null when it is not open or the program has ended.
  Form* FindForm(std::string_view form) const;
  /// The control of an open form; null for none.
  Control* Find(const ControlName& name) const;

  /// An action of a person begins: what statements, files and prints there were is looked back to no more.
  void BeginAction();

 private:
  void FormMade(Form& form) override;
  void FormShown(Form& form) override;
  void FormUnloaded(Form& form) override;
  void ActionEnded() override;
  void Ended(const std::optional<RuntimeError>& error) override;

  void MakeProgram();
  void DropProgram();

  FormList forms_;
  Player& player_;
  Trace& trace_;
  Databases databases_;
  RecordingMachine machine_;
  std::unique_ptr<Program> program_;
  bool was_started_ = false;
  /// The open forms, the one that was opened or named last at the end.
  std::vector<Form*> turned_to_;
};

}  // namespace ovindra::driver
