// The handles of ODBC, each freed when its object goes. A handle keeps its parent's, which must outlive it.
#pragma once

#include <sql.h>
#include <sqlext.h>

#include "platform/odbc/diagnostics.h"

namespace ovindra::odbc {

/// A handle of one kind (SQL_HANDLE_ENV, SQL_HANDLE_DBC, SQL_HANDLE_STMT).
template <SQLSMALLINT kKind>
class Handle {
 public:
  /// Fails with the parent's diagnostics. The environment's parent is SQL_NULL_HANDLE.
  explicit Handle(SQLHANDLE parent) {
    if (SQL_SUCCEEDED(SQLAllocHandle(kKind, parent, &handle_))) return;
    if constexpr (kKind == SQL_HANDLE_ENV) throw NoDriverManager();
    throw LastError(kKind == SQL_HANDLE_STMT ? SQL_HANDLE_DBC : SQL_HANDLE_ENV, parent);
  }
  ~Handle() { SQLFreeHandle(kKind, handle_); }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  SQLHANDLE get() const { return handle_; }

  /// Fails with the handle's diagnostics when a call on it did. Gives the answer of a call that did not.
  SQLRETURN Check(SQLRETURN answer) const {
    if (!SQL_SUCCEEDED(answer) && answer != SQL_NO_DATA) throw LastError(kKind, handle_);
    return answer;
  }

 private:
  SQLHANDLE handle_ = SQL_NULL_HANDLE;
};

using EnvironmentHandle = Handle<SQL_HANDLE_ENV>;
using ConnectionHandle = Handle<SQL_HANDLE_DBC>;
using StatementHandle = Handle<SQL_HANDLE_STMT>;

}  // namespace ovindra::odbc
