// Where the program's two connections lead: for each data source a database file of its name, looked for
// beside the program and then in the user's data folder, unless one folder was asked for; where there is no
// such file, the data source of that name that the machine's ODBC driver manager knows.
#pragma once

#include <filesystem>
#include <memory>
#include <string_view>
#include <vector>

#include "base/database/connection.h"

namespace ovindra {

class ConfiguredDataSources : public DataSources {
 public:
  /// The folders that are looked into, in this order.
  explicit ConfiguredDataSources(std::vector<std::filesystem::path> folders) : folders_(std::move(folders)) {}

  std::unique_ptr<Session> Connect(std::string_view connection_string) override;

 private:
  std::vector<std::filesystem::path> folders_;
};

}  // namespace ovindra
