// The demonstration programme for tests of reports: its databases, made once, their tables as plain rows, and
// a program on them with one report form open, to be worked as a person would.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/controls/combo_box.h"
#include "base/database/connection.h"
#include "base/workbook/workbook.h"
#include "core/startup/program.h"
#include "platform/embedded/embedded_database.h"
#include "tests/unit/base/controls/test_form.h"
#include "tests/unit/reports/programme_facts.h"

namespace ovindra {

struct DemonstrationDatabases {
  std::unique_ptr<EmbeddedDatabase> screening;
  std::unique_ptr<EmbeddedDatabase> hospital;
};

/// Databases of a test's own, to be changed.
DemonstrationDatabases MakeDemonstration();

/// Those that all tests share, and that stay as they are; made on the first call.
const DemonstrationDatabases& Demonstration();
inline EmbeddedDatabase& DemonstrationDatabase() {
  return *Demonstration().screening;
}
/// What stands in the screening database.
const ProgrammeFacts& DemonstrationFacts();

/// A row by the names of its columns: texts trimmed, dates as yyyy-mm-dd.
using TableRow = std::map<std::string, std::string>;
using TableRows = std::vector<TableRow>;

TableRows AllOf(Session& database, const std::string& table);

/// A line of the sheet, or what should stand there.
using SheetLine = std::vector<std::string>;

/// The lines from that row on, as long as their first cells count on from 1, without that number.
std::vector<SheetLine> NumberedLines(const Workbook& sheet, int first_row, int columns);

class ReportDesk {
 public:
  /// The databases must outlast the desk.
  explicit ReportDesk(std::string_view form_name, const DemonstrationDatabases& databases = Demonstration());

  void SetPeriod(Date from, Date to);
  void Pick(std::string_view list, std::string_view entry);
  void SwitchOn(std::string_view option);
  void SelectTab(int tab);
  void Click(std::string_view button);
  void Press(KeyName key);

  const ListItems& Entries(std::string_view list) const;
  const Workbook& sheet() const;
  /// What the spreadsheet application was last given.
  const Workbook& spreadsheet() const { return machine_.shown; }
  /// The texts of a row's cells up to that column.
  std::vector<std::string> Row(int row, int last_column) const;
  std::vector<SheetLine> Lines(int first_row, int columns) const {
    return NumberedLines(sheet(), first_row, columns);
  }
  const std::vector<std::string>& messages() const { return machine_.messages; }
  /// What boxes have said since the last call.
  std::vector<std::string> TakeMessages() { return std::exchange(machine_.messages, {}); }

 private:
  struct DeskMachine : QuietMachine {
    void ShowWorkbook(const Workbook& workbook) override { shown = workbook; }
    Workbook shown;
  };

  class Source : public DataSources {
   public:
    explicit Source(const DemonstrationDatabases& databases) : databases_(databases) {}
    std::unique_ptr<Session> Connect(std::string_view connection) override;

   private:
    const DemonstrationDatabases& databases_;
  };

  template <typename Kind>
  Kind& Named(std::string_view name) const {
    return dynamic_cast<Kind&>(*form_->Find(name));
  }

  DeskMachine machine_;
  Source source_;
  Program program_;
  Form* form_;
};

}  // namespace ovindra
