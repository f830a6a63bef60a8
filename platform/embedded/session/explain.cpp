#include <algorithm>
#include <array>
#include <utility>

#include <sqlite3.h>

#include "base/database/database_error.h"
#include "base/text/utf8.h"
#include "platform/embedded/refusals.h"
#include "platform/embedded/session/engine.h"

namespace ovindra::embedded {
namespace {

/// The columns of "UNIQUE constraint failed: Table.A, Table.B", or of the same with NOT NULL.
std::vector<std::string> FailedColumns(std::string_view message) {
  std::vector<std::string> columns;
  std::string_view rest = message.substr(std::min(message.find(": ") + 2, message.size()));
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find(", "), rest.size());
    const std::string_view column = rest.substr(0, end);
    columns.emplace_back(column.substr(column.find('.') + 1));
    rest.remove_prefix(std::min(end + 2, rest.size()));
  }
  return columns;
}

bool IsSameKey(const CatalogKey& key, const std::vector<std::string>& columns) {
  return std::equal(key.columns.begin(), key.columns.end(), columns.begin(), columns.end(),
                    [](const std::string& a, const std::string& b) { return SameWithoutCase(a, b); });
}

std::string Quoted(const std::string& name) {
  std::string quoted = "\"";
  for (char c : name) quoted += c == '"' ? "\"\"" : std::string(1, c);
  return quoted + "\"";
}

}  // namespace

RuntimeError Engine::Explain(int code, const Program* program, const SqlText* statement) {
  if (refusal_) return *std::exchange(refusal_, std::nullopt);
  const std::string message = sqlite3_errmsg(database_);
  switch (code & 0xFF) {
    case SQLITE_CONSTRAINT:
      if (program == nullptr) break;
      return ExplainConstraint(code, message, *program, statement);
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return FileIsBusy(path_);
    case SQLITE_READONLY:
      return FileIsReadOnly(path_);
    case SQLITE_FULL:
      return DiskIsFull(path_);
    case SQLITE_CORRUPT:
      return FileIsDamaged(path_, message);
    case SQLITE_NOTADB:
      return FileIsNoDatabase(path_);
    case SQLITE_CANTOPEN:
    case SQLITE_IOERR:
      return FileCannotBeUsed(path_, message);
    default:
      break;
  }
  if (message == "integer overflow") return ArithmeticOverflow(kIntType);
  if (message.starts_with("parser stack overflow") || message.starts_with("Expression tree is too large") ||
      message.starts_with("too many")) {
    return NestedTooDeeply();
  }
  return ServerRefusal(Refusal::kOther, message);
}

RuntimeError Engine::ExplainConstraint(int code, const std::string& message, const Program& program,
                                       const SqlText* statement) {
  const std::string& table = program.changed_table;
  const std::vector<std::string> columns = FailedColumns(message);
  if (code == SQLITE_CONSTRAINT_NOTNULL && !columns.empty()) {
    return NullNotAllowed(columns.front(), name_ + ".dbo." + table, program.verb);
  }
  if (program.verb.empty()) return DuplicateKeyOnCreate(program.created_index, table);
  const CatalogTable* entry = catalog_.Find(table);
  if (entry == nullptr) return ServerRefusal(Refusal::kConstraint, message);
  for (const CatalogKey& key : entry->keys) {
    // A partial index is named by itself: "UNIQUE constraint failed: index 'NAME'".
    if (!IsSameKey(key, columns) && message.find("'" + key.name + "'") == std::string::npos) continue;
    const std::string value = statement == nullptr ? "" : DuplicateValue(program, key, *statement);
    if (key.kind == KeyKind::kIndex) return DuplicateIndexKey(key.name, table, value);
    return DuplicateKey(key.kind == KeyKind::kPrimary ? "PRIMARY KEY" : "UNIQUE KEY", key.name, table, value);
  }
  return ServerRefusal(Refusal::kConstraint, message);
}

/// The value that would have stood twice, as the server shows it: asked from the rows that were to be
/// inserted.
std::string Engine::DuplicateValue(const Program& program, const CatalogKey& key, const SqlText& statement) {
  if (program.inserted_rows.empty()) return {};
  std::string values;
  std::string alike;
  std::string numbers;
  for (const std::string& column : key.columns) {
    const auto filled = std::find_if(program.filled_columns.begin(), program.filled_columns.end(),
                                     [&](const std::string& each) { return SameWithoutCase(each, column); });
    if (filled == program.filled_columns.end()) return {};
    const std::string name = "column" + std::to_string(filled - program.filled_columns.begin() + 1);
    values += (values.empty() ? "" : ",") + name;
    alike += (alike.empty() ? "" : " AND ") + ("t." + Quoted(column) + "=s." + name);
    numbers += (numbers.empty() ? "" : ",") + name + " COLLATE NOCASE";
  }
  // The rows bear the names that SQLite gives to those of VALUES.
  std::string rows = "rows(";
  for (std::size_t i = 1; i <= program.filled_columns.size(); ++i) {
    rows += (i == 1 ? "column" : ",column") + std::to_string(i);
  }
  const std::string with =
      "WITH " + rows + ") AS (" + program.inserted_rows + ") SELECT " + values + " FROM rows s";
  const std::string stored = with + " WHERE EXISTS(SELECT 1 FROM " + Quoted(program.changed_table) +
                             " t WHERE " + alike + ") LIMIT 1";
  const std::string twice = with + " GROUP BY " + numbers + " HAVING count(*)>1 LIMIT 1";
  for (const std::string& text : {stored, twice}) {
    PreparedStatement asked;
    asked.program.parameters = program.parameters;
    asked.handle = std::make_unique<SqliteStatement>(database_, text);
    BindParameters(asked, statement);
    if (!asked.handle->Step()) continue;
    std::string value;
    for (int i = 0; i < asked.handle->ColumnCount(); ++i) {
      if (i > 0) value += ", ";
      value += asked.handle->IsNull(i) ? std::string_view("<NULL>") : asked.handle->Text(i);
    }
    return value;
  }
  return {};
}

}  // namespace ovindra::embedded
