// The figures of the consolidation on the demonstration programme beside the same counted child by child.
#include <algorithm>
#include <set>

#include <gtest/gtest.h>

#include "tests/unit/reports/counted.h"
#include "tests/unit/reports/demonstration.h"
#include "tools/setup/demo/demo.h"

namespace ovindra {
namespace {

/// The percent in hundredths by whole numbers, a tie to the even one.
std::string Percent(long numerator, long denominator) {
  const long scaled = 10000 * numerator;
  long hundredths = scaled / denominator;
  const long twice = 2 * (scaled % denominator);
  if (twice > denominator || (twice == denominator && hundredths % 2 == 1)) ++hundredths;
  std::string text = std::to_string(hundredths / 100);
  if (hundredths % 100 != 0) {
    std::string decimals = std::to_string(100 + hundredths % 100).substr(1);
    if (decimals.back() == '0') decimals.pop_back();
    text += "." + decimals;
  }
  return text + "%";
}

/// Builds the expected column of figures.
class Expectation {
 public:
  explicit Expectation(const Counted& counted) : counted_(counted) {}

  void List(const std::multimap<std::string, long>& lines, bool with_total = true) {
    column_.push_back("");
    long total = 0;
    std::vector<std::string> texts;
    for (const auto& [block, figure] : lines) {
      texts.push_back(std::to_string(figure));
      total += figure;
    }
    std::sort(texts.begin(), texts.end());
    column_.insert(column_.end(), texts.begin(), texts.end());
    if (with_total) column_.push_back(std::to_string(total));
  }
  void Figure(long figure) { column_.push_back(std::to_string(figure)); }
  void Share(long numerator, long denominator) { column_.push_back(Percent(numerator, denominator)); }

  void SchoolLists() {
    std::map<std::string, std::set<std::string>> schools;
    std::multimap<std::string, long> counts;
    std::map<std::string, long> teachers;
    for (const RegisterFacts& row : counted_.facts().registers) {
      if (!counted_.InRegister(row)) continue;
      const std::string block = counted_.NameOf(counted_.facts().schools.at(row.school).block);
      schools[block].insert(row.school);
      teachers[block] += row.teachers;
    }
    for (const auto& [block, members] : schools) counts.emplace(block, static_cast<long>(members.size()));
    List(counts, !counted_.IsDirect());
    if (!counted_.IsDirect()) List({teachers.begin(), teachers.end()});
  }

  /// Centers of one block with equal figures fall together.
  void AnganwadiLists() {
    std::set<std::string> with_children;
    for (const auto& [number, child] : counted_.facts().children) {
      if (counted_.Weight(child) > 0) with_children.insert(child.center);
    }
    std::set<std::pair<std::string, long>> centers;
    std::set<std::pair<std::string, long>> people;
    for (const auto& [id, center] : counted_.facts().anganwadi_centers) {
      if (!with_children.contains(id)) continue;
      centers.emplace(counted_.NameOf(center.block), 1);
      people.emplace(counted_.NameOf(center.block), center.trained);
    }
    List({centers.begin(), centers.end()});
    List({people.begin(), people.end()});
  }

  void ProgrammeLists() {
    std::set<std::string> with_children;
    for (const auto& [number, child] : counted_.facts().children) {
      if (counted_.Weight(child) > 0) with_children.insert(child.school);
    }
    std::map<std::string, long> schools;
    std::map<std::string, long> teachers;
    for (const auto& [id, school] : counted_.facts().schools) {
      if (!with_children.contains(id)) continue;
      ++schools[counted_.NameOf(school.block)];
      teachers[counted_.NameOf(school.block)] += school.trained;
    }
    List({schools.begin(), schools.end()});
    List({teachers.begin(), teachers.end()});
  }

  void Screening(const char* screener, bool from_register) {
    const auto is_screened = [&](const ChildFacts& child) {
      return child.screened == "Y" && child.screened_by == screener;
    };
    enrolled_ = from_register ? counted_.Register(&RegisterFacts::enrolled)
                              : counted_.Children([](const ChildFacts&) { return true; });
    screened_ = from_register ? counted_.Register(&RegisterFacts::screened) : counted_.Children(is_screened);
    const long missed =
        from_register ? enrolled_ - screened_
                      : counted_.Children([](const ChildFacts& child) { return child.screened == "N"; });
    identified_ = counted_.Children(
        [&](const ChildFacts& child) { return is_screened(child) && child.condition == "D"; });
    for (const long figure : {enrolled_, screened_, missed, identified_}) Figure(figure);
    Share(screened_, enrolled_);
    Share(missed, enrolled_);
    Share(identified_, from_register ? screened_ : enrolled_);
    defective_ = identified_;
  }

