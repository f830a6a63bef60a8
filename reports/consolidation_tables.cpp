#include "reports/consolidation_tables.h"

namespace ovindra {
namespace {

using Row = ConsolidationRow;
using enum RowKind;
using F = Figure;

constexpr Fragment kExaminedTail = " and a.Enroll_No=b.Enroll_No and a.Condition='D'";
constexpr Fragment kConfirmedTail = " and a.Enroll_no=b.Enroll_no and b.Eye_Condition ='D' ";

constexpr Row kSchools[] = {
    {.kind = kBlockList, .label = "Number of School Covered", .source = Source::kCenters}};
constexpr Row kSchoolsWithoutTotal[] = {
    {.kind = kBlockListWithoutTotal, .label = "Number of School Covered", .source = Source::kCenters}};
constexpr Row kAnganwadiCenters[] = {
    {.kind = kBlockList, .label = "Number of Anganwadi Center Covered", .source = Source::kCenters}};
constexpr Row kTrainedTeachers[] = {
    {.kind = kBlockList, .label = "Number of Trained Teacher", .source = Source::kTrainedPeople}};

constexpr Row kEnrolledInSchools[] = {{.kind = kCount,
                                       .label = "Total Number of  Children Enrolled in School Screening",
                                       .source = Source::kRegisterEnrolled,
                                       .figure = F::kEnrolled}};
constexpr Row kEnrolledThroughVisionCenters[] = {
    {.kind = kCount,
     .label = "Total Number of  Children Enrolled Trough Vision Center",
     .source = Source::kRegisterEnrolled,
     .figure = F::kEnrolled}};

constexpr Row kScreenedByTeacher[] = {
    {.kind = kCount,
     .label = "Total Number of Children Screened By Teacher",
     .source = Source::kRegisterScreened,
     .figure = F::kScreened},
    {.kind = kMissed,
     .label = "Total Number of Children who missed Screening By Teacher",
     .figure = F::kMissed},
    {.kind = kCount,
     .label = "Total Number of Children who Identified as having Eye Defects by Trained Teacher",
     .source = Source::kChildren,
     .figure = F::kIdentified,
     .tail = " and Screened='Y' and Screened_by='T' and Condition='D'"},
    {.kind = kPercent,
     .label = "% of Children who were Screened by Trained Teacher",
     .figure = F::kScreened,
     .over = F::kEnrolled},
    {.kind = kPercent,
     .label = "% of Children who missed Screening by Trained Teacher",
     .figure = F::kMissed,
     .over = F::kEnrolled},
    {.kind = kPercent,
     .label = "% of Children who Identified as having Eye Defects by Trained Teacher",
     .figure = F::kIdentified,
     .over = F::kScreened},
};

constexpr Row kScreenedByAssistant[] = {
    {.kind = kCount,
     .label = "Total Number of Children Screened By OA",
     .source = Source::kRegisterScreened,
     .figure = F::kScreened},
    {.kind = kMissed, .label = "Total Number of Children who missed Screening By OA", .figure = F::kMissed},
    {.kind = kCount,
     .label = "Total Number of Children who Identified as having Eye Defects by OA",
     .source = Source::kChildren,
     .figure = F::kDefective,
     .tail = " and Screened='Y' and Screened_by='OA' and Condition='D'"},
    {.kind = kPercent,
     .label = "% of Children who were Screened by OA",
     .figure = F::kScreened,
     .over = F::kEnrolled},
    {.kind = kPercent,
     .label = "% of Children who missed Screening by OA",
     .figure = F::kMissed,
     .over = F::kEnrolled},
    {.kind = kPercent,
     .label = "% of Children who Identified as having Eye Defects by OA",
     .figure = F::kDefective,
     .over = F::kScreened},
};

constexpr Row kScreenedByWorker[] = {
    {.kind = kCount,
     .label = "Total Number of  Children Enrolled in Anganwadi Screening",
     .source = Source::kEnrolled,
     .figure = F::kEnrolled},
    {.kind = kCount,
     .label = "Total Number of Children Screened By Anganwadi Worker",
     .source = Source::kChildren,
     .figure = F::kScreened,
     .tail = " and Screened='Y' and Screened_By='AWW'"},
    {.kind = kCount,
     .label = "Total Number of Children who missed Screening By Anganwadi Worker",
     .source = Source::kChildren,
     .figure = F::kMissed,
     .tail = " and Screened='N'"},
    {.kind = kCount,
     .label = "Total Number of Children who Identified as having Eye Defects by Anganwadi worker",
     .source = Source::kChildren,
     .figure = F::kIdentified,
     .tail = " and Screened='Y' and Screened_by='AWW' and Condition='D'"},
    {.kind = kPercent,
     .label = "% of Children who were Screened by Anaganwadi Worker",
     .figure = F::kScreened,
     .over = F::kEnrolled},
    {.kind = kPercent,
     .label = "% of Children who missed Screening by Anaganwadi Worker",
     .figure = F::kMissed,
     .over = F::kEnrolled},
    {.kind = kPercent,
     .label = "% of Children who Identified as having Eye Defects by Anaganwadi Worker",
     .figure = F::kIdentified,
     .over = F::kEnrolled},
};

constexpr Row kExamined[] = {
    {.kind = kCount,
     .label = "Total Number of Children who were Examined by Opthalmic Assistant",
     .source = Source::kExaminations,
     .figure = F::kExamined,
     .tail = kExaminedTail},
    {.kind = kCount,
     .label = "Total Number of Children who missed Examination by Opthalmic Assistant",
     .source = Source::kChildren,
     .figure = F::kUnexamined,
     .tail = " and Condition='D' and Enroll_No not in(Select Enroll_No from Child_Record)"},
    {.kind = kCount,
     .label = "Total Number of Children who were Confirmed as having eye defects by Opthalmic Assistant",
     .source = Source::kExaminations,
     .figure = F::kDefective,
     .tail = kConfirmedTail},
    {.kind = kPercent,
     .label = "% of Children who missed Examination by Opthalmic Assistant",
     .figure = F::kUnexamined,
     .over = F::kIdentified},
    {.kind = kPercent,
     .label = "% of Children who were Confirmed as having eye defects by Opthalmic Assistant",
     .figure = F::kDefective,
     .over = F::kExamined},
};

constexpr Row kCamp[] = {
    {.kind = kHeading, .label = "OS Camp"},
    {.kind = kCount,
     .label = "Total Number of Children who were Examined by OS(Direct+OA Refered)",
     .source = Source::kExaminations,
     .figure = F::kExamined,
     .tail = kExaminedTail},
    {.kind = kCount,
     .label = "Total Number of Children who were Examined by OS(Direct)",
     .source = Source::kExaminations,
     .tail = " and a.Enroll_No=b.Enroll_No and b.Enroll_No not in(Select Enroll_No from Child_Record)"},
    {.kind = kCount,
     .label = "Total Number of Children who were Confirmed as having eye defects by OS",
     .source = Source::kExaminations,
     .figure = F::kDefective,
     .tail = kConfirmedTail},
    {.kind = kPercent,
     .label = "% of Children who were Confirmed as having eye defects by OS",
     .figure = F::kDefective,
     .over = F::kExamined},
};

constexpr Row kEyeDefects[] = {
    {.kind = kCount,
     .label = " Total Number of Children who were Confirmed as having Refractive Error by ",
     .source = Source::kCategory,
     .figure = F::kRefractive,
     .code = 1,
     .names_examiner = true},
    {.kind = kPercent,
     .label = "% of Children having Refractive Errors in Relation to the Children Screened in the Program",
     .figure = F::kRefractive,
     .over = F::kScreened},
    {.kind = kCount,
     .label = " Total Number of Children who were Confirmed as having Cataracts by ",
     .source = Source::kCategory,
     .figure = F::kCataracts,
     .code = 2,
     .names_examiner = true},
    {.kind = kPercent,
     .label = "% of Children having Cataracts in Relation to the Children Screened in the Program",
     .figure = F::kCataracts,
     .over = F::kScreened},
    {.kind = kCount,
     .label = " Total Number of Children who were Confirmed as having Squint by ",
     .source = Source::kCategory,
     .figure = F::kSquint,
     .code = 3,
     .names_examiner = true},
    {.kind = kPercent,
     .label = "% of Children having Squint in Relation to the Children Screened in the Program",
     .figure = F::kSquint,
     .over = F::kScreened},
    {.kind = kPercent,
     .label = "% of Children having Squint in Relation to total no of Children with eye Defects",
     .figure = F::kSquint,
     .over = F::kDefective},
};

constexpr Row kPtosis[] = {
    {.kind = kCount,
     .label = " Total Number of Children who were Confirmed as having Ptosis by OA",
     .source = Source::kCategory,
     .figure = F::kPtosis,
     .code = 6},
    {.kind = kPercent,
     .label = "% of Children having Ptosis in Relation to the Children Screened in the Program",
     .figure = F::kPtosis,
     .over = F::kScreened},
    {.kind = kPercent,
     .label = "% of Children having Ptosis in Relation to total no of Children with eye Defects",
     .figure = F::kPtosis,
     .over = F::kDefective},
};

constexpr Row kVitaminA[] = {{.kind = kCount,
                              .label = "Number of Children Suffering from Vitamin A Deficiency",
                              .source = Source::kCategory,
                              .figure = F::kVitaminA,
                              .code = 4}};
constexpr Row kVitaminAPercents[] = {
    {.kind = kPercent,
     .label = "% of Children having Vitamin A Deficiency in Relation to total no. of Children Screened",
     .figure = F::kVitaminA,
     .over = F::kScreened},
    {.kind = kPercent,
     .label = "% of Children having Vitamin A Deficiency in Relation to total no. of with eye Defects",
     .figure = F::kVitaminA,
     .over = F::kDefective},
};
constexpr Row kOtherCategory[] = {{.kind = kCount,
                                   .label = "Number of Children having other Category",
                                   .source = Source::kCategory,
                                   .code = 5}};

constexpr Row Treated(std::string_view label, Source source, int code) {
  return {.kind = kCount, .label = label, .source = source, .code = code};
}

constexpr Row kAdvisedToCamp[] = {
    Treated("Number of Children advised to come to OS CAMP", Source::kTreatment, 3)};
constexpr Row kReferredByCamp[] = {
    Treated("Number of Children advised to come to Eye Hospital(LEI)", Source::kTreatment, 4),
    Treated("Number of Children Refer to other Eye Hospital", Source::kTreatment, 5)};
constexpr Row kAttendedHospital[] = {
    Treated("Number of Children Attended to Eye Hospital(LEI)", Source::kAttended, 0)};
constexpr Row kAdvisedThroughVisionCenters[] = {
    Treated("Number of Children advised to come to Eye Hospital for Treatment", Source::kTreatment, 4)};
constexpr Row kAdvisedThroughAnganwadi[] = {
    Treated("Number of Children advised to come to Eye Hospital for Treatment", Source::kTreatmentRows, 3)};
constexpr Row kAdvisedToVisionCenter[] = {
    Treated("Number of Children advised to come to VC for Treatment", Source::kTreatmentRows, 7)};
constexpr Row kAdvisedForSpectacle[] = {
    Treated("Number of Children advised for Spectacle", Source::kTreatment, 6)};
constexpr Row kTurnedUp[] = {Treated("Number of Children advised to come to LEI", Source::kTreatment, 4),
                             Treated("Turnup child", Source::kTurnup, 4)};

constexpr RowGroup kSchoolGroups[] = {
    {kSchools},
    {kTrainedTeachers},
    {kEnrolledInSchools},
    {kScreenedByTeacher},
    {kExamined},
    {kEyeDefects},
    {kVitaminA},
    {kVitaminAPercents},
    {kOtherCategory},
    {kAdvisedToCamp},
    {kCamp, Examiner::kSurgeon},
    {kEyeDefects, Examiner::kSurgeon},
    {kVitaminA, Examiner::kSurgeon},
    {kVitaminAPercents, Examiner::kSurgeon},
    {kOtherCategory, Examiner::kSurgeon},
    {kReferredByCamp, Examiner::kSurgeon},
    {kAttendedHospital},
};

constexpr RowGroup kVisionGroups[] = {{kSchools},
                                      {kTrainedTeachers},
                                      {kEnrolledThroughVisionCenters},
                                      {kScreenedByTeacher},
                                      {kExamined},
                                      {kEyeDefects},
                                      {kVitaminA},
                                      {kOtherCategory},
                                      {kVitaminAPercents},
                                      {kAdvisedThroughVisionCenters}};

constexpr RowGroup kBlockGroups[] = {
    {kSchools}, {kTrainedTeachers}, {kEnrolledInSchools}, {kScreenedByTeacher}, {kExamined}, {kEyeDefects},
    {kPtosis},  {kVitaminA},        {kVitaminAPercents},  {kOtherCategory},     {kTurnedUp}};

constexpr RowGroup kDirectGroups[] = {{kSchoolsWithoutTotal},
                                      {kEnrolledInSchools},
                                      {kScreenedByAssistant},
                                      {kEyeDefects},
                                      {kPtosis},
                                      {kVitaminA},
                                      {kVitaminAPercents},
                                      {kOtherCategory},
                                      {kAdvisedForSpectacle},
                                      {kTurnedUp}};

constexpr RowGroup kAnganwadiGroups[] = {
    {kAnganwadiCenters}, {kTrainedTeachers}, {kScreenedByWorker}, {kExamined},
    {kEyeDefects},       {kVitaminA},        {kVitaminAPercents}, {kAdvisedThroughAnganwadi}};

constexpr RowGroup kProgrammeGroups[] = {{kAnganwadiCenters}, {kTrainedTeachers},      {kScreenedByWorker},
                                         {kExamined},         {kEyeDefects},           {kVitaminA},
                                         {kVitaminAPercents}, {kAdvisedToVisionCenter}};

}  // namespace

const ConsolidationTable SchoolReport{.groups = kSchoolGroups, .styles_row_35 = true};
const ConsolidationTable VisionReport{.groups = kVisionGroups};
const ConsolidationTable AnganwadiReport{.groups = kAnganwadiGroups,
                                         .block_lists = BlockLists::kAnganwadiCenters,
                                         .categories = CategoryFamily::kDiagnoses};
// The sankul's table ends before the row of the children who attended.
const ConsolidationTable SchoolSankulReport{
    .groups = std::span(kSchoolGroups).first<std::size(kSchoolGroups) - 1>(), .scope = Scope::kSankul};
const ConsolidationTable VisionSankulReport{.groups = kVisionGroups, .scope = Scope::kSankul};
const ConsolidationTable SchoolBlockReport{.groups = kBlockGroups, .scope = Scope::kBlock};
const ConsolidationTable DirectByOAReport{.groups = kDirectGroups, .scope = Scope::kBlock};
const ConsolidationTable ProgrammeReport{.groups = kProgrammeGroups,
                                         .scope = Scope::kProgramme,
                                         .block_lists = BlockLists::kProgrammeSchools,
                                         .categories = CategoryFamily::kDiagnoses};

}  // namespace ovindra
