// A transaction that is undone unless it is committed. Inside another one it is a part of that one, which can
// be undone by itself.
#pragma once

#include <sqlite3.h>

#include "platform/embedded/sqlite_statement.h"

namespace ovindra::embedded {

class Transaction {
 public:
  explicit Transaction(sqlite3* database)
      : database_(database), is_part_(sqlite3_get_autocommit(database) == 0) {
    Execute(is_part_ ? "SAVEPOINT part" : "BEGIN IMMEDIATE");
  }
  ~Transaction() {
    if (is_done_) return;
    // SQLite may have rolled back by itself, on a full disk for example.
    if (is_part_) {
      sqlite3_exec(database_, "ROLLBACK TO part; RELEASE part", nullptr, nullptr, nullptr);
    } else {
      sqlite3_exec(database_, "ROLLBACK", nullptr, nullptr, nullptr);
    }
  }
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;

  void Commit() {
    Execute(is_part_ ? "RELEASE part" : "COMMIT");
    is_done_ = true;
  }

 private:
  void Execute(const char* text) {
    if (sqlite3_exec(database_, text, nullptr, nullptr, nullptr) != SQLITE_OK) {
      throw SqliteFailure{sqlite3_extended_errcode(database_)};
    }
  }

  sqlite3* database_;
  bool is_part_;
  bool is_done_ = false;
};

}  // namespace ovindra::embedded
