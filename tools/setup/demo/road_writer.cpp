#include "tools/setup/demo/road_writer.h"

#include <algorithm>

#include "tools/setup/running_numbers.h"

namespace ovindra::demo {
namespace {

constexpr int kCoder = 4;

QuotedValue DateText(Date day) {
  return quoted(MonthFirst(day));
}

/// The value, or NULL where the step that writes the column was not taken.
SqlText OrNull(bool written, std::string_view value) {
  return written ? sql(quoted(value)) : sql("null");
}

QuotedValue Letter(bool first, std::string_view one, std::string_view other) {
  return quoted(first ? one : other);
}

SqlText EyeColumns(const Examination& examination) {
  const auto& [left, right] = std::tie(examination.left, examination.right);
  return sql(quoted(left.sph), ",", quoted(left.cyl), ",", quoted(left.axis), ",", quoted(left.va), ",",
             quoted(right.sph), ",", quoted(right.cyl), ",", quoted(right.axis), ",", quoted(right.va));
}

/// The columns that screening writes.
SqlText ScreeningColumns(const std::optional<Screening>& screening) {
  if (!screening) return sql("'N',null,null,null,null,null,null,null,null,null,null");
  return sql("'Y',", quoted(screening->by), ",", Letter(screening->defected, "D", "N"), ",",
             DateText(screening->day), ",", quoted(screening->pre_exam), ",", quoted(screening->occupation),
             ",", quoted(screening->card), ",", Letter(screening->knows_center, "Y", "N"), ",",
             quoted(screening->by_name), ",", quoted(screening->refer_to), ",",
             Digits(screening->entered_by));
}

/// The diagnosis and treatment rows of one series of records.
class Orders {
 public:
  Orders(Session& session, Fragment diagnosis_head, Fragment treatment_head)
      : diagnoses_(session, diagnosis_head), treatments_(session, treatment_head) {}

  void Add(long record_number, const Examination& examination) {
    const QuotedValue number = quoted(std::to_string(record_number));
    for (const int code : examination.diagnoses) diagnoses_.Add(Row(number, Number(code)));
    for (const Treatment& treatment : examination.treatments)
      treatments_.Add(
          Row(number, Number(treatment.code), OrNull(!treatment.remark.empty(), treatment.remark)));
  }

