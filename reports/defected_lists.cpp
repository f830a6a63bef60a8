#include "reports/defected_lists.h"

#include <unordered_map>
#include <utility>
#include <vector>

namespace ovindra {
namespace {

constexpr std::string_view kSpectacles = "SPECTACLE PRESCRIBED";

constexpr Fragment kGenderInFull =
    " case b.Gender When 'M' then 'MALE' When 'F' then 'FEMALE' end as Gender  ,b.Class";
constexpr Fragment kDiagnosisJoin =
    "and b.Child_RecordNo = a.Child_RecordNo And a.Diagnosis_Code = c.Diagnosis_Code";
constexpr Fragment kTreatmentsWithRemark =
    "Select b.Enroll_no ,c.Description, case a.remark when 'F' then 'FREE' when 'P' then 'PAID' end As "
    "remark "
    "from Child_Treatment a,Child_Record b,Treatment_Master c";
constexpr Fragment kTreatmentJoin =
    " and b.Child_RecordNo = a.Child_RecordNo And a.Treatment_Code = c.Treatment_Code";

/// The fragment that names the tables of the examiner.
constexpr Fragment Of(Examiner examiner, const Fragment& assistants, const Fragment& surgeons) {
  return examiner == Examiner::kAssistant ? assistants : surgeons;
}

SqlText InPeriod(const Period& period, const std::string& location) {
  return sql(" where b.Record_date between ", quoted(period.from), " and ", quoted(period.to),
             " and b.Enroll_No like ", quoted(location, "%"));
}

SqlText WithCategory(Examiner examiner, const Period& period, const std::string& location) {
  return sql(Of(examiner,
                " FROM ENROLL_MASTER A,CHILD_RECORD B,child_diagnosis c,diagnosis_master d,category_master e",
                " FROM ENROLL_MASTER A,CHILD_RECORDos B,child_diagnosisos c,diagnosis_master d,"
                "category_master e"),
             " WHERE A.ENROLL_NO LIKE ", quoted(location, "%"),
             " AND A.ENROLL_NO=B.ENROLL_NO AND A.ENROLL_DATE Between ", quoted(period.from), " and ",
             quoted(period.to),
             " AND B.EYE_CONDITION='D' and b.child_recordno=c.child_recordno and "
             "c.diagnosis_code=d.diagnosis_code and d.category_code=e.category_code");
}

}  // namespace

SqlText DefectedChildren(Examiner examiner, const Period& period, const std::string& location) {
  return sql("Select a.Enroll_no,b.Child_Name,b.fname,b.age,", kGenderInFull,
             Of(examiner, " from Child_Record a,Enroll_Master b", " from Child_Recordos a,Enroll_Master b"),
             " where  a.Record_date between ", quoted(period.from), " and ", quoted(period.to),
             " and b.Enroll_No like ", quoted(location, "%"),
             " and  a.Enroll_no=b.Enroll_no and a.Eye_Condition='D' order by b.Child_Name");
}

SqlText DiagnosesOfPeriod(Examiner examiner, const Period& period, const std::string& location) {
  return sql("Select b.Enroll_no ,c.Diagnosis_Name",
             Of(examiner, " from Child_Diagnosis a,Child_Record b,Diagnosis_Master c",
                " from Child_Diagnosisos a,Child_Recordos b,Diagnosis_Master c"),
             InPeriod(period, location), kDiagnosisJoin);
}

SqlText TreatmentsOfPeriod(const Period& period, const std::string& location) {
  return sql(kTreatmentsWithRemark, InPeriod(period, location), kTreatmentJoin);
}

SqlText ProgrammeChildren(const std::string& location) {
  return sql("Select b.Enroll_Date,b.Screened_Date,a.Record_date,a.Enroll_no,b.Child_Name,b.fname,b.age,",
             kGenderInFull,
             ",c.Center_Name,d.SC_Name,e.Block_Name,a.CodedBy,RE_Sph,RE_Cyl,RE_Axis,RE_VA,LE_Sph,LE_Cyl,"
             "LE_Axis,LE_VA,a.Eye_Condition from Child_Record a,Enroll_Master b,Center_Master1 c,"
             "School_Master d,Block_Master e where  b.Enroll_No like ",
             quoted(location, "%"),
             " and  a.Enroll_no=b.Enroll_no and b.Programme_Code='GRANT2016' and b.Center_ID=c.Center_ID and "
             "b.School_ID=d.SC_ID and b.Block_Code= e.Block_Code order by b.Child_Name");
}

SqlText ProgrammeDiagnoses(const std::string& location) {
  return sql(
      "Select b.Enroll_no ,c.Diagnosis_Name from Child_Diagnosis a,Child_Record b,Diagnosis_Master c,"
      "Enroll_Master d where b.Enroll_No like ",
      quoted(location, "%"), " and b.Enroll_No=d.Enroll_No and d.Programme_Code='GRANT2016' ",
      kDiagnosisJoin);
}

SqlText ProgrammeTreatments(const std::string& location) {
  return sql(kTreatmentsWithRemark, ",Enroll_Master d where b.Enroll_No like ", quoted(location, "%"),
             " and b.Enroll_No=d.Enroll_No and d.Programme_Code='GRANT2016'", kTreatmentJoin);
}

SqlText ChildrenWithCategory(Examiner examiner, const Period& period, const std::string& location) {
  return sql("select distinct B.ENROLL_NO,CHILD_NAME,FNAME,AGE,GENDER,CLASS",
             WithCategory(examiner, period, location), " order by CHILD_NAME");
}

SqlText CategoriesOfChildren(Examiner examiner, const Period& period, const std::string& location) {
  return sql("select distinct B.ENROLL_NO,e.category", WithCategory(examiner, period, location));
}

void JoinTreatments(Grid& grid, const GridIndex& children, int column, Recordset& treatments) {
  if (treatments.Eof()) return;
  const std::size_t description_ordinal = treatments.Ordinal("Description");
  const std::size_t enroll_no_ordinal = treatments.Ordinal("Enroll_No");
  for (; !treatments.Eof(); treatments.MoveNext()) {
    const std::span<const int> rows = children.RowsOf(Trim(treatments.At(enroll_no_ordinal)));
    if (rows.empty()) continue;
    const std::string description = Trim(treatments.At(description_ordinal));
    std::string first = description;
    if (description == kSpectacles) first += "/" + Trim(treatments["remark"]);
    for (const int row : rows)
      JoinText(grid, row, column, grid.Cell(row, column).empty() ? first : description);
  }
}

int JoinCategories(Grid& grid, const GridIndex& children, int column, Recordset& categories) {
  int doubles = 0;
  for (; !categories.Eof(); categories.MoveNext()) {
    const std::string category = Trim(categories["Category"]);
    for (const int row : children.RowsOf(Trim(categories["Enroll_No"]))) {
      if (!JoinText(grid, row, column, category)) ++doubles;
    }
  }
  return doubles;
}

void NameUsers(Grid& grid, int column, Recordset& users) {
  std::vector<std::pair<std::string, std::string>> names;
  for (; !users.Eof(); users.MoveNext())
    names.emplace_back(Trim(users["User_Code"]), Trim(users["User_Name"]));
  // A name that is a later user's code is named once more.
  std::unordered_map<std::string, std::string> shown;
  for (int row = grid.fixed_rows(); row < grid.rows(); ++row) {
    const std::string code(Trim(grid.Cell(row, column)));
    const auto [known, is_new] = shown.try_emplace(code, code);
    if (is_new) {
      for (const auto& [user, name] : names) {
        if (Trim(known->second) == user) known->second = name;
      }
    }
    if (known->second != code) grid.SetCell(row, column, known->second);
  }
}

}  // namespace ovindra
