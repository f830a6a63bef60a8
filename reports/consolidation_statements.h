// The statements of the consolidation report: families that differ by what they count, each in the variants
// of the report's scope. A statement's text is sent as it stands here; the figure that it gives is its column
// Total.
#pragma once

#include <string>

#include "base/database/sql_text.h"
#include "reports/examiner.h"
#include "reports/report_form.h"

namespace ovindra {

/// What a report is narrowed to.
enum class Scope { kAll, kSankul, kBlock, kProgramme };

/// Which children a report is about: those whose enroll number begins with the letter of the location, in the
/// period, within the scope, whose value is a sankul's, block's or programme's code.
struct Coverage {
  Period period;
  std::string location;
  Scope scope = Scope::kAll;
  std::string scope_value;
};

/// Children by their enrollment date; the tail says which of them.
SqlText ChildCount(const Coverage& coverage, Fragment tail);

/// All children of the coverage.
SqlText EnrolledCount(const Coverage& coverage);

/// The children who came to the hospital.
SqlText AttendedCount(const Coverage& coverage);

/// Examination records, one for each; the tail joins them to their children.
SqlText ExamCount(const Coverage& coverage, Examiner examiner, Fragment tail);

/// Different children with a diagnosis of the category.
SqlText CategoryCount(const Coverage& coverage, Examiner examiner, int category);

/// Diagnoses of the category: a child with two of them counts twice.
SqlText PlainCategoryCount(const Coverage& coverage, int category);

/// Different children with the treatment.
SqlText TreatmentCount(const Coverage& coverage, Examiner examiner, int treatment);

/// Treatments, one for each row.
SqlText TreatmentRowCount(const Coverage& coverage, int treatment);

/// Different children with the treatment who came to the hospital.
SqlText TurnupCount(const Coverage& coverage, int treatment);

enum class RegisterColumns { kEnrolled, kScreened };

/// The strength that the school register tells, by its screening date.
SqlText SchoolRegisterSum(const Coverage& coverage, RegisterColumns columns);

enum class BlockFigure { kCenters, kTrainedPeople };

/// Schools of the register, or their trained teachers, block by block; no date narrows them.
SqlText SchoolList(const Coverage& coverage, BlockFigure figure);

/// Anganwadi centers with children of the coverage, or their trained workers. The center is in the grouping,
/// so a block shows a line for each different figure.
SqlText AnganwadiList(const Coverage& coverage, BlockFigure figure);

/// Schools with children of the programme, or their trained teachers.
SqlText ProgrammeSchoolList(const Coverage& coverage, BlockFigure figure);

}  // namespace ovindra
