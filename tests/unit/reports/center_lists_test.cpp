// The lists of children on the demonstration programme beside the same gathered child by child.
#include <algorithm>
#include <functional>
#include <sstream>

#include <gtest/gtest.h>

#include "core/entry/lookups.h"
#include "tests/unit/reports/demonstration.h"
#include "tools/setup/demo/demo.h"

namespace ovindra {
namespace {

using std::chrono::month;
using Rows = std::vector<std::vector<std::string>>;

constexpr Date kFrom{std::chrono::year(2014), month(10), std::chrono::day(1)};
constexpr Date kTo{std::chrono::year(2016), month(3), std::chrono::day(31)};
constexpr int kFirstRow = 6;

bool IsCovered(Date day) {
  return day >= kFrom && day <= kTo;
}

/// The rows below the headings without their numbers, which must run from 1.
Rows RowsOn(const ReportDesk& desk, int last_column) {
  Rows rows;
  for (int row = kFirstRow; row <= desk.sheet().last_row(); ++row) {
    std::vector<std::string> cells = desk.Row(row, last_column);
    EXPECT_EQ(cells.front(), std::to_string(row - kFirstRow + 1));
    cells.erase(cells.begin());
    rows.push_back(std::move(cells));
  }
  return rows;
}

Rows Sorted(Rows rows) {
  std::sort(rows.begin(), rows.end());
  return rows;
}

void ExpectInOrderOf(std::size_t column, const Rows& rows) {
  EXPECT_TRUE(std::is_sorted(rows.begin(), rows.end(),
                             [&](const auto& a, const auto& b) { return a[column] < b[column]; }));
}

Rows Children(const std::function<bool(const ChildFacts&)>& belongs, bool with_class) {
  Rows rows;
  for (const auto& [number, child] : DemonstrationFacts().children) {
    if (!belongs(child)) continue;
    rows.push_back({number, child.name, child.father, child.age, child.gender});
    if (with_class) rows.back().push_back(child.school_class);
  }
  return Sorted(rows);
}

std::string CodeOfCenter(const Lookup& look_up, std::string_view name) {
  return Trim(DemonstrationDatabase().Run(sql(look_up.statement, quoted(name))).At(0));
}

struct Place {
  const char* name;
  const char* type;
  char location;
  const Lookup* enrolled_center;
  const Lookup* screened_center;
};

class CenterLists : public testing::TestWithParam<Place> {
 protected:
  /// Has the list shown for some centers, and hands each to the check with its code.
  void ForSomeCenters(ReportDesk& desk, const Lookup& look_up,
                      const std::function<void(const std::string&)>& check) {
    constexpr int kCenters = 3;
    const int count = std::min<int>(kCenters, desk.Entries("Combo2").count());
    ASSERT_GT(count, 0);
    for (int i = 0; i < count; ++i) {
      const std::string center = desk.Entries("Combo2").At(i).text;
      desk.Pick("Combo2", center);
      desk.Click("Command1");
      check(CodeOfCenter(look_up, center));
    }
  }

