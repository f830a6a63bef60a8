#include "tests/unit/reports/demo_desk.h"

#include <stdexcept>

#include "app/forms.h"
#include "base/controls/combo_box.h"
#include "base/controls/dates.h"
#include "base/controls/report_sheet.h"
#include "base/controls/tabs.h"
#include "core/schema/schema.h"
#include "tools/setup/demo/demo.h"

namespace ovindra {
namespace {

struct Databases {
  std::unique_ptr<EmbeddedDatabase> screening = EmbeddedDatabase::OpenInMemory("ZQR");
  std::unique_ptr<EmbeddedDatabase> hospital = EmbeddedDatabase::OpenInMemory("ward");

  Databases() {
    RunScript(*screening, ScreeningSchema());
    RunScript(*hospital, HospitalSchema());
    FillDemo(*screening, *hospital);
  }
};

Databases& Demo() {
  static Databases databases;
  return databases;
}

class SharedSession : public Session {
 public:
  explicit SharedSession(Session& session) : session_(session) {}
  Recordset Run(const SqlText& statement) override { return session_.Run(statement); }

 private:
  Session& session_;
};

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

}  // namespace

std::unique_ptr<Session> DemoDesk::Source::Connect(std::string_view text) {
  return std::make_unique<SharedSession>(text.find("ward") == text.npos ? *Demo().screening
                                                                        : *Demo().hospital);
}

DemoDesk::DemoDesk(const char* form_name)
    : program_(machine_.services, source_, AllForms()), form_name_(form_name) {
  program_.module().ScreeningConnection.Open(source_, "DSN=ZQR;");
  program_.module().HospitalConnection.Open(source_, "DSN=ward;");
  program_.Perform([&] { program_.Show(form_name_); });
}

TableRows DemoDesk::ScreeningTable(const std::string& name) {
  return AllOf(*Demo().screening, name);
}

TableRows DemoDesk::HospitalTable(const std::string& name) {
  return AllOf(*Demo().hospital, name);
}

void DemoDesk::SetPeriod(Date from, Date to) {
  dynamic_cast<DatePicker&>(*form().Find("DTPicker1")).SetValue(from);
  dynamic_cast<DatePicker&>(*form().Find("DTPicker2")).SetValue(to);
}

void DemoDesk::Pick(const char* combo, const std::string& entry) {
  auto& list = dynamic_cast<ComboBox&>(*form().Find(combo));
  const auto index = list.items().IndexOf(entry);
  if (!index) throw std::invalid_argument(entry);
  program_.Perform([&] { list.SetListIndex(*index); });
}

void DemoDesk::Click(const char* control) {
  program_.Perform([&] { form().Find(control)->UserClick(); });
}

void DemoDesk::SelectTab(int tab) {
  program_.Perform([&] { dynamic_cast<TabStrip&>(*form().Find("TabStrip1")).Select(tab); });
}

std::vector<SheetLine> DemoDesk::Lines(int first_row, int columns) const {
  const Workbook& sheet = dynamic_cast<ReportSheet&>(*form().Find("F1Book1")).workbook();
  std::vector<SheetLine> lines;
  for (int row = first_row; sheet.Text(row, 1) == std::to_string(row - first_row + 1); ++row) {
    SheetLine& line = lines.emplace_back();
    for (int column = 2; column <= columns; ++column) line.emplace_back(sheet.Text(row, column));
  }
  return lines;
}

}  // namespace ovindra
