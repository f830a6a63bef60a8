// The register of each sankul, and its schools without children, beside the same lists made row by row.
#include <algorithm>

#include <gtest/gtest.h>

#include "tests/unit/reports/programme_tables.h"

namespace ovindra {
namespace {

constexpr int kFirstRow = 6;
constexpr int kColumns = 13;
/// Places in a line, which is without its number.
enum Place : std::size_t { kDate, kCenter, kSchool, kTeachers, kScreened = 9, kDefected, kPercent };

std::string Sum(const std::string& a, const std::string& b) {
  return std::to_string(std::stol(a) + std::stol(b));
}

/// The lines with what the marks stand for; that of a line which says the same as the one above must be one.
std::vector<SheetLine> WithoutDittos(std::vector<SheetLine> lines) {
  for (std::size_t i = 1; i < lines.size(); ++i) {
    for (const Place column : {kDate, kCenter}) {
      EXPECT_NE(lines[i][column], lines[i - 1][column]);
      if (lines[i][column] == "\"") lines[i][column] = lines[i - 1][column];
    }
  }
  return lines;
}

struct Register {
  explicit Register(const DemonstrationDatabases& databases)
      : lines(AllOf(*databases.screening, "Screened_School")),
        persons(KeyedBy("Center_ID", AllOf(*databases.screening, "TPerson_Master"))),
        centers(KeyedBy("Center_ID", AllOf(*databases.screening, "Center_Master1"))),
        schools(KeyedBy("SC_ID", AllOf(*databases.screening, "School_Master"))),
        children(KeyedBy("School_ID", AllOf(*databases.screening, "Enroll_Master"))) {}

  /// The lines of a sankul, those of schools without children alone where it is asked, as far as the screened
  /// and then the defected.
  std::multiset<SheetLine> Of(const std::string& sankul, bool without_children) const {
    std::multiset<SheetLine> expected;
    for (const TableRow& line : lines) {
      const std::string school = line.at("School_ID");
      if (line.at("Sankul_ID") != sankul || (without_children && children.count(school) > 0)) continue;
      std::vector<std::string> teachers;
      for (const TableRow& person : ovindra::Of(persons, school))
        teachers.push_back(person.at("Person_Name"));
      long defected = 0;
      for (const TableRow& child : ovindra::Of(children, school)) defected += child.at("Condition") == "D";
      SheetLine cells{ShortForm(line.at("Screening_Date")),
                      centers.find(line.at("Center_ID"))->second.at("Center_Name"),
                      schools.find(school)->second.at("SC_Name"), Joined(teachers)};
      for (const auto& [boys, girls] :
           {std::pair("TNo_of_Boys", "TNo_of_Girls"), std::pair("Screened_Boys", "Screened_Girls")})
        cells.insert(cells.end(), {line.at(boys), line.at(girls), Sum(line.at(boys), line.at(girls))});
      if (!without_children) cells.push_back(defected == 0 ? "" : std::to_string(defected));
      expected.insert(cells);
    }
    return expected;
  }

  TableRows lines;
  Keyed persons;
  Keyed centers;
  Keyed schools;
  Keyed children;
};

void PickSankul(ReportDesk& desk, const TableRow& block, const std::string& sankul) {
  desk.Pick("Combo2", block.at("Block_Name"));
  desk.Pick("Combo1", sankul);
}

/// Visits each sankul of the programme with its block.
template <typename Visit>
void ForEachSankul(Visit visit) {
  for (const TableRow& block : Facts().blocks) {
    for (const auto& [code, sankul] : Facts().sankuls) {
      if (sankul.at("Block_Code") == block.at("Block_Code")) visit(block, code, sankul.at("Sankul_Name"));
    }
  }
}

TEST(SankulRegister, HoldsEachLineWithItsTeachersAndDefected) {
  const Register programme(Demonstration());
  ReportDesk desk("frmsankulwiserpt");
  std::size_t total = 0;
  ForEachSankul([&](const TableRow& block, const std::string& code, const std::string& name) {
    PickSankul(desk, block, name);
    desk.Click("Command1");
    std::vector<SheetLine> lines = WithoutDittos(desk.Lines(kFirstRow, kColumns));
    for (SheetLine& line : lines) {
      const double defected = line[kDefected].empty() ? 0 : std::stod(line[kDefected]);
      EXPECT_NEAR(std::stod(line[kPercent]), defected * 100 / std::stod(line[kScreened]), 0.00501) << name;
      line.pop_back();
    }
    EXPECT_TRUE(std::is_sorted(lines.begin(), lines.end(), [](const SheetLine& a, const SheetLine& b) {
      return a[kCenter] < b[kCenter];
    }));
    EXPECT_EQ(Normal(lines, {kTeachers}), programme.Of(code, false)) << name;
    total += lines.size();
  });
  EXPECT_EQ(total, programme.lines.size());
}

TEST(SankulRegister, NamesTheSchoolsWithoutChildren) {
  const DemonstrationDatabases databases = MakeDemonstration();
  // Where a child is of no school, no school is without children.
  databases.screening->Run(WholeStatement(
      "delete from Enroll_Master where School_ID is null or School_ID in ('SC1','SC5','SC9')"));
  const Register programme(databases);
  ReportDesk desk("frmsankulwiserpt", databases);
  std::size_t total = 0;
  ForEachSankul([&](const TableRow& block, const std::string& code, const std::string& name) {
    PickSankul(desk, block, name);
    desk.Click("Command5");
    const auto expected = programme.Of(code, true);
    EXPECT_EQ(Normal(WithoutDittos(desk.Lines(kFirstRow, kColumns - 2)), {kTeachers}), expected) << name;
    EXPECT_EQ(desk.TakeMessages(), expected.empty() ? std::vector<std::string>{"No. Any Nill School"}
                                                    : std::vector<std::string>{});
    total += expected.size();
  });
  EXPECT_GT(total, 0U);
}

}  // namespace
}  // namespace ovindra
