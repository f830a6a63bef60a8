// The parts of the client that need no driver.
#include <gtest/gtest.h>

#include "base/database/database_error.h"
#include "platform/odbc/diagnostics.h"
#include "platform/odbc/odbc_session.h"
#include "platform/odbc/wide_text.h"

namespace ovindra::odbc {
namespace {

TEST(Diagnostics, LoseTheNamesOfThoseWhoPassedThemOn) {
  EXPECT_EQ(WithoutPrefixes("[FreeTDS][SQL Server]Invalid object name 'Chld'."),
            "Invalid object name 'Chld'.");
  EXPECT_EQ(WithoutPrefixes("[unixODBC][Driver Manager]Data source name not found"),
            "Data source name not found");
  EXPECT_EQ(WithoutPrefixes("Plain."), "Plain.");
  // What the server itself puts in brackets stays.
  EXPECT_EQ(WithoutPrefixes("[Vendor][Driver][Child] is no table."), "[Child] is no table.");
  EXPECT_EQ(WithoutPrefixes("[Vendor]Column [No] is unknown."), "Column [No] is unknown.");
  EXPECT_EQ(WithoutPrefixes("[unclosed"), "[unclosed");
  EXPECT_EQ(WithoutPrefixes(""), "");
}

TEST(Diagnostics, GiveEachStateTheNumberOfItsClass) {
  const auto number = [](std::string_view state) { return RefusalFor(state, "text").number(); };
  EXPECT_EQ(number("42S02"), -2147217865);
  for (const char* state : {"42000", "42S01", "42S22", "37000", "S0022"})
    EXPECT_EQ(number(state), -2147217900);
  for (const char* state : {"23000", "23505"}) EXPECT_EQ(number(state), -2147217873);
  for (const char* state : {"22018", "22007", "22008"}) EXPECT_EQ(number(state), -2147217913);
  for (const char* state : {"22001", "22003"}) EXPECT_EQ(number(state), -2147217833);
  for (const char* state : {"08S01", "HYT00", "IM002", "22012", "40001", ""})
    EXPECT_EQ(number(state), -2147467259);
}

TEST(ConnectionString, HandsTheUserIdOnAsUid) {
  EXPECT_EQ(DriverConnectionString("DSN=ZQR;user ID=sa;pwd=nova..381;"), "DSN=ZQR;UID=sa;pwd=nova..381;");
  EXPECT_EQ(DriverConnectionString(" dsn = ward ; USER id=sa"), "dsn=ward;UID=sa;");
}

TEST(SessionSettings, AreForTransactSqlServersAlone) {
  ASSERT_FALSE(SessionSettings("Microsoft SQL Server").empty());
  EXPECT_EQ(SessionSettings("Microsoft SQL Server").back(), "set dateformat mdy");
  EXPECT_TRUE(SessionSettings("PostgreSQL").empty());
  EXPECT_TRUE(SessionSettings("SQLite").empty());
}

TEST(WideText, KeepsEveryCharacter) {
  const std::string text = "aü अ 𝄞";
  const std::vector<SQLWCHAR> wide = WideText(text);
  EXPECT_EQ(wide, (std::vector<SQLWCHAR>{'a', 0xFC, ' ', 0x905, ' ', 0xD834, 0xDD1E}));
  EXPECT_EQ(NarrowText(wide.data(), wide.size()), text);
  const std::vector<SQLWCHAR> torn{'a', 0xD834, 'b', 0xDD1E};
  EXPECT_EQ(NarrowText(torn.data(), torn.size()), "a\uFFFDb\uFFFD");
  EXPECT_EQ(WideText("\xFF"), (std::vector<SQLWCHAR>{0xFFFD}));
}

}  // namespace
}  // namespace ovindra::odbc
