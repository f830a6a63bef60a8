// Writes one table of the consolidation report to the sheet, row by row, each figure by a statement of its
// own. An error leaves the sheet as it stands at that row.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "base/database/connection.h"
#include "reports/consolidation_tables.h"
#include "reports/sheet.h"

namespace ovindra {

class ConsolidationReport {
 public:
  ConsolidationReport(Sheet sheet, Connection& database, const ConsolidationTable& table,
                      const Coverage& coverage)
      : sheet_(sheet), database_(database), table_(table), coverage_(coverage) {}

  /// Writes the headings, which stand before anything is looked up for the table.
  static void WriteHeadings(Sheet sheet);

  /// Writes the rows and the formats.
  void Build();

 private:
  void WriteRow(const ConsolidationRow& row, Examiner examiner);
  void WriteBlockList(const ConsolidationRow& row);
  void WriteCount(const ConsolidationRow& row, Examiner examiner);
  void WriteMissed(const ConsolidationRow& row);
  void WritePercent(const ConsolidationRow& row);
  void WriteHeading(const ConsolidationRow& row);
  void WriteLabel(std::string_view label);
  void WriteFigure(const ConsolidationRow& row, double figure, std::string_view text);

  SqlText StatementOf(const ConsolidationRow& row, Examiner examiner) const;
  SqlText BlockListStatement(const ConsolidationRow& row) const;
  double& ValueOf(Figure figure) { return values_[static_cast<std::size_t>(figure)]; }
  std::string_view WrittenText(Figure figure) const;

  void Format();

  Sheet sheet_;
  Connection& database_;
  const ConsolidationTable& table_;
  const Coverage& coverage_;
  int row_ = 0;
  int serial_ = 1;
  std::array<double, static_cast<std::size_t>(Figure::kCount)> values_{};
  std::array<int, static_cast<std::size_t>(Figure::kCount)> rows_{};
  std::vector<int> list_labels_;
  std::vector<int> totals_;
};

}  // namespace ovindra
