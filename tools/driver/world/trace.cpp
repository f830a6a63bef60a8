#include "tools/driver/world/trace.h"

#include "tools/driver/language/token.h"

namespace ovindra::driver {
namespace {

std::string_view AnswerWord(Answer answer) {
  switch (answer) {
    case Answer::kYes:
      return "yes";
    case Answer::kNo:
      return "no";
    case Answer::kOk:
      break;
  }
  return "ok";
}

}  // namespace

std::string_view IconWord(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kCritical:
      return "critical";
    case MessageIcon::kQuestion:
      return "question";
    case MessageIcon::kExclamation:
      return "exclamation";
    case MessageIcon::kInformation:
      return "information";
    case MessageIcon::kPlain:
      break;
  }
  return "plain";
}

std::string Describe(const Message& message) {
  return Quote(message.text) + " title " + Quote(message.title) + ' ' + std::string(IconWord(message.icon));
}

void Trace::Action(std::string_view line) {
  if (out_ != nullptr) *out_ << "> " << line << '\n';
}

void Trace::Statement(std::string_view database, std::string_view text, std::string_view outcome) {
  if (out_ != nullptr) *out_ << "  " << database << ": " << text << " -> " << outcome << '\n';
}

void Trace::MessageBox(const Message& message, Answer answer) {
  if (out_ != nullptr) *out_ << "  message " << Describe(message) << " -> " << AnswerWord(answer) << '\n';
}

void Trace::FocusMoved(const Form& form) {
  if (out_ == nullptr) return;
  *out_ << "  focus " << form.name() << ' '
        << (form.focused() == nullptr ? "none" : form.focused()->full_name()) << '\n';
}

}  // namespace ovindra::driver
