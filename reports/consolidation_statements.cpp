#include "reports/consolidation_statements.h"

namespace ovindra {
namespace {

/// What a scope adds to a family: tables behind its from clause, a condition in its midst and one at its end.
struct ScopeParts {
  SqlText from;
  SqlText ahead;
  SqlText tail;
};

/// The pieces in which the families differ.
struct ScopeNames {
  Fragment sankul_from;
  Fragment sankul_tail;
  Fragment block_tail;
  Fragment programme_ahead;
};

constexpr ScopeNames kOfChildren{" a,Screened_School b", " and a.School_ID=b.School_ID and b.Sankul_ID=",
                                 " and Block_Code=", " and Programme_Code="};
constexpr ScopeNames kOfExaminations{",Screened_School c", " and a.School_ID=C.School_ID and C.Sankul_ID=",
                                     " and a.Block_Code=", " and a.Programme_Code="};
constexpr ScopeNames kOfCategories{",Screened_School f", " and a.School_ID=f.School_ID and f.Sankul_ID=",
                                   " and a.Block_Code=", " and a.Programme_Code="};
constexpr ScopeNames kOfTreatments{",Screened_School d", " and a.School_ID=d.School_ID and d.Sankul_ID=",
                                   " and a.Block_Code=", " and a.Programme_Code="};

ScopeParts PartsOf(const Coverage& coverage, const ScopeNames& names) {
  switch (coverage.scope) {
    case Scope::kSankul:
      return {sql(names.sankul_from), {}, sql(names.sankul_tail, bare(coverage.scope_value))};
    case Scope::kBlock:
      return {{}, {}, sql(names.block_tail, bare(coverage.scope_value))};
    case Scope::kProgramme:
      return {{}, sql(names.programme_ahead, quoted(coverage.scope_value)), {}};
    case Scope::kAll:
      break;
  }
  return {};
}

BareValue Number(int number) {
  return bare(std::to_string(number));
}

SqlText TreatmentStatement(const Coverage& coverage, Fragment select, Fragment treatments, Fragment joins,
                           int treatment) {
  const ScopeParts scope = PartsOf(coverage, kOfTreatments);
  return sql(select, treatments, scope.from, " where a.Enroll_Date between ", quoted(coverage.period.from),
             " and ", quoted(coverage.period.to), scope.ahead, " and a.Enroll_No like ",
             quoted(coverage.location, "%"), joins, " and c.Treatment_Code=", Number(treatment), scope.tail);
}

constexpr Fragment kAssistantsTreatedChildren =
    "Select Count(DISTINCT B.ENROLL_NO) as Total from Enroll_Master a,Child_Record b,";
constexpr Fragment kAssistantsTreatments = " Child_Treatment c";
constexpr Fragment kTreatmentJoins = " and a.Enroll_No=b.Enroll_No and b.Child_RecordNo=c.Child_RecordNo";

/// What a list by blocks shows of each block: its centers, or the people trained there.
struct BlockSelects {
  Fragment centers;
  Fragment trained;

