// The two databases of a scenario as the program reaches them: every statement that it hands over is
// recorded, may be made to fail, and then runs. Databases owns the databases themselves, which are made when
// they are first used; the sessions that it gives to the program only lead to them, so that the content may
// be exchanged under a running program.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/database/connection.h"
#include "tools/driver/world/trace.h"

namespace ovindra::driver {

enum class DatabaseName { kScreening, kHospital };

/// What a fresh pair of databases holds.
enum class DatabaseContent { kEmpty, kDemo };

/// Makes the database of that name with that content. Fails with RuntimeError.
using DatabaseMaker = std::function<std::unique_ptr<Session>(DatabaseName, DatabaseContent)>;

/// "screening" or "hospital".
std::string_view WordFor(DatabaseName name);

class Databases : public DataSources {
 public:
  Databases(DatabaseMaker make, Trace& trace) : make_(std::move(make)), trace_(trace) {}

  /// Both databases anew, with that content.
  void Fill(DatabaseContent content);

  /// Runs a statement that the scenario itself wrote, unrecorded.
  Recordset RunDirectly(DatabaseName name, const std::string& statement);

  /// The next statement that contains the fragment fails with the error and is not run.
  void FailNext(DatabaseName name, std::string fragment, RuntimeError error);

  /// The data source is missing from now on: connecting fails.
  void TakeAway(DatabaseName name) { Of(name).is_there = false; }
  bool IsThere(DatabaseName name) const { return Of(name).is_there; }

  /// The texts of the statements that the program has handed over since the last ForgetStatements.
  const std::vector<std::string>& statements(DatabaseName name) const { return Of(name).statements; }
  void ForgetStatements();

  std::unique_ptr<Session> Connect(std::string_view connection_string) override;

 private:
  class RecordingSession;

  struct FailRule {
    std::string fragment;
    RuntimeError error;
  };

  struct Side {
    std::unique_ptr<Session> database;
    std::vector<std::string> statements;
    std::vector<FailRule> fail_rules;
    bool is_there = true;
  };

  Side& Of(DatabaseName name) { return sides_[static_cast<std::size_t>(name)]; }
  const Side& Of(DatabaseName name) const { return sides_[static_cast<std::size_t>(name)]; }
  Session& Database(DatabaseName name);
  Recordset Run(DatabaseName name, const SqlText& statement);
  void FailIfToldTo(Side& side, const std::string& text);

  DatabaseMaker make_;
  Trace& trace_;
  DatabaseContent content_ = DatabaseContent::kEmpty;
  std::array<Side, 2> sides_;
};

}  // namespace ovindra::driver
