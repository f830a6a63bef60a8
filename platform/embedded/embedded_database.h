// The embedded engine: a database file, or one in memory, that runs Transact-SQL. Owns the connection to the
// file. Several programs may have one file open; each statement is one transaction and is on the disk when
// Run returns. A file that can't be used is refused when it is opened, with a text of its own for each
// reason, and nothing is overwritten.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/database/connection.h"

namespace ovindra {

/// How a database file is opened.
struct EmbeddedOptions {
  enum class Access { kExisting, kReadOnly, kCreate };

  Access access = Access::kExisting;
  /// The newest schema that the program knows; a file of a newer one is refused.
  int schema_version = 0;
  /// How long a file that another program is writing is waited for.
  std::chrono::milliseconds busy_wait{5000};
};

/// Used by one thread alone.
class EmbeddedDatabase : public TransactionSession {
 public:
  /// Opens a database file. Refuses a missing file, one that is no database, that is of a newer schema, that
  /// can't be written, that stays locked, that lies on a network drive; and, to create one, a file that is
  /// there. A new file is its owner's alone.
  static std::unique_ptr<EmbeddedDatabase> Open(const std::filesystem::path& path,
                                                const EmbeddedOptions& options = {});

  /// A database that lasts as long as the object.
  static std::unique_ptr<EmbeddedDatabase> OpenInMemory(const std::string& name = "memory");

  /// A copy in memory of the database as it is now, under the same name.
  std::unique_ptr<EmbeddedDatabase> CopyInMemory() const;

  ~EmbeddedDatabase() override;

  Recordset Run(const SqlText& statement) override;

  void RunTogether(const std::function<void()>& work) override;

  /// Copies the database as it is now into a file, whatever other programs do meanwhile. The copy is written
  /// beside its place and moved over it when it is whole; a copy that fails leaves what was there.
  void BackupTo(const std::filesystem::path& path);

  /// What is wrong with the file, one finding a line; empty when it is sound.
  std::vector<std::string> IntegrityReport();

  /// The number of the schema that the file was made with; 0 for a new file.
  int SchemaVersion();
  void SetSchemaVersion(int version);

  /// The SQLite text of a statement, for those who look at how it is translated.
  std::vector<std::string> Translation(const SqlText& statement);

 private:
  struct Connection;
  explicit EmbeddedDatabase(std::unique_ptr<Connection> connection);

  std::unique_ptr<Connection> connection_;
};

/// Runs a script: batches parted by lines that hold the word GO alone. A batch that fails ends the script;
/// what ran before it stays.
void RunScript(Session& session, std::string_view script);

}  // namespace ovindra
