#include "tests/unit/app/watched_databases.h"

#include <algorithm>

#include "base/database/database_error.h"
#include "base/text/utf8.h"
#include "core/schema/schema.h"
#include "platform/embedded/embedded_database.h"
#include "platform/embedded/lexer/lexer.h"
#include "tools/setup/demo/demo.h"

namespace ovindra::driver {
namespace {

/// The statement with each literal in place of which a value may stand as `?`.
std::string ShapeOf(const std::string& statement, const std::string& typed) {
  std::string shape;
  for (const embedded::Token& token : embedded::Lex(statement)) {
    const bool is_typed = !typed.empty() && SameWithoutCase(token.text, typed);
    const bool is_literal = is_typed || token.kind == embedded::TokenKind::kText ||
                            token.kind == embedded::TokenKind::kInteger ||
                            token.kind == embedded::TokenKind::kDecimal;
    shape += is_literal ? std::string("?") : LowerCaseLatin(token.text);
    shape += ' ';
  }
  return shape;
}

class WatchedSession : public Session {
 public:
  WatchedSession(std::unique_ptr<Session> database, Watch& watch)
      : database_(std::move(database)), watch_(watch) {}

  Recordset Run(const SqlText& statement) override {
    const std::string& text = statement.text();
    const std::string shape = ShapeOf(text, watch_.typed);
    watch_.shapes.insert(shape);
    ++watch_.statements;
    if (!watch_.typed.empty() && text.find(watch_.typed) != std::string::npos) ++watch_.with_typed;
    try {
      return database_->Run(statement);
    } catch (const RuntimeError& error) {
      if (error.number() == static_cast<long>(Refusal::kSyntax)) watch_.refused.insert(shape);
      throw;
    }
  }

 private:
  std::unique_ptr<Session> database_;
  Watch& watch_;
};

struct SmallProgramme {
  SmallProgramme() {
    RunScript(*screening, ScreeningSchema());
    RunScript(*hospital, HospitalSchema());
    FillDemo(*screening, *hospital, DemoScale::ForChildren(100));
    // So that there is a school to be registered.
    screening->Run(WholeStatement("delete from Screened_School"));
  }
  std::unique_ptr<EmbeddedDatabase> screening = EmbeddedDatabase::OpenInMemory("ZQR");
  std::unique_ptr<EmbeddedDatabase> hospital = EmbeddedDatabase::OpenInMemory("ward");
};

}  // namespace

DatabaseMaker WatchedDatabases(Watch& watch) {
  return [&watch](DatabaseName name, DatabaseContent) {
    static const SmallProgramme programme;
    const auto& database = name == DatabaseName::kScreening ? programme.screening : programme.hospital;
    return std::make_unique<WatchedSession>(database->CopyInMemory(), watch);
  };
}

}  // namespace ovindra::driver
