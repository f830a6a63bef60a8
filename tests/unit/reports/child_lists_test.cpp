// The lists of children on the demonstration programme beside the same lists made child by child.
#include <algorithm>
#include <set>

#include <gtest/gtest.h>

#include "tests/unit/reports/programme_tables.h"

namespace ovindra {
namespace {

using std::chrono::month;

constexpr int kFirstRow = 6;
constexpr Date kFrom{std::chrono::year(2015), month(4), std::chrono::day(1)};
constexpr Date kTo{std::chrono::year(2016), month(3), std::chrono::day(31)};

bool IsInPeriod(const std::string& day) {
  return day >= "2015-04-01" && day <= "2016-03-31";
}

/// Which children a list of a camp is about.
struct Choice {
  const Examinations& examinations;
  const char* area_column;
  std::string area;
  std::string location;
  std::string treatment;
};

template <typename Visit>
void ForEachTreated(const Choice& choice, Visit visit) {
  for (const TableRow& record : choice.examinations.records) {
    const TableRow& child = Facts().Child(record);
    if (!IsInPeriod(record.at("Record_Date")) || child.at(choice.area_column) != choice.area ||
        !child.at("Enroll_No").starts_with(choice.location))
      continue;
    for (const TableRow& row : Of(choice.examinations.treatments, record.at("Child_RecordNo"))) {
      if (row.at("Treatment_Code") == choice.treatment) visit(child, row);
    }
  }
}

SheetLine Person(const TableRow& child, const std::string& name) {
  return {name, child.at("Fname"), child.at("Age"), child.at("Gender"), child.at("Class")};
}

enum class Shape { kSpectacles, kWithSchool, kPlain };

std::multiset<SheetLine> ReferredLines(const Choice& choice, Shape shape) {
  std::map<std::string, std::vector<std::string>> diagnoses;
  for (const TableRow& record : choice.examinations.records) {
    if (!IsInPeriod(record.at("Record_Date"))) continue;
    for (const std::string& name : Facts().Diagnoses(choice.examinations, record))
      diagnoses[record.at("Enroll_No")].push_back(name);
  }
  std::set<SheetLine> lines;
  ForEachTreated(choice, [&](const TableRow& child, const TableRow& treatment) {
    const std::string number = child.at("Enroll_No");
    SheetLine line = Person(child, child.at("Child_Name") + "(" + number + ")");
    if (shape == Shape::kSpectacles) line.push_back(RemarkText(treatment.at("Remark")));
    line.push_back(Joined(diagnoses[number]));
    if (shape != Shape::kWithSchool) {
      lines.insert(line);
      return;
    }
    for (const auto& [sankul, school] : Facts().SankulsAndSchools(child)) {
      SheetLine with_school = line;
      with_school.insert(with_school.end(), {sankul, school});
      lines.insert(with_school);
    }
  });
  return {lines.begin(), lines.end()};
}

/// Gets the list for every location of the programme and compares; gives the number of lines.
template <typename Expected>
std::size_t CompareForEachLocation(ReportDesk& desk, int columns, std::initializer_list<std::size_t> joined,
                                   const char* location_combo, Expected expected) {
  std::size_t total = 0;
  for (const TableRow& location : Facts().locations) {
    desk.Pick(location_combo, location.at("Location_Name"));
    desk.Click("Command1");
    const auto lines = Normal(desk.Lines(kFirstRow, columns), joined);
    EXPECT_EQ(lines, expected(location.at("Location_ID"))) << location.at("Location_Name");
    const auto messages = desk.TakeMessages();
    EXPECT_TRUE(messages.empty() || lines.empty()) << messages.front();
    total += lines.size();
  }
  return total;
}

/// The same for every block too; some of the lists must hold a line.
template <typename Expected>
void CompareForEachBlock(ReportDesk& desk, int columns, std::initializer_list<std::size_t> joined,
                         const char* block_combo, const char* location_combo, Expected expected) {
  desk.SetPeriod(kFrom, kTo);
  std::size_t total = 0;
  for (const TableRow& block : Facts().blocks) {
    desk.Pick(block_combo, block.at("Block_Name"));
    total += CompareForEachLocation(desk, columns, joined, location_combo, [&](const std::string& location) {
      return expected(block.at("Block_Code"), location);
    });
  }
  EXPECT_GT(total, 0U);
}

TEST(ChildLists, ReferredOfEachBlock) {
  ReportDesk desk("frmreferallist");
  CompareForEachBlock(
      desk, 9, {5}, "Combo1", "Combo4", [](const std::string& block, const std::string& location) {
        return ReferredLines({Facts().assistants, "Block_Code", block, location, "3"}, Shape::kWithSchool);
      });
}

TEST(ChildLists, ReferredOfAState) {
  ReportDesk desk("frmreferallist");
  desk.SetPeriod(kFrom, kTo);
  desk.SelectTab(1);
  const TableRow& state = Facts().states.front();
  desk.Pick("Combo2", state.at("State_Name"));
  struct {
    const char* option;
    const Examinations& examinations;
    const char* treatment;
    const char* description;
  } const kCases[] = {{"Option1", Facts().assistants, "3", "REFER TO OS CAMP"},
                      {"Option1", Facts().assistants, "2", "SPECTACLE PRESCRIBED"},
                      {"Option2", Facts().surgeons, "4", "REFER TO EYE HOSPITAL"},
                      {"Option2", Facts().surgeons, "2", "SPECTACLE PRESCRIBED"}};
  for (const auto& c : kCases) {
    SCOPED_TRACE(std::string(c.option) + " " + c.description);
    desk.SwitchOn(c.option);
    desk.Pick("Combo3", c.description);
    const Shape shape = std::string_view(c.treatment) == "2" ? Shape::kSpectacles : Shape::kPlain;
    const std::size_t diagnosis = shape == Shape::kSpectacles ? 6 : 5;
    const std::size_t total = CompareForEachLocation(
        desk, static_cast<int>(diagnosis) + 2, {diagnosis}, "Combo4", [&](const std::string& location) {
          return ReferredLines({c.examinations, "State_Code", state.at("State_Code"), location, c.treatment},
                               shape);
        });
    EXPECT_GT(total, 0U);
  }
}

TEST(ChildLists, SpectaclesOfEachBlock) {
  ReportDesk desk("frmspectacle");
  for (const char* option : {"Option1", "Option2"}) {
    desk.SwitchOn(option);
    const Examinations& examinations =
        std::string_view(option) == "Option1" ? Facts().assistants : Facts().surgeons;
    const auto spectacles = [&](const std::string& block, const std::string& location) {
      std::set<SheetLine> lines;
      ForEachTreated({examinations, "Block_Code", block, location, "2"},
                     [&](const TableRow& child, const TableRow& treatment) {
                       SheetLine line = Person(child, child.at("Child_Name"));
                       line.push_back(RemarkText(treatment.at("Remark")));
                       lines.insert(line);
                     });
      return std::multiset<SheetLine>(lines.begin(), lines.end());
    };
    CompareForEachBlock(desk, 7, {}, "Combo1", "Combo4", spectacles);
  }
}

std::multiset<SheetLine> TurnupLines(const std::string& block, const std::string& location) {
  std::map<std::string, std::vector<std::string>> diagnoses;
  std::map<std::string, std::set<SheetLine>> of_patient;
  for (const TableRow& record : Facts().assistants.records) {
    const TableRow& child = Facts().Child(record);
    if (!IsInPeriod(child.at("Enroll_Date")) || child.at("Attend") != "Y" ||
        child.at("Block_Code") != block || !child.at("Enroll_No").starts_with(location))
      continue;
    for (const TableRow& row : Of(Facts().assistants.treatments, record.at("Child_RecordNo"))) {
      if (row.at("Treatment_Code") != "4") continue;
      for (const std::string& name : Facts().Diagnoses(Facts().assistants, record))
        diagnoses[child.at("Enroll_No")].push_back(name);
      for (const auto& [sankul, school] : Facts().SankulsAndSchools(child)) {
        SheetLine line = Person(child, child.at("Child_Name"));
        line.insert(line.begin(), child.at("Mr_No"));
        line.insert(line.end(), {school, sankul, child.at("Enroll_No")});
        of_patient[child.at("Mr_No")].insert(line);
      }
    }
  }
  std::multiset<SheetLine> lines;
  for (const auto& [mr_no, same] : of_patient) {
    std::vector<std::string> hospital;
    for (std::size_t row = 0; row < same.size(); ++row) {
      for (const std::string& name : Facts().HospitalDiagnoses(mr_no)) hospital.push_back(name);
    }
    for (SheetLine line : same) {
      line.back() = Joined(diagnoses[line.back()]);
      line.push_back(Joined(hospital));
      lines.insert(line);
    }
  }
  return lines;
}

TEST(ChildLists, TurnedUpOfEachBlock) {
  ReportDesk desk("frmturnup");
  CompareForEachBlock(desk, 11, {8, 9}, "Combo2", "Combo1", TurnupLines);
}

TEST(ChildLists, MissedOfEachSchool) {
  ReportDesk desk("Form1");
  std::set<std::string> examined;
  for (const TableRow& record : Facts().assistants.records) examined.insert(record.at("Enroll_No"));
  std::size_t total = 0;
  for (const auto& [code, school] : Facts().schools) {
    std::multiset<SheetLine> expected;
    for (const auto& [number, child] : Facts().children) {
      if (child.at("School_ID") != code || child.at("Screened") != "Y" || examined.contains(number)) continue;
      SheetLine line = Person(child, child.at("Child_Name"));
      line.insert(line.begin(), number);
      expected.insert(line);
    }
    desk.Pick("Combo3", school.at("SC_Name"));
    desk.Click("Command1");
    EXPECT_EQ(Normal(desk.Lines(kFirstRow, 7), {}), expected) << school.at("SC_Name");
    desk.TakeMessages();
    total += expected.size();
  }
  EXPECT_GT(total, 0U);
}

}  // namespace
}  // namespace ovindra