  void Examinations() {
    using Count = Counted::Count;
    const long examined = counted_.Records(false, Count::kRows, [](const ChildFacts& child, const auto&) {
      return child.condition == "D" ? 1 : 0;
    });
    const long missed = counted_.Children([&](const ChildFacts& child) {
      return child.condition == "D" && !counted_.WasExaminedByAssistant(child.enroll_no);
    });
    defective_ = Defective(false);
    for (const long figure : {examined, missed, defective_}) Figure(figure);
    Share(missed, identified_);
    Share(defective_, examined);
  }

  void Camp() {
    using Count = Counted::Count;
    column_.push_back("");
    const long examined = counted_.Records(true, Count::kRows, [](const ChildFacts& child, const auto&) {
      return child.condition == "D" ? 1 : 0;
    });
    const long direct = counted_.Records(true, Count::kRows, [&](const ChildFacts& child, const auto&) {
      return counted_.WasExaminedByAssistant(child.enroll_no) ? 0 : 1;
    });
    defective_ = Defective(true);
    for (const long figure : {examined, direct, defective_}) Figure(figure);
    Share(defective_, examined);
  }

  void EyeDefects(bool surgeons) {
    for (const int category : {1, 2, 3}) CountAndShare(surgeons, category);
    Share(counted_.Category(surgeons, 3), defective_);
  }

  void Ptosis() {
    CountAndShare(false, 6);
    Share(counted_.Category(false, 6), defective_);
  }

  void VitaminA(bool surgeons) {
    CountAndShare(surgeons, 4);
    Share(counted_.Category(surgeons, 4), defective_);
  }

  void VitaminAWithOtherBetween() {
    Figure(counted_.Category(false, 4));
    Figure(counted_.Category(false, 5));
    Share(counted_.Category(false, 4), screened_);
    Share(counted_.Category(false, 4), defective_);
  }

  void Other(bool surgeons) { Figure(counted_.Category(surgeons, 5)); }

  void Attended() {
    Figure(counted_.Children([](const ChildFacts& child) { return child.attend == "Y"; }));
  }

  const Counted& counted() const { return counted_; }
  const Column& column() const { return column_; }

 private:
  long Defective(bool surgeons) const {
    return counted_.Records(
        surgeons, Counted::Count::kRows,
        [](const ChildFacts&, const ExaminationFacts& record) { return record.condition == "D" ? 1 : 0; });
  }

  void CountAndShare(bool surgeons, int category) {
    const long count = counted_.Category(surgeons, category);
    Figure(count);
    Share(count, screened_);
  }

