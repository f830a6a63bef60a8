// The road of each child of a block, from the teacher's screening to the hospital, beside the same gathered
// table by table.
#include <gtest/gtest.h>

#include "tests/unit/reports/programme_tables.h"

namespace ovindra {
namespace {

constexpr Date kFrom{std::chrono::year(2015), std::chrono::April, std::chrono::day(1)};
constexpr Date kTo{std::chrono::year(2015), std::chrono::December, std::chrono::day(31)};
constexpr int kFirstRow = 6;
constexpr int kColumns = 22;

/// Places in a line, which is without its number.
constexpr std::size_t kDiagnosis = 17;
constexpr std::size_t kTreatment = 18;
constexpr std::size_t kHospitalDiagnosis = 20;

bool IsInPeriod(const std::string& day) {
  return day >= "2015-04-01" && day <= "2015-12-31";
}

SheetLine Road(const TableRow& child, const Keyed& records) {
  SheetLine line{child.at("Enroll_No"),
                 child.at("Child_Name"),
                 child.at("Fname"),
                 child.at("Age"),
                 child.at("Gender"),
                 child.at("Class"),
                 Facts().School(child).at("SC_Name")};
  line.push_back(child.at("Condition") == "D" ? "Defected" : "");
  const std::vector<TableRow> examined = Of(records, child.at("Enroll_No"));
  std::vector<std::string> eyes(8);
  std::vector<std::string> diagnoses;
  std::vector<std::string> treatments;
  if (examined.empty()) {
    line.emplace_back("Absent");
  } else {
    const TableRow& record = examined.front();
    line.emplace_back(record.at("Eye_Condition") == "D" ? "Defected" : "Normal");
    std::size_t eye = 0;
    for (const char* column :
         {"RE_Sph", "RE_Cyl", "RE_Axis", "RE_VA", "LE_Sph", "LE_Cyl", "LE_Axis", "LE_VA"})
      eyes[eye++] = record.at(column);
    diagnoses = Facts().Diagnoses(Facts().assistants, record);
    treatments = Facts().Treatments(Facts().assistants, record);
  }
  line.insert(line.end(), eyes.begin(), eyes.end());
  const std::string& mr_no = child.at("Mr_No");
  line.insert(line.end(), {Joined(diagnoses), Joined(treatments), mr_no,
                           mr_no.empty() ? "" : Joined(Facts().HospitalDiagnoses(mr_no))});
  return line;
}

TEST(IndividualChildren, RoadsOfEachBlock) {
  const Keyed records = KeyedBy("Enroll_No", Facts().assistants.records);
  ReportDesk desk("Form3");
  desk.SetPeriod(kFrom, kTo);
  std::size_t examined = 0;
  std::size_t turned_up = 0;
  for (const TableRow& block : Facts().blocks) {
    std::multiset<SheetLine> expected;
    for (const auto& [number, child] : Facts().children) {
      if (child.at("Block_Code") != block.at("Block_Code") || !IsInPeriod(child.at("Enroll_Date")) ||
          !Facts().schools.contains(child.at("School_ID")))
        continue;
      ASSERT_LE(records.count(number), 1U) << "which of two examinations a line shows is not told here";
      examined += records.count(number);
      turned_up += child.at("Mr_No").empty() ? 0 : 1;
      expected.insert(Road(child, records));
    }
    desk.Pick("Combo1", block.at("Block_Name"));
    desk.Click("Command1");
    EXPECT_TRUE(desk.messages().empty());
    EXPECT_EQ(Normal(desk.Lines(kFirstRow, kColumns), {kDiagnosis, kTreatment, kHospitalDiagnosis}), expected)
        << block.at("Block_Name");
  }
  EXPECT_GT(examined, 0U);
  EXPECT_GT(turned_up, 0U);
}

}  // namespace
}  // namespace ovindra
