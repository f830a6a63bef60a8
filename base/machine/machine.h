// The services of the machine that a form may ask for, as small interfaces: what is shown to a person, asked
// of one, read from the clock or started beside the program. The desktop implements them with windows, tests
// with records.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

#include "base/date.h"

namespace ovindra {

enum class MessageIcon { kPlain, kCritical, kQuestion, kExclamation, kInformation };
enum class MessageButtons { kOk, kYesNo };
enum class Answer { kOk, kYes, kNo };

/// What a message box shows.
struct Message {
  std::string text;
  std::string title;
  MessageIcon icon = MessageIcon::kPlain;
  MessageButtons buttons = MessageButtons::kOk;
};

class MessageBox {
 public:
  virtual ~MessageBox() = default;
  /// Shows the message and waits for the answer.
  virtual Answer Show(const Message& message) = 0;
};

enum class PointerShape { kDefault, kHourglass };

class Pointer {
 public:
  virtual ~Pointer() = default;
  virtual void Set(PointerShape shape) = 0;
};

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  /// Asks for a file to save to; an empty name when cancelled.
  virtual std::string AskSaveName() = 0;
  /// Asks for the printer; false when cancelled.
  virtual bool AskPrinter() = 0;
};

class Clock {
 public:
  virtual ~Clock() = default;
  virtual Moment Now() const = 0;
  Date Today() const { return DayOf(Now()); }
};

/// The files that the program ships or is given beside itself, named as "\version.txt".
class ProgramFolder {
 public:
  virtual ~ProgramFolder() = default;
  /// The first line of a text file; nothing when the file is missing.
  virtual std::optional<std::string> FirstLine(std::string_view name) const = 0;
  virtual bool Has(std::string_view name) const = 0;
};

class Calculator {
 public:
  virtual ~Calculator() = default;
  /// Starts the desktop's calculator. Error 53 when there is none.
  virtual void Start() = 0;
};

/// All services together; whoever makes the program owns them.
struct Machine {
  MessageBox& message_box;
  Pointer& pointer;
  Dialogs& dialogs;
  Clock& clock;
  ProgramFolder& program_folder;
  Calculator& calculator;
};

}  // namespace ovindra
