// The demonstration programme for tests of reports: its databases, made once, and a program on them with one
// report form open, to be worked as a person would.
#pragma once

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

/// The screening database of the demonstration; made on the first call.
EmbeddedDatabase& DemonstrationDatabase();
/// What stands in it.
const ProgrammeFacts& DemonstrationFacts();

class ReportDesk {
 public:
  explicit ReportDesk(std::string_view form_name);

  void SetPeriod(Date from, Date to);
  void Pick(std::string_view list, std::string_view entry);
  void SwitchOn(std::string_view option);
  void Click(std::string_view button);

  const ListItems& Entries(std::string_view list) const;
  const Workbook& sheet() const;
  /// The texts of a row's cells up to that column.
  std::vector<std::string> Row(int row, int last_column) const;
  const std::vector<std::string>& messages() const { return machine_.messages; }

 private:
  class Source : public DataSources {
   public:
    std::unique_ptr<Session> Connect(std::string_view) override;
  };

  template <typename Kind>
  Kind& Named(std::string_view name) const {
    return dynamic_cast<Kind&>(*form_->Find(name));
  }

  QuietMachine machine_;
  Source source_;
  Program program_;
  Form* form_;
};

}  // namespace ovindra
