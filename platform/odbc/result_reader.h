// Reads the rows of an executed statement to their end. What a column's declared type is decides what its
// fields are: a number, a date or a text.
#pragma once

#include "base/database/recordset.h"
#include "platform/odbc/handles.h"

namespace ovindra::odbc {

/// How many columns the current result of the statement has; 0 for one without rows.
SQLSMALLINT ColumnCount(const StatementHandle& statement);

/// All rows of the current result. Fails with the driver's error, also in the middle.
Recordset ReadRows(const StatementHandle& statement);

}  // namespace ovindra::odbc
