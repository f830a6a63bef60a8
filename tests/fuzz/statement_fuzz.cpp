// Feeds any bytes to the stages of the embedded engine as the text of a statement, against a database of
// fixed tables. A text is either refused or translated, and what is translated must be a statement that
// SQLite understands.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include <sqlite3.h>

#include "base/runtime_error.h"
#include "platform/embedded/binder/binder.h"
#include "platform/embedded/catalog/catalog.h"
#include "platform/embedded/lexer/lexer.h"
#include "platform/embedded/parser/parser.h"
#include "platform/embedded/session/engine.h"
#include "platform/embedded/translator/translator.h"
#include "tests/fuzz/tables.h"

namespace {

using namespace ovindra;
using namespace ovindra::embedded;

struct FixedDatabase {
  FixedDatabase() {
    sqlite3_open(":memory:", &database);
    engine = new Engine(database, "", "fuzz");
    engine->Run(WholeStatement(fuzz::kTables));
    catalog = new Catalog(database);
  }
  sqlite3* database = nullptr;
  Engine* engine = nullptr;
  Catalog* catalog = nullptr;
};

/// Whether SQLite only says that the statement is too much for it, which the session tells as a refusal.
bool IsBeyondLimits(const std::string& message) {
  return message.find("stack overflow") != std::string::npos ||
         message.find("too large") != std::string::npos || message.find("too many") != std::string::npos;
}

/// SQLite's own opinion on the first step; those after it stand on what the first would make.
void RequireUnderstood(sqlite3* database, const Program& program, const std::string& text) {
  if (program.steps.empty()) return;
  sqlite3_stmt* handle = nullptr;
  const int result = sqlite3_prepare_v2(database, program.steps.front().c_str(), -1, &handle, nullptr);
  sqlite3_finalize(handle);
  if (result == SQLITE_OK || IsBeyondLimits(sqlite3_errmsg(database))) return;
  std::fprintf(stderr, "%s\n  became\n%s\n  %s\n", text.c_str(), program.steps.front().c_str(),
               sqlite3_errmsg(database));
  std::abort();
}

/// The literals of a statement as if they had been joined into it as values.
std::vector<ValuePlace> AllLiterals(const std::vector<Token>& tokens) {
  std::vector<ValuePlace> places;
  for (const Token& token : tokens) {
    const bool is_text = token.kind == TokenKind::kText;
    if (is_text || token.kind == TokenKind::kInteger)
      places.push_back({token.offset, token.text.size(), is_text});
  }
  return places;
}

void TryStatement(FixedDatabase& fixed, const std::string& text, const std::vector<Token>& tokens,
                  const std::vector<ValuePlace>& values) {
  try {
    for (const syntax::Statement& statement : Parse(text, tokens, values)) {
      RequireUnderstood(fixed.database, Translate(Bind(statement, *fixed.catalog, "User_Master")), text);
    }
  } catch (const RuntimeError&) {
    // Refused, as most texts are.
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static FixedDatabase fixed;
  const std::string text(reinterpret_cast<const char*>(data), size);
  std::vector<Token> tokens;
  try {
    tokens = Lex(text);
  } catch (const RuntimeError&) {
    return 0;
  }
  TryStatement(fixed, text, tokens, {});
  TryStatement(fixed, text, tokens, AllLiterals(tokens));
  return 0;
}
