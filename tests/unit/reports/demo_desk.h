// The program on the demonstration databases, and their tables as plain rows, for tests that make a list by
// themselves and compare it with a report's sheet. The databases are made once for all tests.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/controls/form.h"
#include "base/date.h"
#include "core/startup/program.h"
#include "platform/embedded/embedded_database.h"
#include "tests/unit/base/controls/test_form.h"

namespace ovindra {

/// A row by the names of its columns: texts trimmed, dates as yyyy-mm-dd.
using TableRow = std::map<std::string, std::string>;
using TableRows = std::vector<TableRow>;

/// A line of the sheet, or what should stand there.
using SheetLine = std::vector<std::string>;

class DemoDesk {
 public:
  /// Opens that form for the whole time of the demonstration.
  explicit DemoDesk(const char* form_name);

  static TableRows ScreeningTable(const std::string& name);
  static TableRows HospitalTable(const std::string& name);

  void SetPeriod(Date from, Date to);
  void Pick(const char* combo, const std::string& entry);
  void Click(const char* control);
  void SelectTab(int tab);
  /// What boxes have said since the last call.
  std::vector<std::string> TakeMessages() { return std::exchange(machine_.messages, {}); }

  /// The lines from that row on, as long as their first cells count on from 1, without that number.
  std::vector<SheetLine> Lines(int first_row, int columns) const;

 private:
  class Source : public DataSources {
   public:
    std::unique_ptr<Session> Connect(std::string_view text) override;
  };

  Form& form() const { return *program_.OpenForm(form_name_); }

  QuietMachine machine_;
  Source source_;
  Program program_;
  const char* form_name_;
};

}  // namespace ovindra
