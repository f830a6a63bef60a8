#include "tests/unit/reports/demonstration.h"

#include <cstdlib>
#include <fstream>
#include <stdexcept>

#include "app/forms.h"
#include "base/controls/buttons.h"
#include "base/controls/dates.h"
#include "base/controls/report_sheet.h"
#include "base/controls/tabs.h"
#include "core/schema/schema.h"
#include "tools/setup/demo/demo.h"

namespace ovindra {
namespace {

/// Names a file to which the forms' statements are appended, for whoever checks their language.
constexpr auto kStatementsFile = "OVINDRA_STATEMENTS";

class SharedSession : public Session {
 public:
  explicit SharedSession(Session& session) : session_(session) {}
  Recordset Run(const SqlText& statement) override {
    Recordset answer = session_.Run(statement);
    if (const char* file = std::getenv(kStatementsFile))
      std::ofstream(file, std::ios::app) << statement.text() << "\nGO\n";
    return answer;
  }

 private:
  Session& session_;
};

}  // namespace

DemonstrationDatabases MakeDemonstration() {
  DemonstrationDatabases made{EmbeddedDatabase::OpenInMemory("ZQR"), EmbeddedDatabase::OpenInMemory("ward")};
  RunScript(*made.screening, ScreeningSchema());
  RunScript(*made.hospital, HospitalSchema());
  FillDemo(*made.screening, *made.hospital, DemoScale::ForChildren(3000));
  return made;
}

const DemonstrationDatabases& Demonstration() {
  static const DemonstrationDatabases databases = MakeDemonstration();
  return databases;
}

const ProgrammeFacts& DemonstrationFacts() {
  static const ProgrammeFacts facts(DemonstrationDatabase());
  return facts;
}

TableRows AllOf(Session& database, const std::string& table) {
  TableRows all;
  Recordset records = database.Run(WholeStatement("select * from " + table));
  for (; !records.Eof(); records.MoveNext()) {
    TableRow& row = all.emplace_back();
    for (std::size_t column = 0; column < records.columns().size(); ++column)
      row[records.columns()[column]] = std::string(Trim(YearFirstText(records.At(column))));
  }
  return all;
}

std::vector<SheetLine> NumberedLines(const Workbook& sheet, int first_row, int columns) {
  std::vector<SheetLine> lines;
  for (int row = first_row; sheet.Text(row, 1) == std::to_string(row - first_row + 1); ++row) {
    SheetLine& line = lines.emplace_back();
    for (int column = 2; column <= columns; ++column) line.emplace_back(sheet.Text(row, column));
  }
  return lines;
}

std::unique_ptr<Session> ReportDesk::Source::Connect(std::string_view connection) {
  const bool is_hospital = connection.find("ward") != std::string_view::npos;
  return std::make_unique<SharedSession>(is_hospital ? *databases_.hospital : *databases_.screening);
}

ReportDesk::ReportDesk(std::string_view form_name, const DemonstrationDatabases& databases)
    : source_(databases), program_(machine_.services, source_, AllForms()) {
  program_.module().ScreeningConnection.Open(source_, "DSN=ZQR;");
  program_.module().HospitalConnection.Open(source_, "DSN=ward;");
  program_.Perform([&] { program_.Show(form_name); });
  form_ = program_.OpenForm(form_name);
}

void ReportDesk::SetPeriod(Date from, Date to) {
  Named<DatePicker>("DTPicker1").SetValue(from);
  Named<DatePicker>("DTPicker2").SetValue(to);
}

void ReportDesk::Pick(std::string_view list, std::string_view entry) {
  auto& combo = Named<ComboBox>(list);
  const auto index = combo.items().IndexOf(entry);
  if (!index) throw std::invalid_argument(std::string(entry));
  program_.Perform([&] { combo.SetListIndex(*index); });
}

void ReportDesk::SwitchOn(std::string_view option) {
  program_.Perform([&] { Named<OptionButton>(option).SetOn(true); });
}

void ReportDesk::SelectTab(int tab) {
  program_.Perform([&] { Named<TabStrip>("TabStrip1").Select(tab); });
}

void ReportDesk::Click(std::string_view button) {
  program_.Perform([&] { form_->Find(button)->UserClick(); });
}

void ReportDesk::Press(KeyName key) {
  program_.Perform([&] { form_->Find("Command1")->UserKeyDown(key); });
}

const ListItems& ReportDesk::Entries(std::string_view list) const {
  return Named<ComboBox>(list).items();
}

const Workbook& ReportDesk::sheet() const {
  return Named<ReportSheet>("F1Book1").workbook();
}

std::vector<std::string> ReportDesk::Row(int row, int last_column) const {
  std::vector<std::string> cells;
  for (int column = 1; column <= last_column; ++column) cells.emplace_back(sheet().Text(row, column));
  return cells;
}

}  // namespace ovindra
