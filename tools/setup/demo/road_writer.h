// Writes roads into the workflow tables. Children go out as they come; examinations, camp records and the
// school register wait for Finish(), since their numbers rise with their own days and not with the
// children's.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/setup/demo/road.h"
#include "tools/setup/statement.h"

namespace ovindra::demo {

/// A child that the hospital has seen.
struct Patient {
  std::string mr_no;
  int category;
};

class RoadWriter {
 public:
  RoadWriter(Session& screening, const Places& places);

  void Write(Road road);

  /// Writes what has waited, and moves the counters behind the last numbers.
  void Finish(long next_enroll_number);

  const std::vector<Patient>& patients() const { return patients_; }

 private:
  /// An examination and whose it is.
  struct Record {
    std::string enroll_no;
    std::size_t school;
    Examination examination;
  };

  /// What the school register says of a school.
  struct Strength {
    int boys = 0;
    int girls = 0;
    int screened_boys = 0;
    int screened_girls = 0;
    Date first_screening{};
  };

  void WriteChild(const Road& road);
  void Count(const Road& road);
  void WriteExaminations();
  void WriteCampRecords();
  void WriteRegister();

  Session& session_;
  const Places& places_;
  RowWriter children_;
  std::vector<Record> examinations_;
  std::vector<Record> camp_records_;
  std::vector<Strength> strengths_;
  std::vector<Patient> patients_;
};

}  // namespace ovindra::demo
