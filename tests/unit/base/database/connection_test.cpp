#include "base/database/connection.h"

#include <gtest/gtest.h>

#include "base/database/database_error.h"

namespace ovindra {
namespace {

class CountingSession : public Session {
 public:
  explicit CountingSession(int& count) : count_(count) {}
  Recordset Run(const SqlText&) override {
    ++count_;
    return {};
  }

 private:
  int& count_;
};

class OneSource : public DataSources {
 public:
  std::unique_ptr<Session> Connect(std::string_view) override {
    return std::make_unique<CountingSession>(runs);
  }
  int runs = 0;
};

long NumberOf(Connection& connection, const SqlText& statement) {
  try {
    connection.Execute(statement);
  } catch (const RuntimeError& error) {
    return error.number();
  }
  return 0;
}

TEST(Connections, HandOverOnlyWhatCanBeRun) {
  OneSource source;
  Connection connection;
  EXPECT_EQ(NumberOf(connection, sql("select 1")), 3709);
  connection.Open(source, "DSN=ZQR;");
  EXPECT_EQ(NumberOf(connection, SqlText()), -2147217908);
  EXPECT_EQ(NumberOf(connection, sql("  ")), -2147217908);
  EXPECT_EQ(NumberOf(connection, sql("select ", quoted("o'n"))), -2147217900);
  EXPECT_EQ(source.runs, 0);
  EXPECT_EQ(NumberOf(connection, sql("select 1")), 0);
  EXPECT_EQ(source.runs, 1);
  connection.Close();
  EXPECT_EQ(NumberOf(connection, sql("select 1")), 3709);
}

}  // namespace
}  // namespace ovindra
