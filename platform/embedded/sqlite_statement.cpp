#include "platform/embedded/sqlite_statement.h"

namespace ovindra::embedded {

SqliteStatement::SqliteStatement(sqlite3* database, std::string_view text) {
  sqlite3_stmt* handle = nullptr;
  const int result = sqlite3_prepare(database, text.data(), static_cast<int>(text.size()), &handle, nullptr);
  handle_.reset(handle);
  if (result != SQLITE_OK) throw SqliteFailure{sqlite3_extended_errcode(database)};
}

void SqliteStatement::Fail() {
  // The older interface tells the cause only when the statement is reset.
  sqlite3* database = sqlite3_db_handle(handle_.get());
  sqlite3_reset(handle_.get());
  throw SqliteFailure{sqlite3_extended_errcode(database)};
}

}  // namespace ovindra::embedded
