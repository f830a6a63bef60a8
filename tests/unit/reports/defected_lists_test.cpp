// What the form of the defected children makes besides its report, beside the same made record by record: the
// list of the grant's programme, the list by category for the spreadsheet application, and the compile.
#include <algorithm>

#include <gtest/gtest.h>

#include "tests/unit/reports/programme_tables.h"

namespace ovindra {
namespace {

constexpr Date kFrom{std::chrono::year(2014), std::chrono::October, std::chrono::day(1)};
constexpr Date kTo{std::chrono::year(2016), std::chrono::March, std::chrono::day(31)};
constexpr int kFirstRow = 6;

constexpr const char* kEyes[] = {"RE_Sph", "RE_Cyl", "RE_Axis", "RE_VA",
                                 "LE_Sph", "LE_Cyl", "LE_Axis", "LE_VA"};

/// The treatments of a cell without the remark, which stands behind the first if that is spectacles.
std::string WithoutRemark(std::string cell) {
  const std::size_t slash = cell.find('/');
  if (slash == std::string::npos) return cell;
  EXPECT_TRUE(cell.starts_with("SPECTACLE PRESCRIBED/")) << cell;
  const std::size_t end = cell.find(',', slash);
  return cell.erase(slash, end == std::string::npos ? end : end - slash);
}

std::string RemarkBehind(const std::string& cell) {
  const std::string after = cell.substr(std::min(cell.find('/'), cell.size()));
  return after.substr(0, after.find(','));
}

/// The remark that a cell of treatments may show: that of the child's spectacles.
std::string RemarkOfSpectacles(const TableRow& record) {
  for (const TableRow& treatment : Of(Facts().assistants.treatments, record.at("Child_RecordNo"))) {
    if (treatment.at("Treatment_Code") == "2") return "/" + RemarkText(treatment.at("Remark"));
  }
  return {};
}

SheetLine GrantLine(const TableRow& record, const TableRow& center, const TableRow& block,
                    const std::string& user) {
  const TableRow& child = Facts().Child(record);
  SheetLine line{ShortForm(child.at("Enroll_Date")),
                 ShortForm(child.at("Screened_Date")),
                 ShortForm(record.at("Record_Date")),
                 child.at("Enroll_No"),
                 child.at("Child_Name"),
                 child.at("Fname"),
                 child.at("Age"),
                 child.at("Gender") == "M" ? "MALE" : "FEMALE",
                 child.at("Class"),
                 Joined(Facts().Diagnoses(Facts().assistants, record)),
                 Joined(Facts().Treatments(Facts().assistants, record)),
                 center.at("Center_Name"),
                 Facts().School(child).at("SC_Name"),
                 block.at("Block_Name"),
                 user};
  for (const char* eye : kEyes) line.push_back(record.at(eye));
  line.push_back(record.at("Eye_Condition"));
  return line;
}

TEST(DefectedLists, GrantHoldsEveryExaminationOfItsProgramme) {
  const Keyed centers = KeyedBy("Center_ID", AllOf(DemonstrationDatabase(), "Center_Master1"));
  const Keyed users = KeyedBy("User_Code", AllOf(DemonstrationDatabase(), "User_Master"));
  const Keyed blocks = KeyedBy("Block_Code", Facts().blocks);
  std::multiset<SheetLine> expected;
  std::map<std::string, std::string> remarks;
  for (const TableRow& record : Facts().assistants.records) {
    const TableRow& child = Facts().Child(record);
    const auto center = centers.find(child.at("Center_ID"));
    const auto block = blocks.find(child.at("Block_Code"));
    if (!child.at("Enroll_No").starts_with("A") || child.at("Programme_Code") != "GRANT2016" ||
        center == centers.end() || block == blocks.end() || !Facts().schools.contains(child.at("School_ID")))
      continue;
    const auto user = users.find(record.at("CodedBy"));
    expected.insert(GrantLine(record, center->second, block->second,
                              user == users.end() ? record.at("CodedBy") : user->second.at("User_Name")));
    remarks[child.at("Enroll_No")] = RemarkOfSpectacles(record);
  }
  ReportDesk desk("frmdefected");
  desk.SetPeriod(kTo, kFrom);  // a period without a day: the list does not heed it
  desk.Pick("Combo1", "ANGANWADI CENTER");
  desk.Click("Command7");
  std::vector<SheetLine> lines = desk.Lines(kFirstRow, 25);
  ASSERT_FALSE(lines.empty());
  for (SheetLine& line : lines) {
    const std::string remark = RemarkBehind(line[10]);
    EXPECT_TRUE(remark.empty() || remark == remarks.at(line[3])) << line[3];
    line[10] = WithoutRemark(line[10]);
  }
  EXPECT_EQ(Normal(lines, {9, 10}), expected);
}

TEST(DefectedLists, SpreadsheetNamesTheCategoriesAndCountsTheDoubles) {
  const Keyed diagnosis_masters =
      KeyedBy("Diagnosis_Code", AllOf(DemonstrationDatabase(), "Diagnosis_Master"));
  const Keyed categories = KeyedBy("Category_Code", AllOf(DemonstrationDatabase(), "Category_Master"));
  const struct {
    const char* option;
    const Examinations& examinations;
  } kCamps[] = {{"Option1", Facts().assistants}, {"Option2", Facts().surgeons}};
  for (const auto& camp : kCamps) {
    std::map<std::string, std::set<std::string>> of_child;
    for (const TableRow& record : camp.examinations.records) {
      const TableRow& child = Facts().Child(record);
      const std::string& enrolled = child.at("Enroll_Date");
      if (record.at("Eye_Condition") != "D" || !child.at("Enroll_No").starts_with("H") ||
          enrolled < "2014-10-01" || enrolled > "2016-03-31")
        continue;
      for (const TableRow& row : Of(camp.examinations.diagnoses, record.at("Child_RecordNo"))) {
        const TableRow& master = diagnosis_masters.find(row.at("Diagnosis_Code"))->second;
        of_child[child.at("Enroll_No")].insert(
            categories.find(master.at("Category_Code"))->second.at("Category"));
      }
    }
    std::multiset<SheetLine> expected;
    std::size_t doubles = 0;
    for (const auto& [number, names] : of_child) {
      const TableRow& child = Facts().children.find(number)->second;
      expected.insert({child.at("Child_Name") + "(" + number + ")", child.at("Fname"), child.at("Age"),
                       child.at("Gender"), child.at("Class"), Joined({names.begin(), names.end()})});
      doubles += names.size() - 1;
    }
    ReportDesk desk("frmdefected");
    desk.SetPeriod(kFrom, kTo);
    desk.SwitchOn(camp.option);
    desk.Pick("Combo1", "HOSPITAL");
    desk.Click("Command1");
    desk.Press(KeyName::kF8);
    desk.Click("Command5");
    const auto lines = NumberedLines(desk.spreadsheet(), kFirstRow, 7);
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(Normal(lines, {5}), expected) << camp.option;
    EXPECT_EQ(desk.spreadsheet().Text(kFirstRow + static_cast<int>(lines.size()), 1),
              "Double-" + std::to_string(doubles));
  }
}

/// A demonstration whose first block is that of the compile; of its children a part was screened, and of
/// those a part examined, within the compile's days.
DemonstrationDatabases DatabasesOfTheCompile() {
  DemonstrationDatabases databases = MakeDemonstration();
  for (const char* statement :
       {"update Enroll_Master set Block_Code=19 where Block_Code=1",
        "update Enroll_Master set Screened_Date='06/11/2008' where Screened='Y' and Gender='M'",
        "update Enroll_Master set Screened_Date='08/01/2007' where Screened='Y' and Gender='F'",
        "update Enroll_Master set Screened_Date='06/12/2008' where Screened='Y' and Age>13",
        "update Child_Record set Record_Date='01/15/2008'",
        "update Child_Record set Record_Date='07/31/2007' where RE_VA='6/9'"})
    databases.screening->Run(WholeStatement(statement));
  return databases;
}

TEST(DefectedLists, CompileGathersTheChildrenOfOneBlock) {
  const DemonstrationDatabases databases = DatabasesOfTheCompile();
  const ProgrammeTables tables(databases);
  const Keyed records = KeyedBy("Enroll_No", tables.assistants.records);
  ReportDesk desk("frmdefected", databases);
  desk.Click("Command6");
  EXPECT_EQ(desk.TakeMessages(), std::vector<std::string>{" OK"});
  const Keyed compiled = KeyedBy("Enroll_no", AllOf(*databases.screening, "Temp61"));
  std::size_t expected_rows = 0;
  std::size_t treated = 0;
  for (const auto& [number, child] : tables.children) {
    const std::string& screened = child.at("Screened_Date");
    const bool belongs = number.starts_with("H") && child.at("Block_Code") == "19" &&
                         child.at("Screened") == "Y" && child.at("Condition") == "D" &&
                         tables.schools.contains(child.at("School_ID")) && screened >= "2007-08-01" &&
                         screened <= "2008-06-11";
    ASSERT_EQ(compiled.count(number), belongs ? 1U : 0U) << number;
    if (!belongs) continue;
    ++expected_rows;
    const TableRow& row = compiled.find(number)->second;
    for (const char* column : {"Child_Name", "Age", "Gender", "Attend", "Mr_No"})
      EXPECT_EQ(row.at(column == std::string("Mr_No") ? "Mr_no" : column), child.at(column)) << number;
    EXPECT_EQ(row.at("SC_Name"), tables.School(child).at("SC_Name"));
    EXPECT_EQ(row.at("remark"), "");
    const auto record = records.find(number);
    if (record == records.end()) {
      EXPECT_EQ(row.at("RE_VA") + row.at("Diagnosis") + row.at("Treatment"), "") << number;
      continue;
    }
    for (const char* eye : kEyes) EXPECT_EQ(row.at(eye), record->second.at(eye)) << number;
    EXPECT_EQ(Sorted(row.at("Diagnosis")), Joined(tables.Diagnoses(tables.assistants, record->second)));
    const auto treatments = tables.Treatments(tables.assistants, record->second);
    const bool in_days = record->second.at("Record_Date") == "2008-01-15";
    if (!in_days || treatments.empty()) {
      EXPECT_EQ(row.at("Treatment"), "") << number;
    } else {
      EXPECT_NE(std::find(treatments.begin(), treatments.end(), row.at("Treatment")), treatments.end());
      ++treated;
    }
  }
  EXPECT_EQ(compiled.size(), expected_rows);
  EXPECT_GT(treated, 0U);
}

}  // namespace
}  // namespace ovindra
