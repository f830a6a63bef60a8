// The statements of the lists of defected children, and how their texts are joined into the rows of a staging
// grid.
#pragma once

#include <string>

#include "base/database/connection.h"
#include "base/database/sql_text.h"
#include "reports/examiner.h"
#include "reports/listing.h"
#include "reports/report_form.h"

namespace ovindra {

/// The examinations of a period that found a defect, one row each.
SqlText DefectedChildren(Examiner examiner, const Period& period, const std::string& location);
SqlText DiagnosesOfPeriod(Examiner examiner, const Period& period, const std::string& location);
/// Always those of the assistant's examinations.
SqlText TreatmentsOfPeriod(const Period& period, const std::string& location);

/// The same of the grant's programme, whatever the period.
SqlText ProgrammeChildren(const std::string& location);
SqlText ProgrammeDiagnoses(const std::string& location);
SqlText ProgrammeTreatments(const std::string& location);

/// The defected children enrolled in a period that have a diagnosis, and the categories of their diagnoses.
SqlText ChildrenWithCategory(Examiner examiner, const Period& period, const std::string& location);
SqlText CategoriesOfChildren(Examiner examiner, const Period& period, const std::string& location);

/// Joins the descriptions into the column; one of spectacles that comes first tells whether they are free or
/// paid.
void JoinTreatments(Grid& grid, const GridIndex& children, int column, Recordset& treatments);

/// Joins the categories into the column and gives how many came behind a child's first.
int JoinCategories(Grid& grid, const GridIndex& children, int column, Recordset& categories);

/// Puts the user's name in place of each code, user by user.
void NameUsers(Grid& grid, int column, Recordset& users);

}  // namespace ovindra
