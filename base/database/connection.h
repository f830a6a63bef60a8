// A connection to one of the two databases. The form's side is Connection: it executes SqlText and gives the
// rows. The other side is Session, which whoever reaches a database implements: the embedded engine, the
// client of a server, a recorder of tests.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "base/database/recordset.h"
#include "base/database/sql_text.h"

namespace ovindra {

/// An open database.
class Session {
 public:
  virtual ~Session() = default;

  /// Runs one statement as one transaction and reads its result to the end. Fails with the server's refusal.
  virtual Recordset Run(const SqlText& statement) = 0;
};

/// A session for those who fill a database: it can run many statements as one transaction.
class TransactionSession : public Session {
 public:
  /// Runs what the work runs as one transaction; nothing of it stays when it throws.
  virtual void RunTogether(const std::function<void()>& work) = 0;
};

/// Where connections come from.
class DataSources {
 public:
  virtual ~DataSources() = default;

  /// Opens the data source that a connection string "DSN=...;user ID=...;pwd=..." names. Fails with the error
  /// of the driver.
  virtual std::unique_ptr<Session> Connect(std::string_view connection_string) = 0;
};

/// The program's handle on a database, closed until opened and never closed by the program itself.
class Connection {
 public:
  void Open(DataSources& sources, std::string_view connection_string) {
    session_ = sources.Connect(connection_string);
  }
  void Close() { session_.reset(); }
  bool IsOpen() const { return session_ != nullptr; }

  /// Executes a statement. Error 3709 when closed, -2147217908 for an empty statement; a statement that a
  /// value has broken raises its refusal and is not sent.
  Recordset Execute(const SqlText& statement);

 private:
  std::unique_ptr<Session> session_;
};

}  // namespace ovindra
