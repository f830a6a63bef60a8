// The databases of scenarios on the real engine: fresh ones, the demo, the files of a folder.
#include <filesystem>

#include <gtest/gtest.h>

#include "core/schema/schema.h"
#include "platform/embedded/embedded_database.h"
#include "tests/unit/tools/driver/desk.h"
#include "tools/driver/language/grammar.h"
#include "tools/driver/runner/query_result.h"
#include "tools/driver/store/database_store.h"

namespace ovindra::driver {
namespace {

std::string Rows(Session& session, const char* query) {
  return RowsAsText(session.Run(WholeStatement(query)));
}

TEST(FreshDatabases, HoldTheRowsThatMustExistAndKeepNothingOfOneAnother) {
  const DatabaseMaker make = DatabasesFrom("");
  const auto first = make(DatabaseName::kScreening, DatabaseContent::kEmpty);
  const auto second = make(DatabaseName::kScreening, DatabaseContent::kEmpty);
  first->Run(WholeStatement("update Running_Number set Control_Value=7 where RNControl_Code='ENROLL_NO'"));
  first->Run(WholeStatement("insert into Country_Master(Country_Name) values('INDIA')"));
  const char* const counter = "select Control_Value from Running_Number where RNControl_Code='ENROLL_NO'";
  EXPECT_EQ(Rows(*first, counter), "7");
  EXPECT_EQ(Rows(*second, counter), "1");
  second->Run(WholeStatement("insert into Country_Master(Country_Name) values('NEPAL')"));
  EXPECT_EQ(Rows(*second, "select Country_Code,Country_Name from Country_Master"), "1|NEPAL");
}

TEST(FreshDatabases, TheDemoFillsBoth) {
  const DatabaseMaker make = DatabasesFrom("");
  const auto screening = make(DatabaseName::kScreening, DatabaseContent::kDemo);
  const auto again = make(DatabaseName::kScreening, DatabaseContent::kDemo);
  screening->Run(WholeStatement("delete from Enroll_Master"));
  EXPECT_EQ(Rows(*screening, "select count(*) from Enroll_Master"), "0");
  EXPECT_NE(Rows(*again, "select count(*) from Enroll_Master"), "0");
  EXPECT_EQ(Rows(*again, "select User_Name from User_Master where User_Name='ADMIN'"), "ADMIN");
  EXPECT_NO_THROW(make(DatabaseName::kHospital, DatabaseContent::kDemo));
}

TEST(DatabaseFiles, ArePlayedOnInPlaceOfFreshOnes) {
  const ScratchFolder folder;
  EXPECT_THROW(DatabasesFrom(folder.Path("")), LanguageError);
  EmbeddedOptions options;
  options.access = EmbeddedOptions::Access::kCreate;
  options.schema_version = kSchemaVersion;
  for (const char* file : {"ZQR.db", "ward.db"})
    EmbeddedDatabase::Open(folder.Path(file), options)->Run(WholeStatement("create table Desk (Code int)"));
  const DatabaseMaker make = DatabasesFrom(folder.Path(""));
  make(DatabaseName::kScreening, DatabaseContent::kDemo)->Run(WholeStatement("insert into Desk values (5)"));
  EXPECT_EQ(Rows(*make(DatabaseName::kScreening, DatabaseContent::kEmpty), "select Code from Desk"), "5");
}

}  // namespace
}  // namespace ovindra::driver
