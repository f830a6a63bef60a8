// Feeds any bytes to the program as part of the schema of a database file that somebody else has written: the
// first byte says of which definition, the rest stands there. Whatever it is, a statement either runs or is
// refused.
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>

#include <sqlite3.h>

#include "base/runtime_error.h"
#include "platform/embedded/session/engine.h"
#include "platform/embedded/sqlite_statement.h"
#include "tests/fuzz/tables.h"

namespace {

using namespace ovindra;
using namespace ovindra::embedded;

/// A row of the schema, and what of its definition or name stands around the bytes.
struct Place {
  std::string_view object;
  std::string_view before;
  std::string_view after;
  bool is_name = false;
};

constexpr Place kPlaces[] = {
    {"Enroll_Master", "", ""},
    {"School_Master", R"(CREATE TABLE "School_Master"("SC_ID" varchar(20),"SC_Name" )",
     R"(,"Block_Code" int,"No_of_TTeacher" varchar(10),"Center_ID" varchar(20)))"},
    {"School_Master", R"(CREATE TABLE "School_Master"("SC_ID" )",
     R"(("SC_ID"),"SC_Name" text,"Block_Code" int,"No_of_TTeacher" text,"Center_ID" text))"},
    {"Center_Master1", R"(CREATE TABLE "Center_Master1"("Center_No" INTEGER PRIMARY KEY AUTOINCREMENT,)",
     R"(,"Center_Name" varchar(100) COLLATE NOCASE,"Amount" numeric(10,2)))"},
    {"User_Master",
     R"(CREATE TABLE "User_Master"("User_Code" INTEGER,"User_Name" text,"Password" text,CONSTRAINT )", ")"},
    {"User_Master", R"(CREATE TABLE "User_Master"("User_Code" INTEGER,"User_Name" text,"Password" text /*)",
     "*/)"},
    {"vw_Center", R"(CREATE VIEW "vw_Center" /*types:)",
     R"(*/ AS SELECT "Center_ID","Center_Name" AS "Shown","Amount" AS "Twice" FROM "Center_Master1")"},
    {"vw_Center", R"(CREATE VIEW "vw_Center" /*types:int;int;int;*/ AS SELECT )",
     R"( FROM "Center_Master1")"},
    {"IX_Mr", R"(CREATE UNIQUE INDEX "IX_Mr" ON "Enroll_Master")", ""},
    {"User_Master", "", "", true},
};

constexpr const char* kStatements[] = {
    "select * from Enroll_Master",
    "select count(*) from School_Master where Block_Code=1",
    "select * from vw_Center",
    "select a.Child_Name,b.SC_Name from Enroll_Master a,School_Master b where a.School_ID=b.SC_ID",
    "insert into Enroll_Master(Enroll_No,Child_Name,Age,Enroll_Date) values('A1','ASHA',5,'05/01/2016')",
    "insert into Enroll_Master(Enroll_No,Child_Name,Age,Enroll_Date) values('A1','ASHA',5,'05/01/2016')",
    "insert into School_Master values('SC1','HILL',1,'2','1')",
    "insert into Center_Master1(Center_Name,Amount) values('HILL','1.5')",
    "insert into User_Master(User_Name,Password) values('BOSS','boss')",
    "update Enroll_Master set Mr_No='M1',Screened='Y' where Enroll_No='A1'",
    "update Center_Master1 set Amount=Amount*2",
    "delete from User_Master where User_Code=1",
    "alter table School_Master add Extra varchar(10)",
    "create index IX_Block on School_Master(Block_Code)",
    "drop view vw_Center",
    "drop table Enroll_Master",
};

struct Closer {
  void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
};
using Database = std::unique_ptr<sqlite3, Closer>;

Database Opened() {
  sqlite3* database = nullptr;
  if (sqlite3_open(":memory:", &database) != SQLITE_OK) std::abort();
  return Database(database);
}

/// A database of the fixed tables as the bytes of its file.
std::string_view File() {
  static const Database database = [] {
    Database made = Opened();
    Engine(made.get(), "", "fuzz").Run(WholeStatement(fuzz::kTables));
    return made;
  }();
  static sqlite3_int64 size = 0;
  static const unsigned char* const bytes = sqlite3_serialize(database.get(), "main", &size, 0);
  return {reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(size)};
}

/// The file opened anew.
Database Copy() {
  Database database = Opened();
  const std::string_view file = File();
  auto* bytes = static_cast<unsigned char*>(sqlite3_malloc64(file.size()));
  file.copy(reinterpret_cast<char*>(bytes), file.size());
  const auto size = static_cast<sqlite3_int64>(file.size());
  if (sqlite3_deserialize(database.get(), "main", bytes, size, size,
                          SQLITE_DESERIALIZE_FREEONCLOSE | SQLITE_DESERIALIZE_RESIZEABLE) != SQLITE_OK) {
    std::abort();
  }
  return database;
}

void Change(sqlite3* database, const Place& place, const std::string& text) {
  sqlite3_exec(database, "PRAGMA writable_schema=ON", nullptr, nullptr, nullptr);
  {
    SqliteStatement statement(database, place.is_name ? "UPDATE sqlite_schema SET name=?1 WHERE name=?2"
                                                      : "UPDATE sqlite_schema SET sql=?1 WHERE name=?2");
    statement.Bind(1, std::string_view(text));
    statement.Bind(2, place.object);
    statement.Step();
  }
  // The next statement reads what stands there now.
  sqlite3_exec(database, "PRAGMA writable_schema=RESET", nullptr, nullptr, nullptr);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
  const Place& place = kPlaces[*data % std::size(kPlaces)];
  const Database database = Copy();
  Change(database.get(), place, std::string(place.before) + bytes + std::string(place.after));
  Engine engine(database.get(), "", "fuzz");
  for (const char* statement : kStatements) {
    try {
      engine.Run(WholeStatement(statement));
    } catch (const RuntimeError&) {
      // Refused, as what stands on a broken definition is.
    }
  }
  return 0;
}
