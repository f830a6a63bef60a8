#include "tools/setup/running_numbers.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "base/text/blanks.h"
#include "base/text/utf8.h"
#include "tools/setup/statement.h"

namespace ovindra {
namespace {

/// The number that the digits of a key make; 0 for a key that is not all digits behind its prefix.
long long NumberIn(std::string_view key, std::string_view prefix) {
  if (key.size() <= prefix.size() || !SameWithoutCase(key.substr(0, prefix.size()), prefix)) return 0;
  key.remove_prefix(prefix.size());
  long long number = 0;
  const auto [end, error] = std::from_chars(key.data(), key.data() + key.size(), number);
  return error == std::errc{} && end == key.data() + key.size() ? number : 0;
}

}  // namespace

std::span<const CountedNumber> RunningNumbers() {
  static constexpr auto kCounters = std::to_array<CountedNumber>({
      {"ENROLL_NO", "enroll numbers", "select Enroll_No as Used from Enroll_Master", false},
      {"CHILD_RECORDNO", "examination records", "select Child_RecordNo as Used from Child_Record", false},
      {"CHILD_RECORDNOOS", "OS camp records", "select Child_RecordNo as Used from Child_RecordOS", false},
      {"SC_ID", "schools", "select SC_ID as Used from School_Master", true},
      {"VC_ID", "vision centers", "select VC_ID as Used from Vision_Center", true},
      {"AW_ID", "anganwadi centers", "select AW_ID as Used from Anganwadi_Center", true},
  });
  return kCounters;
}

long long HighestNumberInUse(Session& screening, const CountedNumber& counter, std::string_view prefix) {
  long long highest = 0;
  for (Recordset keys = Execute(screening, sql(counter.select_keys)); !keys.Eof(); keys.MoveNext()) {
    const std::string_view key = TrimRight(keys.At(0).RawText());
    const bool has_letter = !counter.has_prefix && !key.empty() && (key[0] < '0' || key[0] > '9');
    highest = std::max(highest, NumberIn(key, has_letter ? key.substr(0, 1) : prefix));
  }
  return highest;
}

void SetRunningNumber(Session& screening, std::string_view code, long long next) {
  Execute(screening, sql("update Running_Number set Control_Value=", Number(next),
                         " where RNControl_Code=", quoted(code)));
}

}  // namespace ovindra
