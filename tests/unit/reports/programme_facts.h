// The programme of a database as plain facts, read table by table, for tests that count by themselves what a
// report counts by its statements.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "base/database/connection.h"
#include "base/date.h"

namespace ovindra {

struct ChildFacts {
  std::string enroll_no;
  Date enrolled;
  std::string school;
  std::string center;
  std::string block;
  std::string programme;
  std::string screened;
  std::string screened_by;
  std::string condition;
  std::string attend;
  std::string name;
  std::string father;
  std::string age;
  std::string gender;
  std::string school_class;
  std::optional<Date> screened_on;
};

struct ExaminationFacts {
  std::string enroll_no;
  std::string condition;
  std::vector<int> categories;  // of its diagnoses, one for each
  std::vector<int> treatments;
  Date examined;
  std::vector<std::string> diagnoses;  // their names
};

struct RegisterFacts {
  std::string school;
  std::string sankul;
  std::string location;
  Date screening;
  long enrolled = 0;
  long screened = 0;
  long teachers = 0;
};

/// Where a center lies and how many people are trained there.
struct CenterFacts {
  std::string block;
  long trained = 0;
};

struct ProgrammeFacts {
  explicit ProgrammeFacts(Session& database);

  std::map<std::string, ChildFacts> children;
  std::vector<ExaminationFacts> assistants;
  std::vector<ExaminationFacts> surgeons;
  std::vector<RegisterFacts> registers;
  std::map<std::string, CenterFacts> schools;
  std::map<std::string, CenterFacts> anganwadi_centers;
  std::map<std::string, std::string> block_names;  // by code, in lower case
  std::map<int, std::string> treatment_names;
};

}  // namespace ovindra
