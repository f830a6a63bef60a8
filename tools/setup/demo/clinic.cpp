#include "tools/setup/demo/clinic.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "tools/setup/statement.h"

namespace ovindra::demo {
namespace {

enum Category { kRefractive = 1, kCataract, kSquint, kVitaminA, kOther, kPtosis };

enum TreatmentCode {
  kMedicine = 1,
  kSpectacle,
  kToCamp,
  kToHospital,
  kToOtherHospital,
  kSpectacleAdvised,
  kToVisionCenter
};

struct Diagnosis {
  std::string_view name;
  int category;
};

constexpr auto kDiagnoses = std::to_array<Diagnosis>({{"MYOPIA", kRefractive},
                                                      {"HYPERMETROPIA", kRefractive},
                                                      {"ASTIGMATISM", kRefractive},
                                                      {"AMBLYOPIA", kRefractive},
                                                      {"DEVELOPMENTAL CATARACT", kCataract},
                                                      {"TRAUMATIC CATARACT", kCataract},
                                                      {"ESOTROPIA", kSquint},
                                                      {"EXOTROPIA", kSquint},
                                                      {"BITOT SPOT", kVitaminA},
                                                      {"NIGHT BLINDNESS", kVitaminA},
                                                      {"ALLERGIC CONJUNCTIVITIS", kOther},
                                                      {"CORNEAL OPACITY", kOther},
                                                      {"BLEPHARITIS", kOther},
                                                      {"NYSTAGMUS", kOther},
                                                      {"CONGENITAL PTOSIS", kPtosis}});

/// One entry for each twentieth of the children with a defect.
constexpr auto kCategoryShares = std::to_array<int>(
    {kRefractive, kRefractive, kRefractive, kRefractive, kRefractive, kRefractive, kRefractive,
     kRefractive, kRefractive, kRefractive, kCataract,   kSquint,     kSquint,     kVitaminA,
     kVitaminA,   kVitaminA,   kOther,      kOther,      kOther,      kPtosis});

int DiagnosisOf(Random& random, int category) {
  std::vector<int> codes;
  for (std::size_t i = 0; i < kDiagnoses.size(); ++i) {
    if (kDiagnoses[i].category == category) codes.push_back(static_cast<int>(i) + 1);
  }
  return random.Pick(codes);
}

/// A power in quarters of a dioptre as the lists of the form write it.
std::string Power(int quarters) {
  if (quarters == 0) return "0.00";
  char text[16];
  std::snprintf(text, sizeof text, "%+.2f", quarters / 4.0);
  return text;
}

constexpr auto kAcuities =
    std::to_array<std::string_view>({"6/9", "6/12", "6/18", "6/24", "6/36", "6/60", "CF"});

EyeValues RefractiveEye(Random& random) {
  EyeValues eye;
  const int quarters = random.Chance(75) ? -random.Between(1, 24) : random.Between(1, 16);
  eye.sph = Power(quarters);
  if (random.Chance(40)) {
    eye.cyl = Power(random.Chance(80) ? -random.Between(1, 10) : random.Between(1, 6));
    eye.axis = std::to_string(random.Between(1, 36) * 5);
  }
  const std::size_t worst =
      std::min<std::size_t>(kAcuities.size() - 1, static_cast<std::size_t>(std::abs(quarters)) / 4);
  eye.va = kAcuities[worst];
  return eye;
}

EyeValues OtherEye(Random& random) {
  return {"", "", "", random.Chance(70) ? "6/6" : std::string(random.Pick(kAcuities))};
}

/// Where a child is sent whom the assistant can't treat: schools of a hospital have a camp of the surgeon.
int SentTo(Random& random, Location location) {
  if (location == Location::kHospital && random.Chance(70)) return kToCamp;
  if (location == Location::kAnganwadi && random.Chance(40))
    return random.Chance(40) ? kToVisionCenter : kToCamp;
  return random.Chance(85) ? kToHospital : kToOtherHospital;
}

Treatment Spectacle(Random& random) {
  return {kSpectacle, random.Chance(70) ? "F" : "P"};
}

void OrderTreatments(Examination& examination, Random& random, Location location) {
  std::vector<Treatment>& treatments = examination.treatments;
  switch (examination.category) {
    case kRefractive:
      if (random.Chance(75)) {
        treatments.push_back(Spectacle(random));
      } else {
        treatments.push_back({kSpectacleAdvised, {}});
      }
      if (random.Chance(12)) treatments.push_back({SentTo(random, location), {}});
      break;
    case kCataract:
    case kSquint:
    case kPtosis:
      treatments.push_back({SentTo(random, location), {}});
      break;
    case kVitaminA:
      treatments.push_back({kMedicine, {}});
      if (random.Chance(30)) treatments.push_back({kToVisionCenter, {}});
      break;
    default:
      treatments.push_back({kMedicine, {}});
      if (random.Chance(35)) treatments.push_back({SentTo(random, location), {}});
  }
}

Examination DefectedEyes(Random& random, Date day, int category) {
  Examination examination{day, true, category, {}, {}, {}, {}};
  const bool refractive = category == kRefractive;
  examination.left = refractive ? RefractiveEye(random) : OtherEye(random);
  examination.right = refractive ? RefractiveEye(random) : OtherEye(random);
  examination.diagnoses.push_back(DiagnosisOf(random, category));
  if (random.Chance(10)) {
    const int second = DiagnosisOf(random, random.Pick(kCategoryShares));
    if (second != examination.diagnoses.front()) examination.diagnoses.push_back(second);
  }
  return examination;
}

Examination NormalEyes(Date day) {
  return {day, false, 0, {"", "", "", "6/6"}, {"", "", "", "6/6"}, {}, {}};
}

}  // namespace

bool Examination::Orders(int treatment_code) const {
  return std::any_of(treatments.begin(), treatments.end(),
                     [&](const Treatment& treatment) { return treatment.code == treatment_code; });
}

void WriteDiagnoses(Session& screening) {
  RowWriter rows(screening, "insert into Diagnosis_Master (Diagnosis_Name,Category_Code) values");
  for (const Diagnosis& diagnosis : kDiagnoses)
    rows.Add(Row(quoted(diagnosis.name), Number(diagnosis.category)));
}

Examination ExaminedByAssistant(Random& random, Date day, Location location) {
  if (random.Chance(12)) return NormalEyes(day);
  Examination examination = DefectedEyes(random, day, random.Pick(kCategoryShares));
  OrderTreatments(examination, random, location);
  return examination;
}

Examination ExaminedBySurgeon(Random& random, Date day, int category) {
  if (random.Chance(8)) return NormalEyes(day);
  Examination examination =
      DefectedEyes(random, day, category == 0 ? random.Pick(kCategoryShares) : category);
  if (examination.category == kRefractive) {
    examination.treatments.push_back(Spectacle(random));
  } else if (random.Chance(70)) {
    examination.treatments.push_back({kToHospital, {}});
  } else {
    examination.treatments.push_back({random.Chance(50) ? kToOtherHospital : kMedicine, {}});
  }
  return examination;
}

}  // namespace ovindra::demo
