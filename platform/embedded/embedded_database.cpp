#include "platform/embedded/embedded_database.h"

#include <system_error>
#include <thread>
#include <utility>

#include <SQLiteCpp/Backup.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <sqlite3.h>
#include <unistd.h>

#include "base/database/database_error.h"
#include "platform/embedded/database_file.h"
#include "platform/embedded/refusals.h"
#include "platform/embedded/session/engine.h"

namespace ovindra {

using namespace embedded;

/// The open file and the engine that runs on it.
struct EmbeddedDatabase::Connection {
  Connection(std::filesystem::path file_path, std::string database_name, int flags,
             std::chrono::milliseconds wait)
      : path(std::move(file_path)),
        name(std::move(database_name)),
        busy_wait(wait),
        // One thread has it, so that SQLite need not lock at every column that is read.
        database(path.empty() ? std::string(":memory:") : path.string(), flags | SQLite::OPEN_NOMUTEX),
        engine(database.getHandle(), path.string(), name) {
    sqlite3_extended_result_codes(database.getHandle(), 1);
    sqlite3_busy_handler(database.getHandle(), WaitForOthers, this);
  }

  /// Whether a file that another program is writing is asked for once more. SQLite's own handler soon asks
  /// ten times a second only, and where many desks save at once misses nearly every moment in which the file
  /// is free.
  static int WaitForOthers(void* waiting, int times_asked) {
    constexpr int kPauseMilliseconds = 5;
    auto& connection = *static_cast<Connection*>(waiting);
    const auto now = std::chrono::steady_clock::now();
    if (times_asked == 0) connection.busy_since = now;
    if (now - connection.busy_since >= connection.busy_wait) return 0;
    sqlite3_sleep(kPauseMilliseconds);
    return 1;
  }

  std::filesystem::path path;
  std::string name;
  std::chrono::milliseconds busy_wait;
  std::chrono::steady_clock::time_point busy_since;
  SQLite::Database database;
  Engine engine;
};

namespace {

/// SQLite's failure while a file is opened, as the refusal of that file.
RuntimeError RefusalOf(const SQLite::Exception& failure, const std::filesystem::path& path) {
  switch (failure.getErrorCode()) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return FileIsBusy(path.string());
    case SQLITE_NOTADB:
      return FileIsNoDatabase(path.string());
    case SQLITE_CORRUPT:
      return FileIsDamaged(path.string(), failure.getErrorStr());
    case SQLITE_READONLY:
      return FileIsReadOnly(path.string());
    case SQLITE_FULL:
      return DiskIsFull(path.string());
    default:
      return FileCannotBeUsed(path.string(), failure.getErrorStr());
  }
}

/// How the file is written. The journal keeps its place and is overwritten: a commit then needs the fewest
/// synchronisations that still make it durable. The memory map stays off, since a file that shrinks under it
/// ends the program, and so does the write-ahead log.
void SetUp(SQLite::Database& database, bool is_only_read) {
  if (!is_only_read) database.exec("PRAGMA journal_mode=PERSIST");
  database.exec("PRAGMA journal_size_limit=4000000");
  database.exec("PRAGMA synchronous=FULL");
  database.exec("PRAGMA mmap_size=0");
  database.exec("PRAGMA temp_store=MEMORY");
  database.exec("PRAGMA cache_size=-64000");
  database.exec("PRAGMA cell_size_check=ON");
}

}  // namespace

EmbeddedDatabase::EmbeddedDatabase(std::unique_ptr<Connection> connection)
    : connection_(std::move(connection)) {}

EmbeddedDatabase::~EmbeddedDatabase() = default;

std::unique_ptr<EmbeddedDatabase> EmbeddedDatabase::Open(const std::filesystem::path& path,
                                                         const EmbeddedOptions& options) {
  // An absolute path is never taken for an address.
  const std::filesystem::path file = std::filesystem::absolute(path);
  const bool is_only_read = options.access == EmbeddedOptions::Access::kReadOnly;
  if (options.access == EmbeddedOptions::Access::kCreate) {
    CreateOwnFile(file);
  } else {
    RequireUsableFile(file, is_only_read);
  }
  try {
    auto connection = std::make_unique<Connection>(
        file, file.stem().string(), is_only_read ? SQLite::OPEN_READONLY : SQLite::OPEN_READWRITE,
        options.busy_wait);
    SetUp(connection->database, is_only_read);
    std::unique_ptr<EmbeddedDatabase> database(new EmbeddedDatabase(std::move(connection)));
    const int version = database->SchemaVersion();
    if (version > options.schema_version) throw FileIsNewer(file.string(), version, options.schema_version);
    return database;
  } catch (const SQLite::Exception& failure) {
    throw RefusalOf(failure, file);
  }
}

