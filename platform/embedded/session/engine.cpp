#include "platform/embedded/session/engine.h"

#include <algorithm>
#include <utility>

#include <sqlite3.h>

#include "base/database/database_error.h"
#include "base/text/blanks.h"
#include "base/text/utf8.h"
#include "platform/embedded/binder/binder.h"
#include "platform/embedded/lexer/lexer.h"
#include "platform/embedded/parser/parser.h"
#include "platform/embedded/refusals.h"
#include "platform/embedded/session/transaction.h"

namespace ovindra::embedded {
namespace {

/// Thrown when another program has changed the schema: what was translated may mean something else now.
struct SchemaChanged {};

/// A longer text is hardly one that comes again.
constexpr std::size_t kLongestKept = 16000;

/// Another program that changes the schema without an end is one that keeps the file busy.
constexpr int kMostAttempts = 8;

/// Frees the rows and the texts of a statement when it has run.
class Running {
 public:
  explicit Running(SqliteStatement& statement) : statement_(statement) {}
  ~Running() { statement_.Reset(); }
  Running(const Running&) = delete;
  Running& operator=(const Running&) = delete;

 private:
  SqliteStatement& statement_;
};

bool IsKeptInCache(const syntax::Statement& node) {
  if (const auto* query = std::get_if<syntax::Query>(&node.node)) return !query->selects.front().into;
  return std::holds_alternative<syntax::Insert>(node.node) ||
         std::holds_alternative<syntax::Update>(node.node) ||
         std::holds_alternative<syntax::Delete>(node.node);
}

std::vector<TypeKind> KindsOf(const std::vector<bound::ResultColumn>& columns) {
  std::vector<TypeKind> kinds;
  for (const bound::ResultColumn& column : columns) {
    // A whole numeric is read as a whole number.
    const bool is_whole = column.type.kind == TypeKind::kNumeric && column.type.scale == 0;
    kinds.push_back(is_whole ? TypeKind::kInteger : column.type.kind);
  }
  return kinds;
}

void AppendField(Recordset& rows, sqlite3_value* field, TypeKind kind) {
  if (sqlite3_value_type(field) == SQLITE_NULL) return rows.AppendNull();
  switch (kind) {
    case TypeKind::kText:
    case TypeKind::kNull: {
      const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(field));
      return rows.AppendText({text, static_cast<std::size_t>(sqlite3_value_bytes(field))});
    }
    case TypeKind::kInteger:
      return rows.AppendInteger(sqlite3_value_int64(field));
    case TypeKind::kMoment:
      return rows.AppendMoment(Moment(std::chrono::seconds(sqlite3_value_int64(field))));
    default:
      return rows.AppendReal(sqlite3_value_double(field));
  }
}

}  // namespace

Engine::Engine(sqlite3* database, std::string path, std::string name)
    : database_(database), path_(std::move(path)), name_(std::move(name)), catalog_(database) {
  RegisterFunctions(database_, refusal_);
}

Recordset Engine::Run(const SqlText& statement) {
  if (statement.refusal()) throw *statement.refusal();
  PreparedStatement* prepared = cache_.Find(key_.WithoutValues(statement));
  if (prepared != nullptr && !prepared->handle) prepared = cache_.Find(key_.WithValues(statement));
  if (prepared == nullptr) return RunNew(statement);
  try {
    return Execute(*prepared, statement);
  } catch (const SchemaChanged&) {
    Forget();
  }
  return RunNew(statement);
}

void Engine::RunTogether(const std::function<void()>& work) {
  try {
    Transaction transaction(database_);
    work();
    transaction.Commit();
  } catch (const SqliteFailure& failure) {
    Forget();
    throw Explain(failure.code, nullptr, nullptr);
  } catch (...) {
    // What was rolled back may have been a change of the schema.
    Forget();
    throw;
  }
}

