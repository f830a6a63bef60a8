// The client of a database server: a data source that the machine's ODBC driver manager knows by name. Owns
// its connection, which closes with it. Each statement is sent as it stands and is its own transaction; a
// server that was lost fails every statement from then on, each with the driver's text.
#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "base/database/connection.h"

namespace ovindra {

class OdbcSession : public TransactionSession {
 public:
  /// Opens the data source of a connection string: its "user ID" goes to the driver as UID, all else as it
  /// stands. Fails with the driver's error.
  static std::unique_ptr<OdbcSession> Connect(std::string_view connection_string);

  ~OdbcSession() override;

  /// Of several results the first with rows is the answer. An empty statement is error -2147217908 and is not
  /// sent.
  Recordset Run(const SqlText& statement) override;

  void RunTogether(const std::function<void()>& work) override;

 private:
  struct Link;
  explicit OdbcSession(std::unique_ptr<Link> link);

  std::unique_ptr<Link> link_;
};

namespace odbc {

/// The connection string as a driver manager reads it.
std::string DriverConnectionString(std::string_view connection_string);

/// What a new session with the server of that product is told before anything else.
std::span<const std::string_view> SessionSettings(std::string_view product);

}  // namespace odbc
}  // namespace ovindra
