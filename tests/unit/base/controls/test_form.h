// A form for the tests of the controls, with a machine that records what it is asked, and a list of the
// events that fired.
#pragma once

#include <string>
#include <vector>

#include "base/controls/form.h"

namespace ovindra {

class QuietMachine : public MessageBox,
                     public Pointer,
                     public Dialogs,
                     public Clock,
                     public ProgramFolder,
                     public Calculator,
                     public WorkbookFiles,
                     public Printer,
                     public SpreadsheetApplication,
                     public WordProcessor {
 public:
  Answer Show(const Message& message) override {
    messages.push_back(message.text);
    return Answer::kOk;
  }
  void Set(PointerShape) override {}
  std::string AskSaveName() override { return {}; }
  bool AskPrinter() override { return true; }
  Moment Now() const override { return {}; }
  std::optional<std::string> FirstLine(std::string_view) const override { return {}; }
  bool Has(std::string_view) const override { return false; }
  void Start() override {}
  void Write(const Workbook&, std::string_view) override {}
  void Print(const Workbook&) override {}
  void StartSpreadsheet() override {}
  void ShowWorkbook(const Workbook&) override {}
  void CloseWorkbooks() override {}
  void StartWordProcessor() override {}
  void SaveDocument(const Document&, std::string_view) override {}

  std::vector<std::string> messages;
  Machine services{*this, *this, *this, *this, *this, *this, *this, *this, *this, *this};
};

/// The events of a test's controls, in the order in which they fired.
class EventLog {
 public:
  template <typename... Args>
  void Note(Event<Args...>& event, const std::string& name) {
    event.Handle([this, name](Args...) { entries_.push_back(name); });
  }

  /// What fired since the last call.
  std::vector<std::string> Take() { return std::exchange(entries_, {}); }

 private:
  std::vector<std::string> entries_;
};

using Events = std::vector<std::string>;

class TestForm : public Form {
 public:
  explicit TestForm(QuietMachine& quiet) : Form(quiet.services, "TestForm", "") {}
  using Form::Guarded;
  using Form::Plain;
  using Form::SetDefaultButton;
};

}  // namespace ovindra