  const Counted& counted_;
  Column column_;
  long enrolled_ = 0;
  long screened_ = 0;
  long identified_ = 0;
  long defective_ = 0;
};

void CountSchools(Expectation& table, bool with_attended) {
  const Counted& counted = table.counted();
  table.SchoolLists();
  table.Screening("T", true);
  table.Examinations();
  table.EyeDefects(false);
  table.VitaminA(false);
  table.Other(false);
  table.Figure(counted.Treatment(false, 3));
  table.Camp();
  table.EyeDefects(true);
  table.VitaminA(true);
  table.Other(true);
  table.Figure(counted.Treatment(true, 4));
  table.Figure(counted.Treatment(true, 5));
  if (with_attended) table.Attended();
}

void CountVisionCenters(Expectation& table) {
  table.SchoolLists();
  table.Screening("T", true);
  table.Examinations();
  table.EyeDefects(false);
  table.VitaminAWithOtherBetween();
  table.Figure(table.counted().Treatment(false, 4));
}

void CountReferred(Expectation& table) {
  const Counted& counted = table.counted();
  table.Figure(counted.Treatment(false, 4));
  table.Figure(counted.Treatment(false, 4, Counted::Count::kDifferentChildren, true));
}

void CountBlock(Expectation& table) {
  table.SchoolLists();
  table.Screening("T", true);
  table.Examinations();
  table.EyeDefects(false);
  table.Ptosis();
  table.VitaminA(false);
  table.Other(false);
  CountReferred(table);
}

void CountDirect(Expectation& table) {
  table.SchoolLists();
  table.Screening("OA", true);
  table.EyeDefects(false);
  table.Ptosis();
  table.VitaminA(false);
  table.Other(false);
  table.Figure(table.counted().Treatment(false, 6));
  CountReferred(table);
}

void CountAnganwadi(Expectation& table, int treatment) {
  table.Screening("AWW", false);
  table.Examinations();
  table.EyeDefects(false);
  table.VitaminA(false);
  table.Figure(table.counted().Treatment(false, treatment, Counted::Count::kRows));
}

void CountTable(Expectation& table, const Case& c) {
  if (c.location == 'A') {
    c.narrowed == Narrowed::kToProgramme ? table.ProgrammeLists() : table.AnganwadiLists();
    CountAnganwadi(table, c.narrowed == Narrowed::kToProgramme ? 7 : 3);
  } else if (c.location == 'V') {
    CountVisionCenters(table);
  } else if (c.narrowed == Narrowed::kToBlock) {
    table.counted().IsDirect() ? CountDirect(table) : CountBlock(table);
  } else {
    CountSchools(table, c.narrowed == Narrowed::kNo);
  }
}

std::string First(const SqlText& statement) {
  return Trim(DemonstrationDatabase().Run(statement).At(0));
}

class ConsolidationFigures : public testing::TestWithParam<Case> {};

/// The figures on the sheet; the lines of a block list sorted, as each list stands between a row without a
/// figure and a row that has a serial or the total.
Column FiguresOn(const Workbook& sheet) {
  Column column;
  std::size_t list_begin = 0;
  bool in_list = false;
  for (int row = 6; row <= sheet.last_row(); ++row) {
    const bool in_block_line = sheet.Text(row, 1).empty() && sheet.Text(row, 2) != "Total :- ";
    if (in_list && !in_block_line) {
      std::sort(column.begin() + static_cast<std::ptrdiff_t>(list_begin), column.end());
      in_list = false;
    }
    column.emplace_back(sheet.Text(row, 3));
    if (!sheet.Text(row, 1).empty() && sheet.Text(row, 3).empty()) {
      in_list = true;
      list_begin = column.size();
    }
  }
  return column;
}

TEST_P(ConsolidationFigures, AreCountedAsTheReportDoes) {
  const Case& c = GetParam();
  ReportDesk desk("frmconsolidation");
  desk.SetPeriod(c.from, c.to);
  desk.Pick("Combo1", c.location_name);
  const std::string sankul = First(sql(
      "select top 1 b.Sankul_ID from Child_RecordOS a,Screened_School b,Enroll_Master c where "
      "a.Enroll_No=c.Enroll_No "
      "and c.School_ID=b.School_ID and b.Location_ID='H' and c.Condition='D' and c.Enroll_No like 'H%' group "
      "by "
      "b.Sankul_ID order by count(*) desc"));
  const std::string of_vision =
      First(sql("select min(Sankul_ID) from Screened_School where Location_ID='V'"));
  std::string value;
  if (c.narrowed == Narrowed::kToSankul) {
    value = c.location == 'V' ? of_vision : sankul;
    desk.Pick("Combo2", First(sql("select Sankul_Name from Sankul_Master where Sankul_ID=", bare(value))));
  } else if (c.narrowed == Narrowed::kToBlock) {
    value = First(c.button == std::string_view("Command8")
                      ? sql("select min(Block_Code) from Enroll_Master where Enroll_No like 'H%' and "
                            "Screened_By='OA' and Condition='D'")
                      : sql("select min(Block_Code) from Block_Master"));
    desk.Pick("Combo3", First(sql("select Block_Name from Block_Master where Block_Code=", bare(value))));
  } else if (c.narrowed == Narrowed::kToProgramme) {
    value = "GRANT2016";
    desk.Pick("Combo4", "GRANT 2016");
  }
  desk.Click(c.button);
  ASSERT_TRUE(desk.messages().empty()) << desk.messages().front();

  const Counted counted(DemonstrationFacts(), c, value);
  Expectation table(counted);
  CountTable(table, c);
  EXPECT_EQ(FiguresOn(desk.sheet()), table.column());
}

INSTANTIATE_TEST_SUITE_P(
    Tables, ConsolidationFigures,
    testing::Values(
        Case{"School", "Command1", "HOSPITAL", 'H', Narrowed::kNo, kDemoFirstDay, kDemoLastDay},
        Case{"SchoolOfAYear", "Command1", "HOSPITAL", 'H', Narrowed::kNo, Day(2015, 4, 1), Day(2016, 3, 31)},
        Case{"Vision", "Command1", "VISION CENTER", 'V', Narrowed::kNo, kDemoFirstDay, kDemoLastDay},
        Case{"Anganwadi", "Command1", "ANGANWADI CENTER", 'A', Narrowed::kNo, kDemoFirstDay, kDemoLastDay},
        Case{"SchoolSankul", "Command6", "HOSPITAL", 'H', Narrowed::kToSankul, kDemoFirstDay, kDemoLastDay},
        Case{"VisionSankul", "Command6", "VISION CENTER", 'V', Narrowed::kToSankul, kDemoFirstDay,
             kDemoLastDay},
        Case{"SchoolBlock", "Command7", "HOSPITAL", 'H', Narrowed::kToBlock, kDemoFirstDay, kDemoLastDay},
        Case{"VisionByBlockButton", "Command7", "VISION CENTER", 'V', Narrowed::kToSankul, kDemoFirstDay,
             kDemoLastDay},
        Case{"DirectByOA", "Command8", "HOSPITAL", 'H', Narrowed::kToBlock, kDemoFirstDay, kDemoLastDay},
        Case{"Programme", "Command9", "ANGANWADI CENTER", 'A', Narrowed::kToProgramme, kDemoFirstDay,
             kDemoLastDay}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace ovindra
