// Runs statements of the dialect on one SQLite connection: translates what is new, finds again what was
// translated, binds the values, reads the rows to their end. One statement is one transaction. The engine
// does not own the connection, which must stand longer.
#pragma once

#include <functional>
#include <span>
#include <string>

#include "base/database/recordset.h"
#include "base/database/sql_text.h"
#include "platform/embedded/catalog/catalog.h"
#include "platform/embedded/parser/syntax_tree.h"
#include "platform/embedded/session/sql_functions.h"
#include "platform/embedded/session/statement_cache.h"

struct sqlite3;

namespace ovindra::embedded {

class Engine {
 public:
  /// `path` names the file in errors, `name` the database in the server's texts.
  Engine(sqlite3* database, std::string path, std::string name);

  /// Runs a statement, or the statements of a batch one after the other; the result is the last one's.
  Recordset Run(const SqlText& statement);

  /// Runs what the work runs as one transaction: all of it, or nothing when it fails.
  void RunTogether(const std::function<void()>& work);

  /// The SQLite text of a statement, for those who look at how it is translated.
  std::vector<std::string> Translation(const SqlText& statement);

 private:
  Recordset RunNew(const SqlText& statement);
  Recordset Retrying(const std::function<Recordset()>& run);
  Recordset RunAndKeep(const syntax::Statement& node, const SqlText& statement);
  Recordset RunStatement(const syntax::Statement& node, const SqlText& statement);
  Recordset RunIf(const syntax::If& node, const SqlText& statement);
  Recordset RunProgram(Program program, const SqlText& statement);
  PreparedStatement Prepare(Program program, const std::string& step);
  Recordset Execute(PreparedStatement& prepared, const SqlText& statement);
  void BindParameters(PreparedStatement& prepared, const SqlText& statement);
  Recordset ReadRows(PreparedStatement& prepared);
  bool SchemaHasChanged();
  void Forget();

  /// What a failure of SQLite means to the one who runs statements. `program` is what was prepared or run,
  /// `statement` what it was run for, as far as there is one.
  RuntimeError Explain(int code, const Program* program, const SqlText* statement);
  RuntimeError ExplainConstraint(int code, const std::string& message, const Program& program,
                                 const SqlText* statement);
  std::string DuplicateValue(const Program& program, const CatalogKey& key, const SqlText& statement);

  sqlite3* database_;
  std::string path_;
  std::string name_;
  Catalog catalog_;
  StatementCache cache_;
  StatementKey key_;
  PendingRefusal refusal_;
  std::string identity_insert_;
  std::vector<std::string> bound_texts_;
  std::int64_t schema_version_ = -1;
};

}  // namespace ovindra::embedded
