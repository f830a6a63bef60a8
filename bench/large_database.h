// The databases that the benchmarks run on, of a million children unless told otherwise: made once, then
// found again.
#pragma once

#include <filesystem>
#include <string>

#include "platform/embedded/embedded_database.h"

struct sqlite3;
struct sqlite3_stmt;

namespace ovindra::bench {

inline constexpr int kMillion = 1'000'000;

/// The folder with ZQR.db and ward.db of that many children, which is made when it is not there.
std::filesystem::path LargeFolder(int children = kMillion);

/// The screening database of that folder, opened as the program opens it.
std::unique_ptr<EmbeddedDatabase> OpenLarge(int children = kMillion);

/// The hospital records database of that folder.
std::unique_ptr<EmbeddedDatabase> OpenLargeHospital(int children = kMillion);

/// The same file by hand, through the C API of SQLite, with the settings of the program.
class ByHand {
 public:
  /// The screening database, or the other of the two.
  explicit ByHand(const char* file = "ZQR.db");
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
