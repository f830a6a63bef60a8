// The tables of the consolidation report as data: which rows each builder writes, what each row counts, and
// what its percent rows relate.
#pragma once

#include <span>
#include <string_view>

#include "reports/consolidation_statements.h"

namespace ovindra {

enum class RowKind {
  kBlockList,              // a line for each block, then their total
  kBlockListWithoutTotal,  // a line for each block
  kCount,                  // the figure of one statement
  kMissed,                 // the children enrolled less those screened, as they stand on the sheet
  kPercent,                // one figure over another
  kHeading,                // a serial that is used up but not shown, no figure
};

/// The statement behind a row.
enum class Source {
  kNone,
  kChildren,
  kEnrolled,
  kAttended,
  kExaminations,
  kCategory,
  kTreatment,
  kTreatmentRows,
  kTurnup,
  kRegisterEnrolled,
  kRegisterScreened,
  kCenters,
  kTrainedPeople,
};

/// The figures that later rows relate. A table that counts one anew, the surgeon's after the assistant's,
/// relates the new one from there on.
enum class Figure {
  kNone,
  kEnrolled,
  kScreened,
  kMissed,
  kIdentified,
  kExamined,
  kUnexamined,
  kDefective,
  kRefractive,
  kCataracts,
  kSquint,
  kPtosis,
  kVitaminA,
  kCount,
};

struct ConsolidationRow {
  RowKind kind;
  std::string_view label;
  Source source = Source::kNone;
  Figure figure = Figure::kNone;  // the figure that the row counts; of a percent row the numerator
  Figure over = Figure::kNone;    // the divisor of a percent row
  Fragment tail = "";             // which children or examinations
  int code = 0;                   // the category or treatment
  bool names_examiner = false;    // the label ends with "OA" or "OS"
};

/// Rows that stand together, with whose examinations they count.
struct RowGroup {
  std::span<const ConsolidationRow> rows;
  Examiner examiner = Examiner::kAssistant;
};

/// How a table counts a category: different children, or every diagnosis.
enum class CategoryFamily { kChildren, kDiagnoses };

/// Where the block lists come from.
enum class BlockLists { kSchoolRegister, kAnganwadiCenters, kProgrammeSchools };

struct ConsolidationTable {
  std::span<const RowGroup> groups;
  Scope scope = Scope::kAll;
  BlockLists block_lists = BlockLists::kSchoolRegister;
  CategoryFamily categories = CategoryFamily::kChildren;
  /// The fixed row 35 comes out as a subtotal, whatever stands there.
  bool styles_row_35 = false;
};

extern const ConsolidationTable SchoolReport;
extern const ConsolidationTable VisionReport;
extern const ConsolidationTable AnganwadiReport;
extern const ConsolidationTable SchoolSankulReport;
extern const ConsolidationTable VisionSankulReport;
extern const ConsolidationTable SchoolBlockReport;
extern const ConsolidationTable DirectByOAReport;
extern const ConsolidationTable ProgrammeReport;

}  // namespace ovindra
