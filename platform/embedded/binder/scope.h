// The names that an expression may use: the sources of its from list and, in a subquery, those around it. A
// scope looks into the one around it, which must stand as long.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/embedded/catalog/catalog.h"
#include "platform/embedded/parser/syntax_tree.h"
#include "platform/embedded/sql_type.h"

namespace ovindra::embedded {

/// The source that stands for a table's own columns in its definition.
inline constexpr std::size_t kOwnTable = 0;

/// A column that can be named, and what the translator calls it.
struct ScopeColumn {
  std::string name;
  std::string output;
  SqlType type;
  bool allows_null;
  bool is_trimmed;
};

struct ScopeTable {
  std::string exposed_name;
  std::size_t source;
  std::vector<ScopeColumn> columns;
};

class Scope {
 public:
  explicit Scope(const Scope* outer) : outer_(outer) {}

  /// Enters a source; refuses a second one of the same exposed name.
  void Add(ScopeTable table);
  void AddTable(const CatalogTable& table, std::string exposed_name, std::size_t source);

  /// A column of a source.
  struct Found {
    const ScopeTable* table;
    const ScopeColumn* column;
  };

  /// The column that a name means: of the nearest scope that has it. Refuses one that none has, or two have.
  Found Resolve(const syntax::ColumnName& name) const;

  /// The source of that exposed name in this scope itself; null when there is none.
  const ScopeTable* TableNamed(std::string_view exposed_name) const;

  const std::vector<ScopeTable>& tables() const { return tables_; }
  const Scope* outer() const { return outer_; }

  /// From the mark on, the columns of the sources entered may be NULL, as behind a left join.
  std::size_t Mark() const { return tables_.size(); }
  void AllowNullsFrom(std::size_t mark);

 private:
  const Scope* outer_;
  std::vector<ScopeTable> tables_;
};

}  // namespace ovindra::embedded
