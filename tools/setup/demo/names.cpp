#include "tools/setup/demo/names.h"

#include <array>
#include <string_view>

namespace ovindra::demo {
namespace {

constexpr auto kBoys = std::to_array<std::string_view>(
    {"AMIT",   "RAHUL",   "SONU",   "VIKASH", "RAJESH", "SUJIT",  "ROHIT", "ABHISHEK", "DEEPAK", "MANISH",
     "PANKAJ", "CHANDAN", "GAURAV", "NITISH", "SAURAV", "ANKIT",  "RAVI",  "SUNIL",    "GOLU",   "PRINCE",
     "AYUSH",  "KUNDAN",  "MUKESH", "NIRAJ",  "SHIVAM", "SATYAM", "VIVEK", "DILIP",    "BIKASH", "RAUSHAN"});
constexpr auto kGirls = std::to_array<std::string_view>(
    {"PRIYA", "NEHA",  "ANJALI", "KAJAL",   "PUJA",    "KHUSHBU", "SONI",    "RUBY",    "NISHA",   "MUSKAN",
     "RANI",  "SWETA", "RINKU",  "SAPNA",   "JYOTI",   "ARTI",    "PINKI",   "SONAM",   "KOMAL",   "SIMRAN",
     "ASHA",  "LAXMI", "RADHA",  "SHIVANI", "NANDANI", "ANSHU",   "CHANDNI", "MADHURI", "PALLAVI", "SHALU"});
constexpr auto kMen = std::to_array<std::string_view>(
    {"RAM",    "SHYAM",    "MOHAN",    "SURESH",   "RAMESH",  "DINESH",  "MAHESH",   "UMESH",
     "GANESH", "RAJENDRA", "SURENDRA", "JITENDRA", "UPENDRA", "BINOD",   "ARUN",     "ASHOK",
     "LALAN",  "BHOLA",    "KRISHNA",  "SHANKAR",  "ARJUN",   "BALRAM",  "NAGENDRA", "SATISH",
     "SANJAY", "VINAY",    "RAKESH",   "MANOJ",    "AJAY",    "YOGENDRA"});
constexpr auto kWomen = std::to_array<std::string_view>(
    {"SITA",  "GEETA",  "MEENA", "SUNITA", "ANITA", "URMILA", "KIRAN",  "SAROJ", "REKHA",   "USHA",
     "MANJU", "SHANTI", "PHULO", "BIBHA",  "INDU",  "KUSUM",  "POONAM", "RENU",  "SUSHILA", "MALTI"});
constexpr auto kSurnames = std::to_array<std::string_view>(
    {"KUMAR", "SINGH",  "YADAV",     "SAH", "PASWAN", "RAM",   "MAHTO",  "THAKUR", "SHARMA", "PRASAD",
     "RAI",   "MANJHI", "CHAUDHARY", "JHA", "MISHRA", "GUPTA", "PANDIT", "SAHNI",  "PATEL",  "VERMA"});
constexpr auto kMuslimBoys = std::to_array<std::string_view>(
    {"MD SALMAN", "MD IMRAN", "MD ARIF", "MD FAIZAN", "MD SAHIL", "MD AFTAB", "MD ZEESHAN", "MD RIYAZ"});
constexpr auto kMuslimGirls = std::to_array<std::string_view>(
    {"SHABNAM", "NAZIA", "RUKHSAR", "SANA", "NUSRAT", "GULSHAN", "TARANNUM", "ZEENAT"});
constexpr auto kMuslimMen = std::to_array<std::string_view>(
    {"MD ALAM", "MD YUSUF", "MD ISLAM", "MD HANIF", "MD RAFIQUE", "MD JAMAL", "MD KALIM", "MD NASIM"});
constexpr auto kMuslimWomen =
    std::to_array<std::string_view>({"NAJMA KHATOON", "HASINA BEGUM", "SAIRA BANO"});

constexpr auto kVillageHeads = std::to_array<std::string_view>(
    {"RAM",   "SHIV",   "HARI",   "MADHO",  "GOPAL",    "BISHUN",  "KISHAN", "SITA",   "BHAGWAN", "JAGDISH",
     "LAL",   "MOHAN",  "SONE",   "NAR",    "RAJA",     "BHIKHAN", "CHAND",  "DHARAM", "FATEH",   "GANGA",
     "HASAN", "ISMAIL", "JAI",    "KALYAN", "LACHHMAN", "MAHMUD",  "NAND",   "PIR",    "RUP",     "SULTAN",
     "TEJ",   "UDAI",   "BASANT", "BALUA",  "DUMARI",   "KHAJ",    "MANIK",  "PARSA",  "SEMRA",   "TARA"});
constexpr auto kVillageTails = std::to_array<std::string_view>(
    {"PUR", "NAGAR", "GANJ", "PATTI", "TOLA", "CHAK", "DIH", "BARI", "HATA", "GACHHI", "KALAN", "KHURD"});

std::string Join(std::string_view first, std::string_view second) {
  return std::string(first) + " " + std::string(second);
}

}  // namespace

Family MakeFamily(Random& random, bool boy) {
  if (random.Chance(14)) {
    std::string child =
        boy ? std::string(random.Pick(kMuslimBoys)) : Join(random.Pick(kMuslimGirls), "KHATOON");
    return {std::move(child),
            std::string(random.Chance(85) ? random.Pick(kMuslimMen) : random.Pick(kMuslimWomen))};
  }
  const std::string_view surname = random.Pick(kSurnames);
  std::string child = boy ? Join(random.Pick(kBoys), surname) : Join(random.Pick(kGirls), "KUMARI");
  std::string parent =
      random.Chance(85) ? Join(random.Pick(kMen), surname) : Join(random.Pick(kWomen), "DEVI");
  return {std::move(child), std::move(parent)};
}

std::string PersonName(Random& random, bool man) {
  if (!man) return Join(random.Pick(kWomen), "DEVI");
  const std::string_view surname = random.Pick(kSurnames);
  return Join(random.Pick(kMen), surname);
}

std::string MobileNumber(Random& random) {
  std::string digits(1, static_cast<char>('7' + random.Below(3)));
  while (digits.size() < 10) digits += static_cast<char>('0' + random.Below(10));
  return digits;
}

std::string Villages::Next() {
  for (int tries = 0;; ++tries) {
    const std::string_view tail = random_.Pick(kVillageTails);
    std::string name = std::string(random_.Pick(kVillageHeads)) + std::string(tail);
    if (tries > 20) name += " " + std::to_string(random_.Between(2, 99));
    if (given_.insert(name).second) return name;
  }
}

}  // namespace ovindra::demo
