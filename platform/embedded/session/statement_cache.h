// The statements that were translated and prepared, by their text with the values cut out: one that comes
// again, with whatever values, is neither lexed nor compiled. Holds the most recently used ones, at most
// kMostStatements.
#pragma once

#include <cstddef>
#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "base/database/sql_text.h"
#include "platform/embedded/sqlite_statement.h"
#include "platform/embedded/translator/translator.h"

namespace ovindra::embedded {

/// A statement ready to run. Without a handle it only tells that statements of this key mean different things
/// with different values, and are kept by their whole text.
struct PreparedStatement {
  Program program;
  std::vector<TypeKind> column_kinds;
  std::unique_ptr<SqliteStatement> handle;
  /// What the last result took, so that the next one finds its room at once.
  std::size_t expected_rows = 0;
  std::size_t expected_text = 0;
};

class StatementCache {
 public:
  static constexpr std::size_t kMostStatements = 400;

  /// The statement of that key, or null.
  PreparedStatement* Find(std::string_view key);
  PreparedStatement& Add(std::string_view key, PreparedStatement statement);
  void Clear();
  std::size_t size() const { return entries_.size(); }

 private:
  struct Entry {
    std::string key;
    PreparedStatement statement;
  };
  std::list<Entry> entries_;
  std::unordered_map<std::string_view, std::list<Entry>::iterator> by_key_;
};

/// Builds keys in one buffer; a key is valid until the next one is built.
class StatementKey {
 public:
  /// The text with its parameters cut out. Of a parameter the key keeps its kind and, since like depends on
  /// it, the shape that it has as a pattern.
  std::string_view WithoutValues(const SqlText& statement);
  /// The whole text.
  std::string_view WithValues(const SqlText& statement);

 private:
  std::string key_;
};

/// How many of the values of a statement are parameters.
std::size_t ParameterCount(const SqlText& statement);

}  // namespace ovindra::embedded
