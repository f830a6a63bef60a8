#include "base/database/sql_text.h"
#include "base/text/blanks.h"
#include "base/text/utf8.h"
#include "platform/embedded/embedded_database.h"

namespace ovindra {
namespace {

/// Follows quotes and comments through the lines of a script, since a GO inside them is text.
class QuoteReader {
 public:
  void Read(std::string_view line) {
    for (std::size_t at = 0; at < line.size(); ++at) {
      const std::string_view two = line.substr(at, 2);
      if (closing_ != '\0') {
        if (line[at] == closing_) closing_ = '\0';
      } else if (comments_ > 0 || two == "/*") {
        if (two != "/*" && two != "*/") continue;
        comments_ += two == "/*" ? 1 : -1;
        ++at;
      } else if (two == "--") {
        return;
      } else if (line[at] == '\'' || line[at] == '"') {
        closing_ = line[at];
      } else if (line[at] == '[') {
        closing_ = ']';
      }
    }
  }
  bool IsInside() const { return closing_ != '\0' || comments_ > 0; }

 private:
  char closing_ = '\0';
  int comments_ = 0;
};

bool IsGo(std::string_view line) {
  while (line.ends_with('\r') || line.ends_with('\t') || line.ends_with(' ')) line.remove_suffix(1);
  while (line.starts_with('\t') || line.starts_with(' ')) line.remove_prefix(1);
  return SameWithoutCase(line, "go");
}

void RunBatch(Session& session, std::string_view batch) {
  if (batch.find_first_not_of(" \t\r\n;") != std::string_view::npos) session.Run(WholeStatement(batch));
}

}  // namespace

void RunScript(Session& session, std::string_view script) {
  QuoteReader quotes;
  std::size_t batch_start = 0;
  for (std::size_t at = 0; at < script.size();) {
    const std::size_t end = std::min(script.find('\n', at), script.size());
    const std::string_view line = script.substr(at, end - at);
    const std::size_t next = std::min(end + 1, script.size());
    if (!quotes.IsInside() && IsGo(line)) {
      RunBatch(session, script.substr(batch_start, at - batch_start));
      batch_start = next;
    } else {
      quotes.Read(line);
    }
    at = next;
  }
  RunBatch(session, script.substr(batch_start));
}

}  // namespace ovindra
