#include "tests/unit/reports/demonstration.h"

#include <gtest/gtest.h>

#include "app/forms.h"
#include "base/controls/buttons.h"
#include "base/controls/dates.h"
#include "base/controls/report_sheet.h"
#include "core/schema/schema.h"
#include "tools/setup/demo/demo.h"

namespace ovindra {
namespace {

class SharedSession : public Session {
 public:
  Recordset Run(const SqlText& statement) override { return DemonstrationDatabase().Run(statement); }
};

std::unique_ptr<EmbeddedDatabase> MakeDemonstration() {
  auto screening = EmbeddedDatabase::OpenInMemory("ZQR");
  const auto hospital = EmbeddedDatabase::OpenInMemory("ward");
  RunScript(*screening, ScreeningSchema());
  RunScript(*hospital, HospitalSchema());
  FillDemo(*screening, *hospital, DemoScale::ForChildren(3000));
  return screening;
}

}  // namespace

EmbeddedDatabase& DemonstrationDatabase() {
  static const std::unique_ptr<EmbeddedDatabase> database = MakeDemonstration();
  return *database;
}

const ProgrammeFacts& DemonstrationFacts() {
  static const ProgrammeFacts facts(DemonstrationDatabase());
  return facts;
}

std::unique_ptr<Session> ReportDesk::Source::Connect(std::string_view) {
  return std::make_unique<SharedSession>();
}

ReportDesk::ReportDesk(std::string_view form_name) : program_(machine_.services, source_, AllForms()) {
  program_.module().ScreeningConnection.Open(source_, "DSN=ZQR;");
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
  ASSERT_TRUE(index) << entry;
  program_.Perform([&] { combo.UserPick(*index); });
}

void ReportDesk::SwitchOn(std::string_view option) {
  program_.Perform([&] { Named<OptionButton>(option).SetOn(true); });
}

void ReportDesk::Click(std::string_view button) {
  program_.Perform([&] { form_->Find(button)->UserClick(); });
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
