// The services of the machine that a form may ask for, as small interfaces: what is shown to a person, asked
// of one, read from the clock or started beside the program. The desktop implements them with windows, tests
// with records.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

#include "base/date.h"
#include "base/workbook/document.h"
#include "base/workbook/workbook.h"

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

/// Paths are the program's own texts, as `C:\Enroll.xls`; where a machine has no drives, the drive is the
/// user's documents folder.
class WorkbookFiles {
 public:
  virtual ~WorkbookFiles() = default;
  /// Saves the workbook, replacing any file there: as an Excel 97 workbook, or as an Office Open XML one
  /// where the path ends in `.xlsx`. Error 75 for an empty path or one that can't be written, with nothing
  /// lost.
  virtual void Write(const Workbook& workbook, std::string_view path) = 0;
};

class Printer {
 public:
  virtual ~Printer() = default;
  /// Prints the sheet by its page setup, on the printer that was last asked for.
  virtual void Print(const Workbook& workbook) = 0;
};

class SpreadsheetApplication {
 public:
  virtual ~SpreadsheetApplication() = default;
  /// Error 429 when the machine has none.
  virtual void StartSpreadsheet() = 0;
  /// Leaves the workbook open in it for the person to save.
  virtual void ShowWorkbook(const Workbook& workbook) = 0;
  virtual void CloseWorkbooks() = 0;
};

class WordProcessor {
 public:
  virtual ~WordProcessor() = default;
  /// Error 429 when the machine has none.
  virtual void StartWordProcessor() = 0;
  /// Saves the document, replacing any file there. Error 75 when it can't be written.
  virtual void SaveDocument(const Document& document, std::string_view path) = 0;
};

/// All services together; whoever makes the program owns them.
struct Machine {
  MessageBox& message_box;
  Pointer& pointer;
  Dialogs& dialogs;
  Clock& clock;
  ProgramFolder& program_folder;
  Calculator& calculator;
  WorkbookFiles& workbook_files;
  Printer& printer;
  SpreadsheetApplication& spreadsheet;
  WordProcessor& word_processor;
};

}  // namespace ovindra
