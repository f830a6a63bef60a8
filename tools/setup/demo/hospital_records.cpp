#include "tools/setup/demo/hospital_records.h"

#include <array>

namespace ovindra::demo {
namespace {

struct Icd {
  std::string_view code;
  std::string_view description;
  /// The category of diagnoses that it belongs to.
  int category;
};

constexpr auto kIcdCodes = std::to_array<Icd>({{"H52.0", "HYPERMETROPIA", 1},
                                               {"H52.1", "MYOPIA", 1},
                                               {"H52.2", "ASTIGMATISM", 1},
                                               {"H26.0", "INFANTILE AND JUVENILE CATARACT", 2},
                                               {"H26.1", "TRAUMATIC CATARACT", 2},
                                               {"H50.0", "CONVERGENT CONCOMITANT STRABISMUS", 3},
                                               {"H50.1", "DIVERGENT CONCOMITANT STRABISMUS", 3},
                                               {"E50.5", "VITAMIN A DEFICIENCY WITH NIGHT BLINDNESS", 4},
                                               {"H10.1", "ACUTE ATOPIC CONJUNCTIVITIS", 5},
                                               {"H17.9", "CORNEAL SCAR AND OPACITY, UNSPECIFIED", 5},
                                               {"H55", "NYSTAGMUS AND OTHER IRREGULAR EYE MOVEMENTS", 5},
                                               {"H02.4", "PTOSIS OF EYELID", 6}});

const Icd& CodeOf(Random& random, int category) {
  std::vector<const Icd*> fitting;
  for (const Icd& icd : kIcdCodes) {
    if (icd.category == category) fitting.push_back(&icd);
  }
  return fitting.empty() ? random.Pick(kIcdCodes) : *random.Pick(fitting);
}

}  // namespace

void WriteHospitalRecords(Session& hospital, std::span<const Patient> patients, Random& random) {
  RowWriter codes(hospital, "insert into icd_code_master (icd_code,icd_description) values");
  for (const Icd& icd : kIcdCodes) codes.Add(Row(quoted(icd.code), quoted(icd.description)));

  RowWriter records(hospital, "insert into medical_record_dtl (mr_no,icd_code) values");
  long own_number = 100001;
  for (const Patient& patient : patients) {
    // Some children have been registered, but not coded yet.
    if (random.Chance(92))
      records.Add(Row(quoted(patient.mr_no), quoted(CodeOf(random, patient.category).code)));
    if (random.Chance(25)) records.Add(Row(quoted(patient.mr_no), quoted(random.Pick(kIcdCodes).code)));
    records.Add(Row(quoted("MR" + std::to_string(own_number++)), quoted(random.Pick(kIcdCodes).code)));
  }
}

}  // namespace ovindra::demo
