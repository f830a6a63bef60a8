// A statement of SQLite, prepared once and run many times. Owns the handle of the statement, not that of the
// database. Prepared by SQLite's older interface on purpose: the newer one compiles a statement anew without
// a word when another program has changed the schema, but what this statement was translated from may then
// mean something else; the older one reports it, before anything has run.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include <sqlite3.h>

namespace ovindra::embedded {

/// Thrown when SQLite reports an error; the caller, who knows what was asked for, makes it a refusal. `code`
/// is the extended code.
struct SqliteFailure {
  int code;
};

class SqliteStatement {
 public:
  SqliteStatement(sqlite3* database, std::string_view text);

  /// Moves to the next row; false when there is none left.
  bool Step() {
    const int result = sqlite3_step(handle_.get());
    if (result == SQLITE_ROW) return true;
    if (result != SQLITE_DONE) Fail();
    return false;
  }

  /// Makes the statement ready to run again and frees what it holds; the parameters keep their values.
  void Reset() { sqlite3_reset(handle_.get()); }

  /// Parameters are counted from 1. A text must stand until the statement is reset.
  void Bind(int parameter, std::int64_t value) { sqlite3_bind_int64(handle_.get(), parameter, value); }
  void Bind(int parameter, double value) { sqlite3_bind_double(handle_.get(), parameter, value); }
  void Bind(int parameter, std::string_view value) {
    sqlite3_bind_text64(handle_.get(), parameter, value.data(), value.size(), SQLITE_STATIC, SQLITE_UTF8);
  }
  void BindNull(int parameter) { sqlite3_bind_null(handle_.get(), parameter); }

  int ColumnCount() const { return sqlite3_column_count(handle_.get()); }
  bool IsNull(int column) const { return sqlite3_column_type(handle_.get(), column) == SQLITE_NULL; }
  std::int64_t Integer(int column) const { return sqlite3_column_int64(handle_.get(), column); }
  double Real(int column) const { return sqlite3_column_double(handle_.get(), column); }
  std::string_view Text(int column) const {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(handle_.get(), column));
    if (text == nullptr) return {};
    return {text, static_cast<std::size_t>(sqlite3_column_bytes(handle_.get(), column))};
  }

  /// The field of a column, for a loop that reads all fields of many rows: it costs one call of SQLite where
  /// the readers above cost two or three. Only for a connection without mutexes, and until the next step.
  sqlite3_value* Field(int column) const { return sqlite3_column_value(handle_.get(), column); }

 private:
  [[noreturn]] void Fail();

  struct Finalize {
    void operator()(sqlite3_stmt* handle) const { sqlite3_finalize(handle); }
  };
  std::unique_ptr<sqlite3_stmt, Finalize> handle_;
};

}  // namespace ovindra::embedded