/// A statement that was not translated yet, or several of a batch.
Recordset Engine::RunNew(const SqlText& statement) {
  const std::vector<Token> tokens = Lex(statement.text());
  const syntax::Batch batch = Parse(statement.text(), tokens, statement.values());
  // Several are run one after the other, as the server runs them; but what holds values is always one.
  if (batch.size() > 1 && !statement.values().empty()) throw IncorrectSyntax(";");
  Recordset result;
  for (const syntax::Statement& node : batch) {
    const bool is_kept = batch.size() == 1 && IsKeptInCache(node) && statement.text().size() <= kLongestKept;
    result = Retrying([&] { return is_kept ? RunAndKeep(node, statement) : RunStatement(node, statement); });
  }
  return result;
}

/// Runs a statement, and again when another program has changed the schema meanwhile. A statement that was
/// refused may be right by the schema that the file has now; either way nothing of it has been stored.
Recordset Engine::Retrying(const std::function<Recordset()>& run) {
  for (int attempt = 1; attempt <= kMostAttempts; ++attempt) {
    try {
      if (schema_version_ < 0) SchemaHasChanged();
      return run();
    } catch (const SchemaChanged&) {
      Forget();
    } catch (const SqliteFailure& failure) {
      if ((failure.code & 0xFF) != SQLITE_SCHEMA) throw Explain(failure.code, nullptr, nullptr);
      Forget();
    } catch (const RuntimeError&) {
      if (!SchemaHasChanged()) throw;
      Forget();
    }
  }
  throw FileIsBusy(path_);
}

/// Translates a statement and keeps it for the next time.
Recordset Engine::RunAndKeep(const syntax::Statement& node, const SqlText& statement) {
  Program program = Translate(Bind(node, catalog_, identity_insert_));
  const bool depends_on_values = program.parameters.size() != ParameterCount(statement);
  const std::string step = program.steps.front();
  PreparedStatement prepared = Prepare(std::move(program), step);
  if (!depends_on_values) {
    return Execute(cache_.Add(key_.WithoutValues(statement), std::move(prepared)), statement);
  }
  if (cache_.Find(key_.WithoutValues(statement)) == nullptr) cache_.Add(key_.WithoutValues(statement), {});
  return Execute(cache_.Add(key_.WithValues(statement), std::move(prepared)), statement);
}

Recordset Engine::RunStatement(const syntax::Statement& node, const SqlText& statement) {
  if (const auto* branch = std::get_if<syntax::If>(&node.node)) return RunIf(*branch, statement);
  bound::Statement bound = Bind(node, catalog_, identity_insert_);
  if (const auto* identity = std::get_if<bound::SetIdentityInsert>(&bound.node)) {
    identity_insert_ = identity->is_on ? identity->table : std::string();
    cache_.Clear();
    return Recordset::OfCount(0);
  }
  return RunProgram(Translate(bound), statement);
}

Recordset Engine::RunIf(const syntax::If& node, const SqlText& statement) {
  Transaction transaction(database_);
  const bool has_rows = !RunProgram(Translate(Bind(*node.query, catalog_)), statement).Eof();
  const syntax::StatementPtr& branch = has_rows != node.is_not ? node.then : node.otherwise;
  Recordset result = branch ? RunStatement(*branch, statement) : Recordset::OfCount(0);
  transaction.Commit();
  return result;
}

Recordset Engine::RunProgram(Program program, const SqlText& statement) {
  const bool changes_schema = program.changes_schema;
  const std::vector<std::string> steps = std::move(program.steps);
  Recordset result;
  PreparedStatement prepared;
  prepared.program = std::move(program);
  const auto run = [&] {
    for (const std::string& step : steps) {
      prepared = Prepare(std::move(prepared.program), step);
      result = Execute(prepared, statement);
    }
  };
  if (steps.size() > 1) {
    Transaction transaction(database_);
    run();
    prepared.handle.reset();
    transaction.Commit();
  } else {
    run();
  }
  if (changes_schema) Forget();
  return result;
}

PreparedStatement Engine::Prepare(Program program, const std::string& step) {
  PreparedStatement prepared;
  prepared.column_kinds = KindsOf(program.columns);
  try {
    prepared.handle = std::make_unique<SqliteStatement>(database_, step);
  } catch (const SqliteFailure& failure) {
    if ((failure.code & 0xFF) == SQLITE_SCHEMA) throw SchemaChanged{};
    throw Explain(failure.code, &program, nullptr);
  }
  prepared.program = std::move(program);
  return prepared;
}

