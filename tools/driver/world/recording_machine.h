// The machine that the program of a scenario runs on: boxes and dialogs are closed with the replies given
// ahead and kept until the scenario expects them, the clock stands still, the files beside the program are
// those that the scenario lays there. The player shows whatever of it has a face.
#pragma once

#include <deque>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "base/machine/machine.h"
#include "tools/driver/papers/paper_folder.h"
#include "tools/driver/player.h"
#include "tools/driver/world/trace.h"

namespace ovindra::driver {

class RecordingMachine : private MessageBox,
                         private Pointer,
                         private Dialogs,
                         private Clock,
                         private ProgramFolder,
                         private Calculator,
                         private WorkbookFiles,
                         private Printer,
                         private SpreadsheetApplication,
                         private WordProcessor {
 public:
  RecordingMachine(Player& player, Trace& trace) : player_(player), trace_(trace) {}

  Machine& services() { return services_; }

  // What the scenario sets.
  void SetToday(Date today) { today_ = today; }
  void SetTime(std::chrono::minutes time) { time_ = time; }
  void AnswerNext(Answer answer) { answers_.push_back(answer); }
  /// An empty name is a Cancel.
  void SaveNextAs(std::string name) { save_names_.push_back(std::move(name)); }
  void ReplyToNextPrinter(bool ok) { printer_replies_.push_back(ok); }
  void LayFile(std::string_view name, std::string first_line);
  void TakeFileAway(std::string_view name);
  void MakeUnwritable(std::string path) { unwritable_.insert(std::move(path)); }
  void TakeApplicationAway(std::string name) { missing_applications_.insert(std::move(name)); }

  // What the scenario sees.
  /// The oldest message box that was not taken yet.
  std::optional<Message> TakeMessage();
  const std::deque<Message>& messages() const { return messages_; }
  void ForgetMessages() { messages_.clear(); }
  /// The first question since the last call that no answer was waiting for.
  std::optional<Message> TakeUnansweredQuestion();
  bool calculator_was_started() const { return calculator_was_started_; }

  /// The paths that were written and the prints that were sent since the last ForgetPapers, each by the
  /// program's own text.
  const std::vector<std::string>& written_files() const { return written_files_; }
  int prints() const { return prints_; }
  void ForgetPapers();

  /// What was saved, as files.
  const PaperFolder& papers() const { return papers_; }

  /// The page setup of the last print.
  const std::optional<PageSetup>& last_print() const { return last_print_; }
  /// What the spreadsheet application and the word processor were last handed.
  const std::optional<Workbook>& shown_workbook() const { return shown_workbook_; }
  const std::optional<Document>& saved_document() const { return saved_document_; }

 private:
  Answer Show(const Message& message) override;
  void Set(PointerShape shape) override { player_.SetPointer(shape); }
  std::string AskSaveName() override;
  bool AskPrinter() override;
  Moment Now() const override { return StartOf(today_) + time_; }
  std::optional<std::string> FirstLine(std::string_view name) const override;
  bool Has(std::string_view name) const override;
  void Start() override { calculator_was_started_ = true; }
  void Write(const Workbook& workbook, std::string_view path) override;
  void Print(const Workbook& workbook) override;
  void StartSpreadsheet() override { RequireApplication("spreadsheet"); }
  void ShowWorkbook(const Workbook& workbook) override { shown_workbook_ = workbook; }
  void CloseWorkbooks() override { shown_workbook_.reset(); }
  void StartWordProcessor() override { RequireApplication("word-processor"); }
  void SaveDocument(const Document& document, std::string_view path) override;

  void RequireApplication(std::string_view name) const;
  void RequireWritable(std::string_view path) const;

  Player& player_;
  Trace& trace_;
  Machine services_{*this, *this, *this, *this, *this, *this, *this, *this, *this, *this};

  Date today_{std::chrono::year(2016), std::chrono::May, std::chrono::day(31)};
  std::chrono::minutes time_{std::chrono::hours(10) + std::chrono::minutes(15)};
  std::deque<Message> messages_;
  std::deque<Answer> answers_;
  std::deque<std::string> save_names_;
  std::deque<bool> printer_replies_;
  std::optional<Message> unanswered_;
  /// By name without regard to case; the files that the program ships have no line.
  std::map<std::string, std::optional<std::string>> program_files_{
      {"key1.ico", {}}, {"key2.ico", {}}, {"key3.ico", {}}, {"findfile.avi", {}}};
  std::set<std::string> unwritable_;
  std::set<std::string> missing_applications_;
  PaperFolder papers_;
  std::vector<std::string> written_files_;
  int prints_ = 0;
  std::optional<PageSetup> last_print_;
  std::optional<Workbook> shown_workbook_;
  std::optional<Document> saved_document_;
  bool calculator_was_started_ = false;
};

}  // namespace ovindra::driver
