// What the database holds: tables and views with the declared types of their columns, and the keys of the
// tables. Read from SQLite's own schema when a name is first asked for and kept until Forget(), which the
// session calls when this or another program has changed the schema.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/embedded/sql_type.h"

struct sqlite3;

namespace ovindra::embedded {

struct CatalogColumn {
  std::string name;
  SqlType type;
  bool allows_null = true;
  bool is_identity = false;
  bool is_computed = false;
  /// False for a column of a view whose text may have trailing blanks.
  bool is_trimmed = true;
};

enum class KeyKind { kPrimary, kUnique, kIndex };

/// What keeps two rows of a table apart.
struct CatalogKey {
  KeyKind kind;
  std::string name;
  std::vector<std::string> columns;
};

struct CatalogTable {
  std::string name;
  bool is_view = false;
  std::vector<CatalogColumn> columns;
  std::vector<CatalogKey> keys;

  /// The column of that name, without regard to case; null when there is none.
  const CatalogColumn* Find(std::string_view column) const;
  const CatalogColumn* Identity() const;
};

class Catalog {
 public:
  explicit Catalog(sqlite3* database) : database_(database) {}

  /// The table or view of that name, without regard to case; null when there is none.
  const CatalogTable* Find(std::string_view name);

  /// Whether SQLite keeps the name for itself.
  static bool IsReserved(std::string_view name);

  /// The name of the table that an index of that name stands on; empty when there is no such index.
  std::string TableOfIndex(std::string_view index);

  void Forget() { tables_.clear(); }

 private:
  std::unique_ptr<CatalogTable> Read(std::string_view name);

  sqlite3* database_;
  std::map<std::string, std::unique_ptr<CatalogTable>, std::less<>> tables_;
};

/// The comment in which a view's definition keeps the types of its columns, since SQLite keeps none for a
/// column that is computed.
std::string ViewTypesComment(const std::vector<CatalogColumn>& columns);

}  // namespace ovindra::embedded
