// Names as they are written in the north of India, in capitals, and never with a quote.
#pragma once

#include <string>
#include <unordered_set>

#include "tools/setup/demo/random.h"

namespace ovindra::demo {

/// A child and its father or mother, of one family.
struct Family {
  std::string child;
  std::string parent;
};

Family MakeFamily(Random& random, bool boy);

/// A grown person.
std::string PersonName(Random& random, bool man);

/// Ten digits.
std::string MobileNumber(Random& random);

/// Gives each village name once.
class Villages {
 public:
  explicit Villages(Random& random) : random_(random) {}

  /// Keeps a name from being given.
  void Reserve(std::string name) { given_.insert(std::move(name)); }

  std::string Next();

 private:
  Random& random_;
  std::unordered_set<std::string> given_;
};

}  // namespace ovindra::demo
