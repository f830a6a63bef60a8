// The counters from which the program makes its keys: which key each serves, and how far the keys have come.
// A counter holds the next number to use; one that is not past the highest key in use makes the next save
// collide.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "base/database/connection.h"

namespace ovindra {

/// A counter, and the column whose keys are made from it.
struct CountedNumber {
  std::string_view code;
  /// What the keys are, in the words of the people who use the program.
  std::string_view keys;
  Fragment select_keys;
  /// The keys begin with the counter's own prefix, and not with the letter of a location or with nothing.
  bool has_prefix;
};

std::span<const CountedNumber> RunningNumbers();

/// The highest number that a key of this counter holds, 0 when there is none. The prefix is that of the
/// counter's row; keys that were not made from the counter are passed over.
long long HighestNumberInUse(Session& screening, const CountedNumber& counter, std::string_view prefix);

/// Sets the next number to use.
void SetRunningNumber(Session& screening, std::string_view code, long long next);

}  // namespace ovindra