std::unique_ptr<EmbeddedDatabase> EmbeddedDatabase::OpenInMemory(const std::string& name) {
  return std::unique_ptr<EmbeddedDatabase>(new EmbeddedDatabase(std::make_unique<Connection>(
      std::filesystem::path(), name, SQLite::OPEN_READWRITE, std::chrono::milliseconds(0))));
}

std::unique_ptr<EmbeddedDatabase> EmbeddedDatabase::CopyInMemory() const {
  std::unique_ptr<EmbeddedDatabase> copy = OpenInMemory(connection_->name);
  try {
    SQLite::Backup(copy->connection_->database, connection_->database).executeStep(-1);
    return copy;
  } catch (const SQLite::Exception& failure) {
    throw RefusalOf(failure, connection_->path);
  }
}

Recordset EmbeddedDatabase::Run(const SqlText& statement) {
  return connection_->engine.Run(statement);
}

void EmbeddedDatabase::RunTogether(const std::function<void()>& work) {
  connection_->engine.RunTogether(work);
}

void EmbeddedDatabase::BackupTo(const std::filesystem::path& path) {
  const std::filesystem::path target = std::filesystem::absolute(path);
  std::error_code error;
  if (std::filesystem::equivalent(target, connection_->path, error)) throw FileIsThere(target.string());
  const std::filesystem::path copy = target.string() + "." + std::to_string(getpid()) + ".part";
  CreateOwnFile(copy);
  try {
    {
      SQLite::Database destination(copy.string(), SQLite::OPEN_READWRITE);
      destination.exec("PRAGMA synchronous=FULL");
      SQLite::Backup backup(destination, connection_->database);
      const auto deadline = std::chrono::steady_clock::now() + connection_->busy_wait;
      // In one step the copy is of one moment; a file that is being written is waited for.
      for (int result = backup.executeStep(-1); result != SQLITE_DONE; result = backup.executeStep(-1)) {
        if (std::chrono::steady_clock::now() > deadline) throw FileIsBusy(connection_->path.string());
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
      }
    }
    // A journal of the file that stood there must not be taken for one of the copy.
    std::filesystem::remove(target.string() + "-journal", error);
    std::filesystem::rename(copy, target);
    SyncFolder(target.parent_path());
  } catch (const SQLite::Exception& failure) {
    std::filesystem::remove(copy, error);
    throw RefusalOf(failure, target);
  } catch (const std::filesystem::filesystem_error& failure) {
    std::filesystem::remove(copy, error);
    throw FileCannotBeUsed(target.string(), failure.code().message());
  } catch (...) {
    std::filesystem::remove(copy, error);
    throw;
  }
}

std::vector<std::string> EmbeddedDatabase::IntegrityReport() {
  std::vector<std::string> findings;
  try {
    SQLite::Statement statement(connection_->database, "PRAGMA integrity_check");
    while (statement.executeStep()) {
      std::string finding = statement.getColumn(0).getString();
      if (finding != "ok") findings.push_back(std::move(finding));
    }
  } catch (const SQLite::Exception& failure) {
    if (failure.getErrorCode() == SQLITE_BUSY) throw FileIsBusy(connection_->path.string());
    findings.emplace_back(failure.getErrorStr());
  }
  return findings;
}

int EmbeddedDatabase::SchemaVersion() {
  try {
    return connection_->database.execAndGet("PRAGMA user_version").getInt();
  } catch (const SQLite::Exception& failure) {
    throw RefusalOf(failure, connection_->path);
  }
}

void EmbeddedDatabase::SetSchemaVersion(int version) {
  try {
    connection_->database.exec("PRAGMA user_version=" + std::to_string(version));
  } catch (const SQLite::Exception& failure) {
    throw RefusalOf(failure, connection_->path);
  }
}

std::vector<std::string> EmbeddedDatabase::Translation(const SqlText& statement) {
  return connection_->engine.Translation(statement);
}

}  // namespace ovindra
