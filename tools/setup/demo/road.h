// The road of one child, from enrollment to the hospital, as the forms would have written it: a step that has
// not been taken is missing. Plain values; who makes them is RoadMaker, who writes them RoadWriter.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/date.h"
#include "tools/setup/demo/places.h"

namespace ovindra::demo {

struct Enrollment {
  std::string enroll_no;
  std::string child_name;
  std::string parent_name;
  bool boy;
  int age;
  /// Empty for a child who goes to no school.
  std::string school_class;
  bool school_going;
  /// A child of a vision center or hospital who goes to no school has none.
  bool has_school;
  Date day;
  /// What only a child of the programme has.
  std::string months;
  std::string days;
  std::string mobile;
  int entered_by;
};

struct Screening {
  Date day;
  std::string_view by;
  std::string by_name;
  bool defected;
  std::string_view pre_exam;
  std::string_view occupation;
  std::string_view card;
  bool knows_center;
  std::string refer_to;
  int entered_by;
};

struct EyeValues {
  std::string sph;
  std::string cyl;
  std::string axis;
  std::string va;
};

struct Treatment {
  int code;
  /// "P" paid or "F" free for a spectacle, empty for every other treatment.
  std::string_view remark;
};

/// What the ophthalmic assistant, or the surgeon at the camp, has found and ordered.
struct Examination {
  Date day;
  bool defected;
  /// The category of the first diagnosis, 0 when there is none.
  int category;
  EyeValues left;
  EyeValues right;
  std::vector<int> diagnoses;
  std::vector<Treatment> treatments;

  bool Orders(int treatment_code) const;
};

struct Road {
  std::size_t school;
  Enrollment enrollment;
  std::optional<Screening> screening;
  std::optional<Examination> examination;
  std::optional<Examination> camp;
  std::optional<std::string> mr_no;
};

}  // namespace ovindra::demo