Recordset Engine::Execute(PreparedStatement& prepared, const SqlText& statement) {
  const Running running(*prepared.handle);
  refusal_.reset();
  BindParameters(prepared, statement);
  try {
    if (!prepared.program.columns.empty()) return ReadRows(prepared);
    while (prepared.handle->Step()) continue;
    return Recordset::OfCount(prepared.program.verb.empty() ? 0 : sqlite3_changes64(database_));
  } catch (const SqliteFailure& failure) {
    if ((failure.code & 0xFF) == SQLITE_SCHEMA) throw SchemaChanged{};
    throw Explain(failure.code, &prepared.program, &statement);
  }
}

void Engine::BindParameters(PreparedStatement& prepared, const SqlText& statement) {
  const std::vector<bound::ParameterRule>& rules = prepared.program.parameters;
  const std::string_view text = statement.text();
  bound_texts_.clear();
  bound_texts_.reserve(rules.size());
  for (std::size_t i = 0; i < rules.size(); ++i) {
    const bound::ParameterRule& rule = rules[i];
    const ValuePlace& place = statement.values()[rule.value];
    const std::string_view value = text.substr(place.offset, place.length);
    const int number = static_cast<int>(i) + 1;
    if (place.is_quoted && rule.to.IsText() && rule.purpose != Purpose::kComputed) {
      // What is compared or stored as text needs no copy.
      prepared.handle->Bind(
          number, rule.purpose == Purpose::kStored ? FitText(value, rule.to.size) : TrimRight(value));
      continue;
    }
    const Value literal = ConvertText(value, rule.from, Purpose::kComputed);
    const Value converted = Convert(literal, rule.from, rule.to, rule.purpose);
    if (const auto* whole = std::get_if<std::int64_t>(&converted)) {
      prepared.handle->Bind(number, *whole);
    } else if (const auto* real = std::get_if<double>(&converted)) {
      prepared.handle->Bind(number, *real);
    } else {
      bound_texts_.push_back(std::get<std::string>(converted));
      prepared.handle->Bind(number, std::string_view(bound_texts_.back()));
    }
  }
}

Recordset Engine::ReadRows(PreparedStatement& prepared) {
  Recordset rows;
  for (const bound::ResultColumn& column : prepared.program.columns) rows.AddColumn(column.name);
  rows.Reserve(prepared.expected_rows, prepared.expected_text);
  const int count = static_cast<int>(prepared.column_kinds.size());
  while (prepared.handle->Step()) {
    for (int i = 0; i < count; ++i) {
      AppendField(rows, prepared.handle->Field(i), prepared.column_kinds[static_cast<std::size_t>(i)]);
    }
  }
  // A result that is one of its kind shall not make each one after it take as much.
  constexpr std::size_t kMostRows = 8000;
  constexpr std::size_t kMostText = 1 << 20;
  prepared.expected_rows = std::min(rows.row_count(), kMostRows);
  prepared.expected_text = std::min(rows.text_bytes(), kMostText);
  return rows;
}

/// Whether the file's schema is another one than when the catalog was begun; this program's own changes begin
/// it anew.
bool Engine::SchemaHasChanged() {
  std::int64_t version = 0;
  try {
    SqliteStatement statement(database_, "PRAGMA schema_version");
    if (statement.Step()) version = statement.Integer(0);
  } catch (const SqliteFailure&) {
    // A file that can't be read now says so to the statement itself.
    return false;
  }
  const std::int64_t known = std::exchange(schema_version_, version);
  return known >= 0 && known != version;
}

void Engine::Forget() {
  cache_.Clear();
  catalog_.Forget();
  schema_version_ = -1;
}

std::vector<std::string> Engine::Translation(const SqlText& statement) {
  const std::vector<Token> tokens = Lex(statement.text());
  const syntax::Batch batch = Parse(statement.text(), tokens, statement.values());
  std::vector<std::string> steps;
  for (const syntax::Statement& node : batch) {
    Program program = Translate(Bind(node, catalog_, identity_insert_));
    std::move(program.steps.begin(), program.steps.end(), std::back_inserter(steps));
  }
  return steps;
}

}  // namespace ovindra::embedded