  std::size_t listed_ = 0;
};

TEST_P(CenterLists, OfTheEnrolled) {
  ReportDesk desk("frmenrolllist");
  desk.SetPeriod(kFrom, kTo);
  desk.Pick("Combo4", "GRANT 2016");
  desk.Pick("Combo1", GetParam().type);
  ForSomeCenters(desk, *GetParam().enrolled_center, [&](const std::string& center) {
    const Rows rows = RowsOn(desk, 7);
    listed_ += rows.size();
    EXPECT_EQ(Sorted(rows), Children(
                                [&](const ChildFacts& child) {
                                  return child.enroll_no.front() == GetParam().location &&
                                         child.center == center && IsCovered(child.enrolled);
                                },
                                true));
    ExpectInOrderOf(1, rows);
  });
  EXPECT_GT(listed_, 0U);
}

TEST_P(CenterLists, OfTheScreened) {
  const struct {
    const char* option;
    const char* condition;
  } kOptions[] = {{"Option1", ""}, {"Option2", "N"}, {"Option3", "D"}};
  ReportDesk desk("frmscreenedlist");
  desk.SetPeriod(kFrom, kTo);
  desk.Pick("Combo1", GetParam().type);
  for (const auto& option : kOptions) {
    desk.SwitchOn(option.option);
    ForSomeCenters(desk, *GetParam().screened_center, [&](const std::string& center) {
      const Rows rows = RowsOn(desk, 6);
      listed_ += rows.size();
      EXPECT_EQ(Sorted(rows), Children(
                                  [&](const ChildFacts& child) {
                                    return child.enroll_no.front() == GetParam().location &&
                                           child.center == center && child.screened == "Y" &&
                                           child.screened_on && IsCovered(*child.screened_on) &&
                                           (*option.condition == '\0' || child.condition == option.condition);
                                  },
                                  false));
    });
  }
  // The demonstration stores its anganwadi children under their screening centers.
  EXPECT_EQ(listed_ > 0, GetParam().location != 'A');
}

INSTANTIATE_TEST_SUITE_P(
    Places, CenterLists,
    testing::Values(Place{"Vision", "VISION CENTER", 'V', &lookup::kVisionCenter, &lookup::kVisionCenter},
                    Place{"Hospital", "HOSPITAL", 'H', &lookup::kHospital, &lookup::kHospital},
                    Place{"Anganwadi", "ANGANWADI CENTER", 'A', &lookup::kScreeningCenter,
                          &lookup::kAnganwadiCenter}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(EnrollReport, CountsByAgeAndGender) {
  const struct {
    const char* type;
    char location;
  } kTypes[] = {{"HOSPITAL", 'H'}, {"VISION CENTER", 'V'}, {"ANGANWADI CENTER", 'A'}};
  const std::pair<int, int> kAges[] = {{0, 5}, {6, 10}, {11, 15}, {16, 18}};
  ReportDesk desk("frmenrollrpt");
  desk.SetPeriod(kFrom, kTo);
  for (const auto& type : kTypes) {
    desk.Pick("Combo1", type.type);
    desk.Click("Command1");
    int row = 7;
    for (const auto& [youngest, oldest] : kAges) {
      std::vector<std::string> counts;
      for (const bool screened : {false, true}) {
        for (const char* gender : {"M", "F"}) {
          const auto count =
              std::count_if(DemonstrationFacts().children.begin(), DemonstrationFacts().children.end(),
                            [&, from = youngest, to = oldest](const auto& c) {
                              const ChildFacts& child = c.second;
                              if (child.age.empty() || child.enroll_no.front() != type.location) return false;
                              const int age = std::stoi(child.age);
                              return age >= from && age <= to && IsCovered(child.enrolled) &&
                                     child.gender == gender && (!screened || child.screened == "Y");
                            });
          counts.push_back("    " + std::to_string(count));
        }
      }
      const std::vector<std::string> cells = desk.Row(row++, 7);
      EXPECT_EQ(std::vector(cells.begin() + 3, cells.end()), counts) << type.type;
    }
  }
}

/// The parts of a joined cell in order, what stands behind the first treatment's slash taken off.
std::string SortedParts(const std::string& joined) {
  std::vector<std::string> parts;
  std::istringstream stream(joined);
  for (std::string part; std::getline(stream, part, ',');) parts.push_back(part.substr(0, part.find('/')));
  std::sort(parts.begin(), parts.end());
  std::string text;
  for (const std::string& part : parts) text += part + ",";
  return text;
}

TEST(DefectedReport, JoinsWhatEveryExaminationFound) {
  for (const bool surgeons : {false, true}) {
    ReportDesk desk("frmdefected");
    desk.SetPeriod(kFrom, kTo);
    desk.Pick("Combo1", "HOSPITAL");
    if (surgeons) desk.SwitchOn("Option2");
    desk.Click("Command1");
    ASSERT_TRUE(desk.messages().empty()) << desk.messages().front();

    std::map<std::string, std::string> diagnoses;
    std::map<std::string, std::string> treatments;
    const auto& read = surgeons ? DemonstrationFacts().surgeons : DemonstrationFacts().assistants;
    for (const ExaminationFacts& record : read) {
      if (!IsCovered(record.examined)) continue;
      for (const std::string& name : record.diagnoses) diagnoses[record.enroll_no] += name + ",";
    }
    for (const ExaminationFacts& record : DemonstrationFacts().assistants) {
      if (!IsCovered(record.examined)) continue;
      for (const int code : record.treatments)
        treatments[record.enroll_no] += DemonstrationFacts().treatment_names.at(code) + ",";
    }
    Rows expected;
    for (const ExaminationFacts& record : read) {
      if (!IsCovered(record.examined) || record.condition != "D" || record.enroll_no.front() != 'H') continue;
      const ChildFacts& child = DemonstrationFacts().children.at(record.enroll_no);
      expected.push_back({child.name, child.father, child.age, child.gender == "M" ? "MALE" : "FEMALE",
                          child.school_class, SortedParts(diagnoses[record.enroll_no]),
                          SortedParts(treatments[record.enroll_no])});
    }
    Rows rows = RowsOn(desk, 8);
    ASSERT_FALSE(rows.empty());
    ExpectInOrderOf(0, rows);
    for (auto& row : rows) {
      row[5] = SortedParts(row[5]);
      row[6] = SortedParts(row[6]);
    }
    EXPECT_EQ(Sorted(rows), Sorted(expected));
  }
}

}  // namespace
}  // namespace ovindra
