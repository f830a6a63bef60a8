#include "tools/driver/world/recording_machine.h"

#include "base/text/utf8.h"

namespace ovindra::driver {
namespace {

/// The oldest reply, or the one that stands for none.
template <typename Reply>
Reply TakeReply(std::deque<Reply>& replies, Reply without) {
  if (replies.empty()) return without;
  Reply reply = std::move(replies.front());
  replies.pop_front();
  return reply;
}

/// "\version.txt" and "Version.txt" are one file.
std::string FileKey(std::string_view name) {
  if (name.starts_with('\\')) name.remove_prefix(1);
  return LowerCaseLatin(name);
}

}  // namespace

void RecordingMachine::LayFile(std::string_view name, std::string first_line) {
  program_files_[FileKey(name)] = std::move(first_line);
}

void RecordingMachine::TakeFileAway(std::string_view name) {
  program_files_.erase(FileKey(name));
}

std::optional<Message> RecordingMachine::TakeMessage() {
  if (messages_.empty()) return {};
  return TakeReply(messages_, {});
}

std::optional<Message> RecordingMachine::TakeUnansweredQuestion() {
  return std::exchange(unanswered_, std::nullopt);
}

void RecordingMachine::ForgetPapers() {
  written_files_.clear();
  prints_ = 0;
}

Answer RecordingMachine::Show(const Message& message) {
  Answer answer = Answer::kOk;
  if (message.buttons == MessageButtons::kYesNo) {
    if (answers_.empty() && !unanswered_) unanswered_ = message;
    answer = TakeReply(answers_, Answer::kNo);
  }
  const SeenMessage seen = player_.ShowMessage(message, answer);
  trace_.MessageBox(seen.message, seen.answer);
  messages_.push_back(seen.message);
  return seen.answer;
}

std::string RecordingMachine::AskSaveName() {
  return player_.ShowSaveDialog(TakeReply(save_names_, {}));
}

bool RecordingMachine::AskPrinter() {
  return player_.ShowPrinterDialog(TakeReply(printer_replies_, true));
}

std::optional<std::string> RecordingMachine::FirstLine(std::string_view name) const {
  const auto file = program_files_.find(FileKey(name));
  return file == program_files_.end() ? std::nullopt : file->second;
}

void RecordingMachine::Write(const Workbook& workbook, std::string_view path) {
  RequireWritable(path);
  papers_.Write(workbook, path);
  written_files_.emplace_back(path);
}

void RecordingMachine::Print(const Workbook& workbook) {
  ++prints_;
  last_print_ = workbook.page_setup;
}

void RecordingMachine::SaveDocument(const Document& document, std::string_view path) {
  RequireWritable(path);
  papers_.Write(document, path);
  written_files_.emplace_back(path);
  saved_document_ = document;
}

void RecordingMachine::RequireApplication(std::string_view name) const {
  if (missing_applications_.contains(std::string(name))) throw CannotCreateObject();
}

void RecordingMachine::RequireWritable(std::string_view path) const {
  if (path.empty() || unwritable_.contains(std::string(path))) throw PathFileAccess();
}

bool RecordingMachine::Has(std::string_view name) const {
  return program_files_.contains(FileKey(name));
}

}  // namespace ovindra::driver
