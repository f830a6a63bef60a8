// Where the program's two connections lead: for each data source a database file of its name, looked for
// beside the program and then in the user's data folder, unless one folder was asked for. Fails with the
// error of a driver manager that knows no such data source.
#pragma once

#include <filesystem>
#include <memory>
#include <string_view>
#include <vector>

#include "base/database/connection.h"

namespace ovindra {

class FileDataSources : public DataSources {
 public:
  /// The folders that are looked into, in this order.
  explicit FileDataSources(std::vector<std::filesystem::path> folders) : folders_(std::move(folders)) {}

  std::unique_ptr<Session> Connect(std::string_view connection_string) override;

 private:
  std::vector<std::filesystem::path> folders_;
};

}  // namespace ovindra
