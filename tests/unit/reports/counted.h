// The figures of the consolidation counted child by child: which children and records a case of the test
// covers, and how often each is counted.
#pragma once

#include <algorithm>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "tests/unit/reports/programme_facts.h"

namespace ovindra {

inline Date Day(int year, unsigned month_number, unsigned day) {
  return {std::chrono::year(year), std::chrono::month(month_number), std::chrono::day(day)};
}

enum class Narrowed { kNo, kToSankul, kToBlock, kToProgramme };

struct Case {
  const char* name;
  const char* button;
  const char* location_name;
  char location;
  Narrowed narrowed;
  Date from;
  Date to;
};

/// What stands in the column of figures, the lines of a block list sorted.
using Column = std::vector<std::string>;

/// Counts by hand.
class Counted {
 public:
  Counted(const ProgrammeFacts& facts, const Case& c, std::string value)
      : facts_(facts), case_(c), value_(std::move(value)) {}

  bool Covers(Date day) const { return day >= case_.from && day <= case_.to; }

  /// How often a child is counted: not at all, once, or once for each register row of its school in the
  /// sankul.
  long Weight(const ChildFacts& child) const {
    if (child.enroll_no.front() != case_.location || !Covers(child.enrolled)) return 0;
    switch (case_.narrowed) {
      case Narrowed::kToBlock:
        return child.block == value_ ? 1 : 0;
      case Narrowed::kToProgramme:
        return child.programme == value_ ? 1 : 0;
      case Narrowed::kToSankul:
        return std::count_if(facts_.registers.begin(), facts_.registers.end(), [&](const RegisterFacts& row) {
          return row.school == child.school && row.sankul == value_;
        });
      case Narrowed::kNo:
        break;
    }
    return 1;
  }

  long Children(const std::function<bool(const ChildFacts&)>& counts) const {
    long total = 0;
    for (const auto& [number, child] : facts_.children) total += counts(child) ? Weight(child) : 0;
    return total;
  }

  enum class Count { kRows, kDifferentChildren };
  /// Sums what a record gives over the records, or counts the different children with any.
  long Records(bool surgeons, Count count,
               const std::function<long(const ChildFacts&, const ExaminationFacts&)>& gives) const {
    long total = 0;
    std::set<std::string> different;
    for (const ExaminationFacts& record : surgeons ? facts_.surgeons : facts_.assistants) {
      const ChildFacts& child = facts_.children.at(record.enroll_no);
      const long rows = gives(child, record) * Weight(child);
      total += rows;
      if (rows > 0) different.insert(record.enroll_no);
    }
    return count == Count::kRows ? total : static_cast<long>(different.size());
  }

  long Category(bool surgeons, int category) const {
    const bool every_diagnosis = case_.location == 'A';
    return Records(surgeons, every_diagnosis ? Count::kRows : Count::kDifferentChildren,
                   [&](const ChildFacts&, const ExaminationFacts& record) {
                     if (!every_diagnosis && record.condition != "D") return std::ptrdiff_t{0};
                     return std::count(record.categories.begin(), record.categories.end(), category);
                   });
  }

  long Treatment(bool surgeons, int treatment, Count count = Count::kDifferentChildren,
                 bool attended = false) const {
    return Records(surgeons, count, [&](const ChildFacts& child, const ExaminationFacts& record) {
      if (attended && child.attend != "Y") return std::ptrdiff_t{0};
      return std::count(record.treatments.begin(), record.treatments.end(), treatment);
    });
  }

  bool WasExaminedByAssistant(const std::string& enroll_no) const {
    return std::any_of(facts_.assistants.begin(), facts_.assistants.end(),
                       [&](const ExaminationFacts& record) { return record.enroll_no == enroll_no; });
  }

  long Register(long RegisterFacts::*figure) const {
    long total = 0;
    for (const RegisterFacts& row : facts_.registers) {
      if (InRegister(row) && Covers(row.screening)) total += row.*figure;
    }
    return total;
  }

  bool InRegister(const RegisterFacts& row) const {
    if (row.location.front() != case_.location || !facts_.schools.contains(row.school)) return false;
    if (case_.narrowed == Narrowed::kToSankul) return row.sankul == value_;
    if (case_.narrowed == Narrowed::kToBlock) return facts_.schools.at(row.school).block == value_;
    return true;
  }

  std::string NameOf(const std::string& block) const { return facts_.block_names.at(block); }

  const ProgrammeFacts& facts() const { return facts_; }
  bool IsDirect() const { return std::string_view(case_.button) == "Command8"; }

 private:
  const ProgrammeFacts& facts_;
  const Case& case_;
  std::string value_;
};

}  // namespace ovindra