 private:
  RowWriter diagnoses_;
  RowWriter treatments_;
};

template <typename Records>
void SortByDay(Records& records) {
  std::stable_sort(records.begin(), records.end(), [](const auto& left, const auto& right) {
    return left.examination.day < right.examination.day;
  });
}

}  // namespace

RoadWriter::RoadWriter(Session& screening, const Places& places)
    : session_(screening),
      places_(places),
      children_(
          screening,
          "insert into Enroll_Master (Enroll_No,Child_Name,Fname,Age,Gender,Class,Center_ID,Block_Code,"
          "District_Code,State_Code,Country_Code,Enroll_Date,School_ID,School_Going,Location_ID,Month,Days,"
          "Mobile,Programme_Code,EnrollEntry,Screened,Screened_By,Condition,Screened_Date,PreExam,"
          "FOccupation,Card,VC,ScreenedBy_Name,ReferTo,ScreenEntry,Attend,Mr_No) values"),
      strengths_(places.schools.size()) {}

void RoadWriter::Write(Road road) {
  WriteChild(road);
  Count(road);
  if (road.mr_no) {
    const Examination& last = road.camp ? *road.camp : *road.examination;
    patients_.push_back({*road.mr_no, last.category});
  }
  const std::string& child = road.enrollment.enroll_no;
  if (road.examination) examinations_.push_back({child, road.school, std::move(*road.examination)});
  if (road.camp) camp_records_.push_back({child, road.school, std::move(*road.camp)});
}

void RoadWriter::WriteChild(const Road& road) {
  const Enrollment& child = road.enrollment;
  const School& school = places_.schools[road.school];
  const std::size_t district = places_.blocks[school.block].parent;
  const std::size_t state = places_.districts[district].parent;
  const bool of_programme = school.location == Location::kAnganwadi;
  const std::string location(1, static_cast<char>(school.location));
  children_.Add(
      Row(quoted(child.enroll_no), quoted(child.child_name), quoted(child.parent_name), Digits(child.age),
          Letter(child.boy, "M", "F"), quoted(child.school_class), quoted(school.enrolled_by),
          Code(school.block), Code(district), Code(state), Number(1), DateText(child.day),
          child.has_school ? sql(quoted(school.id, " ")) : sql("null"), Letter(child.school_going, "Y", "N"),
          quoted(location), OrNull(of_programme, child.months), OrNull(of_programme, child.days),
          OrNull(of_programme, child.mobile), OrNull(of_programme, places_.centers[school.center].programme),
          OrNull(of_programme, std::to_string(child.entered_by)), ScreeningColumns(road.screening),
          OrNull(road.mr_no.has_value(), "Y"), OrNull(road.mr_no.has_value(), road.mr_no.value_or(""))));
}

void RoadWriter::Count(const Road& road) {
  if (!road.enrollment.has_school) return;
  Strength& strength = strengths_[road.school];
  const bool boy = road.enrollment.boy;
  ++(boy ? strength.boys : strength.girls);
  if (!road.screening) return;
  const Date day = road.screening->day;
  if (strength.screened_boys + strength.screened_girls == 0 || day < strength.first_screening)
    strength.first_screening = day;
  ++(boy ? strength.screened_boys : strength.screened_girls);
}

void RoadWriter::WriteExaminations() {
  SortByDay(examinations_);
  RowWriter records(
      session_,
      "insert into Child_Record (Child_RecordNo,Enroll_No,LE_Sph,LE_Cyl,LE_Axis,LE_VA,RE_Sph,RE_Cyl,"
      "RE_Axis,RE_VA,Record_Date,Eye_Condition,CodedBy) values");
  Orders orders(session_, "insert into Child_Diagnosis values", "insert into Child_Treatment values");
  long number = 0;
  for (const auto& [enroll_no, school, examination] : examinations_) {
    records.Add(Row(quoted(std::to_string(++number)), quoted(enroll_no), EyeColumns(examination),
                    DateText(examination.day), Letter(examination.defected, "D", "N"), Digits(kCoder)));
    orders.Add(number, examination);
  }
  SetRunningNumber(session_, "CHILD_RECORDNO", number + 1);
}

void RoadWriter::WriteCampRecords() {
  SortByDay(camp_records_);
  RowWriter records(
      session_,
      "insert into Child_RecordOS (Child_RecordNo,Enroll_No,Sankul_ID,School_ID,LE_Sph,LE_Cyl,LE_Axis,"
      "LE_VA,RE_Sph,RE_Cyl,RE_Axis,RE_VA,Record_Date,Eye_Condition) values");
  Orders orders(session_, "insert into Child_DiagnosisOS values", "insert into Child_TreatmentOS values");
  long number = 0;
  for (const auto& [enroll_no, place, examination] : camp_records_) {
    const School& school = places_.schools[place];
    records.Add(Row(quoted(std::to_string(++number)), quoted(enroll_no), Code(school.sankul),
                    quoted(school.id), EyeColumns(examination), DateText(examination.day),
                    Letter(examination.defected, "D", "N")));
    orders.Add(number, examination);
  }
  SetRunningNumber(session_, "CHILD_RECORDNOOS", number + 1);
}

void RoadWriter::WriteRegister() {
  std::vector<std::size_t> screened;
  for (std::size_t i = 0; i < strengths_.size(); ++i) {
    if (strengths_[i].screened_boys + strengths_[i].screened_girls > 0) screened.push_back(i);
  }
  std::stable_sort(screened.begin(), screened.end(), [&](std::size_t left, std::size_t right) {
    return strengths_[left].first_screening < strengths_[right].first_screening;
  });
  RowWriter rows(session_,
                 "insert into Screened_School (School_ID,Sankul_ID,Center_ID,Screening_Date,TNo_of_Boys,"
                 "TNo_of_Girls,No_ofT_teacher,Screened_Boys,Screened_Girls,Location_ID) values");
  for (const std::size_t place : screened) {
    const School& school = places_.schools[place];
    const Strength& strength = strengths_[place];
    rows.Add(Row(quoted(school.id), Code(school.sankul), bare(places_.centers[school.center].id),
                 DateText(strength.first_screening), Number(strength.boys), Number(strength.girls),
                 Number(school.teachers.size()), Number(strength.screened_boys),
                 Number(strength.screened_girls),
                 quoted(std::string(1, static_cast<char>(school.location)))));
  }
}

void RoadWriter::Finish(long next_enroll_number) {
  SetRunningNumber(session_, "ENROLL_NO", next_enroll_number);
  WriteExaminations();
  WriteCampRecords();
  WriteRegister();
}

}  // namespace ovindra::demo
