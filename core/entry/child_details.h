// The details of one child as the forms of its road show them: nine rows of caption and value.
#pragma once

#include <string_view>

#include "base/controls/grid.h"
#include "base/database/connection.h"

namespace ovindra {

/// Cuts the grid down to its header, reads the child with its block, district, state and country and writes
/// the nine rows. A number that finds no such child leaves the header alone and is error 3021.
void ShowChildDetails(Connection& connection, std::string_view enroll_no, Grid& grid);

/// The nine rows from a row that has been read.
void WriteChildDetails(const Recordset& child, Grid& grid);

}  // namespace ovindra
