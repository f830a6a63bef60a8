// The rows of a query as `expect sql` writes them: fields parted by `|`, rows by ` ; `.
#pragma once

#include <string>
#include <string_view>

#include "base/database/recordset.h"

namespace ovindra::driver {

/// The rows as text: each field without the blanks around it, NULL as `NULL`, a date as `2016-05-31`; an
/// empty text for no rows.
std::string RowsAsText(Recordset rows);

/// What a scenario expects, in the form that RowsAsText gives.
std::string NormalRows(std::string_view expected);

}  // namespace ovindra::driver