  Fragment For(BlockFigure figure) const { return figure == BlockFigure::kCenters ? centers : trained; }
};

constexpr BlockSelects kOfRegister{
    "Select   a.Block_Name,count(distinct b.sc_ID) as Total",
    "Select  distinct a.Block_Name,sum(convert(numeric,No_ofT_teacher)) as Total"};
constexpr BlockSelects kOfAnganwadi{
    "Select  distinct a.Block_Name,count(distinct b.AW_ID) as Total",
    "Select  distinct a.Block_Name,sum(convert(numeric,No_of_TAww)) as Total"};
constexpr BlockSelects kOfProgramme{
    "Select  distinct a.Block_Name,count(distinct b.SC_ID) as Total",
    "Select  distinct a.Block_Name,sum(convert(numeric,No_of_TTeacher)) as Total"};

}  // namespace

SqlText ChildCount(const Coverage& coverage, Fragment tail) {
  const ScopeParts scope = PartsOf(coverage, kOfChildren);
  return sql("select count(*) as Total from Enroll_Master", scope.from, " where Enroll_Date between ",
             quoted(coverage.period.from), "and ", quoted(coverage.period.to), scope.ahead,
             " and Enroll_No like ", quoted(coverage.location, "%"), tail, scope.tail);
}

SqlText EnrolledCount(const Coverage& coverage) {
  const ScopeParts scope = PartsOf(coverage, kOfChildren);
  return sql("select count(*) as Total from Enroll_Master where Enroll_Date between  ",
             quoted(coverage.period.from), " and ", quoted(coverage.period.to), scope.ahead,
             " and Enroll_No like ", quoted(coverage.location, "%"));
}

SqlText AttendedCount(const Coverage& coverage) {
  return sql("Select Count(ENROLL_NO) as Total from Enroll_Master where Enroll_Date between ",
             quoted(coverage.period.from), " and ", quoted(coverage.period.to), " and Enroll_No like ",
             quoted(coverage.location, "%"), " and Attend='Y'");
}

SqlText ExamCount(const Coverage& coverage, Examiner examiner, Fragment tail) {
  const ScopeParts scope = PartsOf(coverage, kOfExaminations);
  const Fragment from = examiner == Examiner::kAssistant
                            ? Fragment("select count(*) as Total from Enroll_Master a,Child_Record b")
                            : Fragment("select count(*) as Total from Enroll_Master a,Child_RecordOS b");
  return sql(from, scope.from, " where a.Enroll_Date between ", quoted(coverage.period.from), "and ",
             quoted(coverage.period.to), scope.ahead, " and a.Enroll_No like ",
             quoted(coverage.location, "%"), tail, scope.tail);
}

SqlText CategoryCount(const Coverage& coverage, Examiner examiner, int category) {
  const ScopeParts scope = PartsOf(coverage, kOfCategories);
  const Fragment from =
      examiner == Examiner::kAssistant
          ? Fragment(
                " FROM ENROLL_MASTER A,CHILD_RECORD B,child_diagnosis c,diagnosis_master d,category_master e")
          : Fragment(
                " FROM ENROLL_MASTER A,CHILD_RECORDOS B,child_diagnosisOS c,diagnosis_master "
                "d,category_master e");
  return sql(
      "select COUNT(DISTINCT B.ENROLL_NO) as Total", from, scope.from, " WHERE A.ENROLL_NO LIKE ",
      quoted(coverage.location, "%"), " AND A.ENROLL_NO=B.ENROLL_NO AND A.ENROLL_DATE Between ",
      quoted(coverage.period.from), " and ", quoted(coverage.period.to),
      " AND B.EYE_CONDITION='D' and b.child_recordno=c.child_recordno and c.diagnosis_code=d.diagnosis_code"
      " and d.category_code=e.category_code and e.category_CODE=",
      Number(category), scope.tail);
}

SqlText PlainCategoryCount(const Coverage& coverage, int category) {
  const ScopeParts scope = PartsOf(coverage, kOfCategories);
  return sql(
      "Select Count(*) as Total from Enroll_Master a,Child_Record b, Child_Diagnosis c,Diagnosis_Master d"
      " where a.Enroll_Date between ",
      quoted(coverage.period.from), " and ", quoted(coverage.period.to), scope.ahead,
      " and a.Enroll_No like ", quoted(coverage.location, "%"),
      " and a.Enroll_No=b.Enroll_No and b.Child_RecordNo=c.Child_RecordNo"
      " and c.Diagnosis_Code=d.Diagnosis_Code and d.Category_Code=",
      Number(category));
}

SqlText TreatmentCount(const Coverage& coverage, Examiner examiner, int treatment) {
  if (examiner == Examiner::kAssistant) {
    return TreatmentStatement(coverage, kAssistantsTreatedChildren, kAssistantsTreatments, kTreatmentJoins,
                              treatment);
  }
  return TreatmentStatement(
      coverage, "Select Count(DISTINCT B.ENROLL_NO) as Total from Enroll_Master a,Child_RecordOS b,",
      " Child_TreatmentOS c", kTreatmentJoins, treatment);
}

SqlText TreatmentRowCount(const Coverage& coverage, int treatment) {
  return TreatmentStatement(coverage, "Select Count(*) as Total from Enroll_Master a,Child_Record b,",
                            kAssistantsTreatments, kTreatmentJoins, treatment);
}

SqlText TurnupCount(const Coverage& coverage, int treatment) {
  return TreatmentStatement(
      coverage, kAssistantsTreatedChildren, kAssistantsTreatments,
      " and a.Enroll_No=b.Enroll_No and b.Child_RecordNo=c.Child_RecordNo and Attend='Y'", treatment);
}

SqlText SchoolRegisterSum(const Coverage& coverage, RegisterColumns columns) {
  const bool enrolled = columns == RegisterColumns::kEnrolled;
  const SqlText period = sql(quoted(coverage.period.from), " and ", quoted(coverage.period.to),
                             "and Location_ID=", quoted(coverage.location));
  if (coverage.scope == Scope::kBlock) {
    const Fragment sums =
        enrolled
            ? Fragment(
                  "select sum(convert(numeric,a.TNO_of_Boys))+ sum(convert(numeric,a.TNO_of_Girls)) as Total")
            : Fragment(
                  "select sum(convert(numeric,a.Screened_Boys))+ sum(convert(numeric,a.Screened_Girls)) as "
                  "Total");
    return sql(sums, " from Screened_School a,Block_Master b,School_Master c where Screening_date between ",
               period, " and a.School_ID=c.SC_ID and c.Block_Code=b.Block_Code and b.Block_Code=",
               bare(coverage.scope_value));
  }
  const Fragment sums =
      enrolled
          ? Fragment("select sum(convert(numeric,TNO_of_Boys))+ sum(convert(numeric,TNO_of_Girls)) as Total")
          : Fragment(
                "select sum(convert(numeric,Screened_Boys))+ sum(convert(numeric,Screened_Girls)) as Total");
  SqlText all = sql(sums, " from Screened_School where Screening_date between ", period);
  if (coverage.scope == Scope::kSankul) return sql(all, " and Sankul_ID=", bare(coverage.scope_value));
  return all;
}

SqlText SchoolList(const Coverage& coverage, BlockFigure figure) {
  SqlText sankul;
  SqlText block;
  if (coverage.scope == Scope::kSankul) sankul = sql(" c.Sankul_ID=", bare(coverage.scope_value), " and");
  if (coverage.scope == Scope::kBlock) block = sql(" and a.Block_code=", bare(coverage.scope_value));
  return sql(kOfRegister.For(figure), " from Block_Master a,School_Master b,Screened_School c where", sankul,
             " c.School_ID=b.SC_ID and b.Block_Code=a.Block_Code", block,
             " and Location_ID=", quoted(coverage.location), "  group by a.Block_Name");
}

SqlText AnganwadiList(const Coverage& coverage, BlockFigure figure) {
  return sql(kOfAnganwadi.For(figure),
             " from Block_Master a,Anganwadi_Center b where b.AW_ID in(Select Center_ID from Enroll_Master"
             " where Enroll_Date between ",
             quoted(coverage.period.from), " and ", quoted(coverage.period.to), "and Enroll_No like ",
             quoted(coverage.location, "%"), ") and b.Block_Code=a.Block_Code group by a.Block_Name,b.AW_ID");
}

SqlText ProgrammeSchoolList(const Coverage& coverage, BlockFigure figure) {
  return sql(kOfProgramme.For(figure),
             " from Block_Master a,School_Master b where b.SC_ID in(Select School_ID from Enroll_Master"
             " where Enroll_Date between ",
             quoted(coverage.period.from), " and ", quoted(coverage.period.to),
             " and Programme_Code=", quoted(coverage.scope_value), " and Enroll_No like ",
             quoted(coverage.location, "%"), ") and b.Block_Code=a.Block_Code group by a.Block_Name");
}

}  // namespace ovindra
