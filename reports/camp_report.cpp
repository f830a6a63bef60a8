#include "reports/camp_report.h"

#include "core/entry/lists.h"
#include "core/entry/lookups.h"
#include "core/entry/places.h"
#include "core/entry/standard_dialogs.h"

namespace ovindra {
namespace {

Fragment AreaTest(Area area, BlockSpelling spelling) {
  if (area == Area::kState) return " and a.State_Code=";
  return spelling == BlockSpelling::kCapital ? Fragment(" and a.Block_Code=")
                                             : Fragment(" and a.block_Code=");
}

}  // namespace

SqlText RecordsOf(const CampCoverage& coverage, BlockSpelling spelling) {
  return sql(" where b.Record_date between ", quoted(coverage.period.from), "and", quoted(coverage.period.to),
             "and a.enroll_no=b.enroll_no", AreaTest(coverage.area, spelling), bare(coverage.area_code),
             "and a.Enroll_no like ", quoted(coverage.location, "%"));
}

SqlText SpectacleColumns(Fragment columns, Camp camp) {
  return sql(columns,
             ",case c.remark when 'F' then 'FREE' when 'P' then 'PAID' end as Remark from Enroll_Master a,",
             camp == Camp::kAssistant ? Fragment("Child_Record b,Child_Treatment c")
                                      : Fragment("Child_RecordOS b,Child_TreatmentOS c"));
}

CampReportForm::CampReportForm(Module1& module_values, std::string_view form_name,
                               std::string_view form_caption, ReportSheet& report_sheet,
                               const CampNames& camps)
    : ReportForm(module_values, form_name, form_caption, report_sheet),
      Option1(*this, "Option1", camps.assistant, On),
      Option2(*this, "Option2", camps.surgeon) {
  UsePeriod(DTPicker1, DTPicker2);
  Plain(TabStrip1.click, &CampReportForm::ShowAreaOfTab);
}

void CampReportForm::OpenSelections() {
  SetPeriodToToday();
  FillBlocks(database(), Combo1);
  FillList(database(), sql("select State_Name from State_Master order by State_Name"), "State_Name", Combo2);
  FillLocations(database(), Combo4);
}

void CampReportForm::ShowAreaOfTab() {
  const bool by_block = ChosenArea() == Area::kBlock;
  Label4.SetVisible(by_block);
  Combo1.SetVisible(by_block);
  Label5.SetVisible(!by_block);
  Combo2.SetVisible(!by_block);
}

bool CampReportForm::CheckPlace() {
  const Required block{Combo1, {"select Block Name", "OVD", MessageIcon::kCritical}, Combo1};
  const Required state{Combo2, {"select State Name", "OVD", MessageIcon::kCritical}, Combo2};
  return CheckSelections({ChosenArea() == Area::kBlock ? block : state,
                          {Combo4, {"Select Center Type", "OVD", MessageIcon::kCritical}, Combo4}});
}

void CampReportForm::BuildReport(std::string_view title_selection, Button& print) {
  if (!CheckPlace()) return;
  ShowHourglass();
  printtitleinsheet(title_selection);
  sheet().NameSheet(std::string(Combo4.trimmed()) + " REPORT");
  BuildList();
  print.SetEnabled(true);
  ShowDefaultPointer();
}

CampCoverage CampReportForm::ReadCoverage() {
  CampCoverage coverage;
  coverage.period = ReadPeriod();
  coverage.area = ChosenArea();
  coverage.area_code = coverage.area == Area::kBlock ? CodeOf(database(), lookup::kBlockExactly, Combo1)
                                                     : CodeOf(database(), lookup::kStateExactly, Combo2);
  coverage.location = LocationCode(Combo4);
  coverage.camp = Option2.on() ? Camp::kSurgeon : Camp::kAssistant;
  return coverage;
}

void CampReportForm::TellNoChildren() {
  Tell(machine(), {"No Any Children List", "OVD", MessageIcon::kQuestion});
}

}  // namespace ovindra
