#include "tools/setup/console.h"

#include <termios.h>
#include <unistd.h>

namespace ovindra {
namespace {

/// Keeps the terminal from showing what is typed, as long as it stands.
class EchoOff {
 public:
  EchoOff() {
    was_read_ = tcgetattr(STDIN_FILENO, &before_) == 0;
    if (!was_read_) return;
    termios silent = before_;
    silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    tcsetattr(STDIN_FILENO, TCSAFLUSH, &silent);
  }
  ~EchoOff() {
    if (was_read_) tcsetattr(STDIN_FILENO, TCSAFLUSH, &before_);
  }
  EchoOff(const EchoOff&) = delete;
  EchoOff& operator=(const EchoOff&) = delete;

 private:
  termios before_{};
  bool was_read_ = false;
};

}  // namespace

std::string Ask(Console& console, std::string_view question) {
  if (console.is_terminal) console.out << question << std::flush;
  std::string answer;
  std::getline(console.in, answer);
  return answer;
}

std::string AskSecretly(Console& console, std::string_view question) {
  if (!console.is_terminal) return Ask(console, question);
  std::string answer;
  {
    const EchoOff echo_off;
    answer = Ask(console, question);
  }
  // The line end was not shown either.
  console.out << '\n';
  return answer;
}

bool InputIsTerminal() {
  return isatty(STDIN_FILENO) == 1;
}

}  // namespace ovindra
