// The distinct statements that databases have run while scenarios were played, the program's and the
// scenarios' own, as a script for whoever checks their language. What a database refused is not among them.
#pragma once

#include <memory>
#include <ostream>
#include <set>
#include <string>

#include "tools/driver/world/databases.h"

namespace ovindra::driver {

class StatementLog {
 public:
  /// Databases of the maker whose statements are kept here as long as either stands.
  DatabaseMaker Over(DatabaseMaker make) const;

  /// Writes the statements in the order of their texts, each a batch of its own, ended by a line GO.
  void Write(std::ostream& out) const;

 private:
  std::shared_ptr<std::set<std::string>> statements_ = std::make_shared<std::set<std::string>>();
};

}  // namespace ovindra::driver
