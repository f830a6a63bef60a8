// A small program to play scenarios on: a splash, a login and a main window, a form with every kind of
// control, and a database of a few made-up statements.
#pragma once

#include <string>
#include <vector>

#include "core/startup/program.h"
#include "tools/driver/drive.h"
#include "tools/driver/world/databases.h"

namespace ovindra::driver {

FormList DeskForms();

/// `keep X` stores X, `select kept` gives what was stored, `select every kind` one row of every kind of
/// field, `select empty` one empty field, `select nothing` no row; anything else is refused. In the demo
/// `demo` is stored.
DatabaseMaker DeskDatabases();

/// What ovindra-drive prints for the file and how it ends.
struct Outcome {
  int exit_code;
  std::string out;
  std::string err;
};

/// A folder that lives as long as the object.
class ScratchFolder {
 public:
  ScratchFolder();
  ~ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  std::string Path(const std::string& name) const;
  /// Writes a file and gives its path.
  std::string Write(const std::string& name, const std::string& text) const;

 private:
  std::string folder_;
};

/// `on_windows` is the player for --window, where a test has one.
Outcome DriveDesk(const std::vector<std::string>& arguments, const WindowPlayerMaker& on_windows = {});

/// Plays the lines as one scenario and gives the lines that its report has for them, as `LINE: expected ...,
/// found ...`. On the widgets where a player for them is given.
std::vector<std::string> Failures(const std::string& lines, const WindowPlayerMaker& on_windows = {});

using Lines = std::vector<std::string>;

}  // namespace ovindra::driver
