#include "platform/odbc/odbc_session.h"

#include <array>
#include <vector>

#include "base/database/connection_string.h"
#include "base/database/database_error.h"
#include "base/text/blanks.h"
#include "base/text/utf8.h"
#include "platform/odbc/handles.h"
#include "platform/odbc/result_reader.h"
#include "platform/odbc/wide_text.h"

namespace ovindra {

using namespace odbc;

namespace odbc {

std::string DriverConnectionString(std::string_view connection_string) {
  std::string text;
  for (const ConnectionPart& part : ConnectionParts(connection_string)) {
    text += SameWithoutCase(part.key, "user ID") ? "UID" : part.key;
    text.append("=").append(part.value).append(";");
  }
  return text;
}

std::span<const std::string_view> SessionSettings(std::string_view product) {
  // A Transact-SQL server reads dates by the language of the login; the program writes them month first. The
  // schema's computed column and its filtered indexes can be written under these options alone, which not
  // every driver sets. Other products know none of these words, and read 05/31/2016 as they are set up to.
  static constexpr std::array<std::string_view, 2> kTransactSql{
      "set ansi_nulls on;set ansi_padding on;set ansi_warnings on;set arithabort on;"
      "set concat_null_yields_null on;set quoted_identifier on;set numeric_roundabort off",
      "set dateformat mdy",
  };
  if (product.find("SQL Server") == std::string_view::npos) return {};
  return kTransactSql;
}

}  // namespace odbc

namespace {

constexpr SQLULEN kLoginSeconds = 15;

EnvironmentHandle& Prepared(EnvironmentHandle& environment) {
  environment.Check(SQLSetEnvAttr(environment.get(), SQL_ATTR_ODBC_VERSION,
                                  reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), SQL_IS_INTEGER));
  return environment;
}

SQLRETURN SetAttribute(const ConnectionHandle& connection, SQLINTEGER attribute, SQLULEN value) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): ODBC takes numbers in the place of pointers.
  return SQLSetConnectAttr(connection.get(), attribute, reinterpret_cast<SQLPOINTER>(value), SQL_IS_UINTEGER);
}

}  // namespace

/// The connection with what it stands on.
struct OdbcSession::Link {
  explicit Link(std::string_view connection_string) {
    // A driver that knows no limit waits as long as it likes.
    SetAttribute(connection, SQL_ATTR_LOGIN_TIMEOUT, kLoginSeconds);
    std::vector<SQLWCHAR> text = WideText(DriverConnectionString(connection_string));
    connection.Check(SQLDriverConnectW(connection.get(), nullptr, text.data(),
                                       static_cast<SQLSMALLINT>(text.size()), nullptr, 0, nullptr,
                                       SQL_DRIVER_NOPROMPT));
  }
  ~Link() { SQLDisconnect(connection.get()); }
  Link(const Link&) = delete;
  Link& operator=(const Link&) = delete;

  std::string Product() const {
    std::array<SQLWCHAR, 256> name{};
    SQLSMALLINT bytes = 0;
    connection.Check(SQLGetInfoW(connection.get(), SQL_DBMS_NAME, name.data(),
                                 static_cast<SQLSMALLINT>(sizeof name), &bytes));
    return NarrowText(name.data(), LengthOf(name.data(), name.size()));
  }

  Recordset Send(std::string_view text) {
    const StatementHandle statement(connection.get());
    std::vector<SQLWCHAR> wide = WideText(text);
    SQLRETURN answer =
        statement.Check(SQLExecDirectW(statement.get(), wide.data(), static_cast<SQLINTEGER>(wide.size())));
    Recordset rows;
    SQLLEN affected = 0;
    do {
      if (answer != SQL_NO_DATA && ColumnCount(statement) > 0) {
        Recordset result = ReadRows(statement);
        if (!rows.HasColumns()) rows = std::move(result);
      } else if (SQLLEN count = 0; SQL_SUCCEEDED(SQLRowCount(statement.get(), &count)) && count > 0) {
        affected += count;
      }
      answer = statement.Check(SQLMoreResults(statement.get()));
    } while (answer != SQL_NO_DATA);
    return rows.HasColumns() ? std::move(rows) : Recordset::OfCount(affected);
  }

  /// Ends a transaction.
  void End(SQLSMALLINT how) {
    connection.Check(SQLEndTran(SQL_HANDLE_DBC, connection.get(), how));
    connection.Check(SetAttribute(connection, SQL_ATTR_AUTOCOMMIT, SQL_AUTOCOMMIT_ON));
  }

  EnvironmentHandle environment{SQL_NULL_HANDLE};
  ConnectionHandle connection{Prepared(environment).get()};
};

OdbcSession::OdbcSession(std::unique_ptr<Link> link) : link_(std::move(link)) {}
OdbcSession::~OdbcSession() = default;

std::unique_ptr<OdbcSession> OdbcSession::Connect(std::string_view connection_string) {
  std::unique_ptr<OdbcSession> session(new OdbcSession(std::make_unique<Link>(connection_string)));
  for (const std::string_view setting : SessionSettings(session->link_->Product()))
    session->link_->Send(setting);
  return session;
}

Recordset OdbcSession::Run(const SqlText& statement) {
  if (Trim(std::string_view(statement.text())).empty()) throw NoCommandText();
  if (statement.refusal()) throw *statement.refusal();
  return link_->Send(statement.text());
}

void OdbcSession::RunTogether(const std::function<void()>& work) {
  link_->connection.Check(SetAttribute(link_->connection, SQL_ATTR_AUTOCOMMIT, SQL_AUTOCOMMIT_OFF));
  try {
    work();
  } catch (...) {
    // A server that was lost has dropped the transaction by itself.
    if (SQL_SUCCEEDED(SQLEndTran(SQL_HANDLE_DBC, link_->connection.get(), SQL_ROLLBACK)))
      SetAttribute(link_->connection, SQL_ATTR_AUTOCOMMIT, SQL_AUTOCOMMIT_ON);
    throw;
  }
  link_->End(SQL_COMMIT);
}

}  // namespace ovindra
