// What the tests of the embedded engine share: a database in memory, its rows and refusals as texts.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/database/recordset.h"
#include "base/runtime_error.h"
#include "platform/embedded/embedded_database.h"

namespace ovindra {

/// Rows as they are compared: fields as text, NULL as NULL, dates as yyyy-mm-dd.
using Rows = std::vector<std::vector<std::string>>;

inline Rows RowsOf(Recordset records) {
  Rows rows;
  for (; !records.Eof(); records.MoveNext()) {
    std::vector<std::string>& row = rows.emplace_back();
    for (std::size_t i = 0; i < records.columns().size(); ++i) {
      const Field field = records.At(i);
      row.push_back(field.IsNull() ? "NULL" : YearFirstText(field));
    }
  }
  return rows;
}

/// The refusal of a statement as "NUMBER TEXT"; what it ran when it is not refused.
template <typename Run>
std::string RefusalOf(Run run) {
  try {
    run();
  } catch (const RuntimeError& error) {
    return std::to_string(error.number()) + " " + error.text();
  }
  return "not refused";
}

class TestDatabase {
 public:
  TestDatabase() = default;
  explicit TestDatabase(std::string_view script) { RunScript(*database_, script); }

  EmbeddedDatabase& operator*() { return *database_; }
  EmbeddedDatabase* operator->() { return database_.get(); }

  Recordset Run(std::string_view statement) { return database_->Run(WholeStatement(statement)); }
  Rows Select(const std::string& statement) { return RowsOf(Run(statement)); }
  /// The first field of the first row.
  std::string Value(const std::string& statement) { return Select(statement).at(0).at(0); }
  std::string Refusal(const std::string& statement) {
    return RefusalOf([&] { Run(statement); });
  }

 private:
  std::unique_ptr<EmbeddedDatabase> database_ = EmbeddedDatabase::OpenInMemory("ZQR");
};

}  // namespace ovindra
