// The database of a million children that the benchmarks run on: made once, then found again.
#pragma once

#include <filesystem>
#include <string>

#include "platform/embedded/embedded_database.h"

struct sqlite3;
struct sqlite3_stmt;

namespace ovindra::bench {

/// The folder with ZQR.db and ward.db of a million children, which is made when it is not there.
std::filesystem::path LargeFolder();

/// The screening database of that folder, opened as the program opens it.
std::unique_ptr<EmbeddedDatabase> OpenLarge();

/// The hospital records database of that folder.
std::unique_ptr<EmbeddedDatabase> OpenLargeHospital();

/// The same file by hand, through the C API of SQLite, with the settings of the program.
class ByHand {
 public:
  ByHand();
  ~ByHand();
  ByHand(const ByHand&) = delete;
  ByHand& operator=(const ByHand&) = delete;

  /// A prepared statement, which lasts as long as this object.
  sqlite3_stmt* Prepare(const std::string& sql);

 private:
  sqlite3* database_ = nullptr;
  std::vector<sqlite3_stmt*> statements_;
};

/// The first name of a school with about 300 children.
std::string SchoolOfThreeHundred(EmbeddedDatabase& database);

}  // namespace ovindra::bench
