// The statements that an action of the program has sent, once more by hand: through the C API of SQLite, on
// the same file, each row fetched to its last column.
#pragma once

#include <regex>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include "base/controls/dates.h"
#include "bench/large_database.h"

namespace ovindra::bench {

/// A statement as one would write it for SQLite: dates as the seconds that they are stored as, numbers by a
/// cast and apart from the word behind them.
inline std::string WrittenForSqlite(const std::string& statement) {
  static const std::regex kDate("'(\\d\\d)/(\\d\\d)/(\\d\\d\\d\\d) ?'");
  static const std::regex kNumeric("convert\\(numeric,([A-Za-z_.]+)\\)");
  static const std::regex kNumberBeforeWord("=(\\d+)and");
  std::string text;
  auto rest = statement.cbegin();
  for (std::smatch date; std::regex_search(rest, statement.cend(), date, kDate); rest = date.suffix().first) {
    const auto seconds = ReadMoment(date.str(1) + "/" + date.str(2) + "/" + date.str(3)).value();
    text.append(date.prefix().first, date.prefix().second);
    text += " " + std::to_string(seconds.time_since_epoch().count()) + " ";
  }
  text.append(rest, statement.cend());
  text = std::regex_replace(text, kNumberBeforeWord, "=$1 and");
  return std::regex_replace(text, kNumeric, "cast($1 as integer)");
}

/// The statements that an action has sent, run by hand to their ends.
class SameByHand {
 public:
  explicit SameByHand(const std::vector<std::string>& statements, const char* file = "ZQR.db")
      : by_hand_(file) {
    for (const std::string& statement : statements)
      statements_.push_back(by_hand_.Prepare(WrittenForSqlite(statement)));
  }

  void Run() {
    for (sqlite3_stmt* statement : statements_) {
      while (sqlite3_step(statement) == SQLITE_ROW) {
        for (int column = 0; column < sqlite3_column_count(statement); ++column)
          benchmark::DoNotOptimize(sqlite3_column_text(statement, column));
      }
      sqlite3_reset(statement);
    }
  }

 private:
  ByHand by_hand_;
  std::vector<sqlite3_stmt*> statements_;
};

}  // namespace ovindra::bench
