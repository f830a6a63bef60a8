#include <gtest/gtest.h>

#include "test_database.h"

namespace ovindra {
namespace {

TEST(ServerRefusals, OfNamesAndShapes) {
  TestDatabase database(
      "create table Ward (Code varchar(5) primary key, Beds int, No int identity)\n"
      "create table Bed (Code varchar(5), Number int)\n"
      "create index IX_Bed on Bed(Code)");
  const std::pair<const char*, const char*> kCases[] = {
      {"select * from Nowhere", "-2147217865 Invalid object name 'Nowhere'."},
      {"select * from other.Ward", "-2147217865 Invalid object name 'other.Ward'."},
      {"select * from sqlite_schema", "-2147217865 Invalid object name 'sqlite_schema'."},
      {"insert into Nowhere values(1)", "-2147217865 Invalid object name 'Nowhere'."},
      {"select x from Ward", "-2147217900 Invalid column name 'x'."},
      {"select * from Ward where Beds=False", "-2147217900 Invalid column name 'False'."},
      {"insert into Ward(Code) values(False)", "-2147217900 Invalid column name 'False'."},
      {"select w.x from Ward w", "-2147217900 Invalid column name 'x'."},
      {"select b.Code from Ward w", "-2147217900 The multi-part identifier \"b.Code\" could not be bound."},
      {"select Ward.Code from Ward w",
       "-2147217900 The multi-part identifier \"Ward.Code\" could not be bound."},
      {"select Code from Ward,Bed", "-2147217900 Ambiguous column name 'Code'."},
      {"select w.Code,b.Code from Ward w,Bed b order by Code", "-2147217900 Ambiguous column name 'Code'."},
      {"select 1 from Ward a,Bed A",
       "-2147217900 The objects \"A\" and \"A\" in the FROM clause have the same exposed names. Use "
       "correlation names to "
       "distinguish them."},
      {"select * from (select Code,Code from Ward) t",
       "-2147217900 The column 'Code' was specified multiple times for 't'."},
      {"select * from (select count(*) from Ward) t",
       "-2147217900 No column name was specified for column 1 of 't'."},
      {"select nothing(1)", "-2147217900 'nothing' is not a recognized built-in function name."},
      {"select len('a','b')", "-2147217900 The len function requires 1 argument(s)."},
      {"select convert(money,1)", "-2147217900 Cannot find data type money."},
      {"select Code,count(*) from Ward",
       "-2147217900 Column 'Code' is invalid in the select list because it is not contained in either an "
       "aggregate "
       "function or the GROUP BY clause."},
      {"select Beds+1,count(*) from Ward group by Code",
       "-2147217900 Column 'Beds' is invalid in the select list because it is not contained in either an "
       "aggregate "
       "function or the GROUP BY clause."},
      {"select distinct Code from Ward order by Beds",
       "-2147217900 ORDER BY items must appear in the select list if SELECT DISTINCT is specified."},
      {"select Code from Ward order by 2",
       "-2147217900 The ORDER BY position number 2 is out of range of the number of items in the select "
       "list."},
      {"select Code from Ward union select Code,Number from Bed",
       "-2147217900 All queries combined using a UNION, INTERSECT or EXCEPT operator must have an equal "
       "number of "
       "expressions in their target lists."},
      {"select * from Ward where Code in (select Code,Number from Bed)",
       "-2147217900 Only one expression can be specified in the select list when the subquery is not "
       "introduced with "
       "EXISTS."},
      {"select * from Ward where Beds",
       "-2147217900 An expression of non-boolean type specified in a context where a condition is expected."},
      {"insert into Bed values('A')",
       "-2147217900 Column name or number of supplied values does not match table definition."},
      {"insert into Bed(Code) values('A',1)",
       "-2147217900 There are fewer columns in the INSERT statement than values specified in the VALUES "
       "clause. The "
       "number of values in the VALUES clause must match the number of columns specified in the INSERT "
       "statement."},
      {"insert into Bed(Code,Number) values('A')",
       "-2147217900 There are more columns in the INSERT statement than values specified in the VALUES "
       "clause. The "
       "number of values in the VALUES clause must match the number of columns specified in the INSERT "
       "statement."},
      {"update Ward set No=5", "-2147217900 Cannot update identity column 'No'."},
      {"create table Ward (x int)", "-2147217900 There is already an object named 'Ward' in the database."},
      {"select * into IX_Bed from Ward",
       "-2147217900 There is already an object named 'IX_Bed' in the database."},
      {"create index Ward on Bed(Code)",
       "-2147217900 There is already an object named 'Ward' in the database."},
      {"create table sqlite_new (x int)",
       "-2147217900 The embedded database does not know 'sqlite_new' (at character 14)."},
      {"create table T (x int,X int)",
       "-2147217900 Column names in each table must be unique. Column name 'X' in table 'T' is specified "
       "more than once."},
      {"alter table Bed add Number int",
       "-2147217900 Column names in each table must be unique. Column name 'Number' in table 'Bed' is "
       "specified more than "
       "once."},
      {"create index IX_Bed on Ward(Beds)",
       "-2147217900 The operation failed because an index or statistics with name 'IX_Bed' already exists on "
       "table "
       "'Ward'."},
      {"drop table Nowhere",
       "-2147217865 Cannot drop the table 'Nowhere', because it does not exist or you do not have "
       "permission."},
      {"select 'it", "-2147217900 Unclosed quotation mark after the character string 'it'."},
  };
  for (const auto& [statement, refusal] : kCases)
    EXPECT_EQ(database.Refusal(statement), refusal) << statement;
  EXPECT_EQ(database.Value("select count(*) from Ward"), "0") << "and nothing was stored";
}

TEST(ServerRefusals, ATextColumnComparedWithANumberConvertsEachRow) {
  TestDatabase database("create table T (Code varchar(5))\ninsert into T values('1'),(''),(' 2')");
  EXPECT_EQ(database.Value("select count(*) from T where Code=0"), "1") << "the empty text is 0";
  EXPECT_EQ(database.Value("select count(*) from T where Code>=1"), "2");
  database.Run("insert into T values('VC1')");
  EXPECT_EQ(database.Refusal("select * from T where Code=1"),
            "-2147217913 Conversion failed when converting the varchar value 'VC1' to data type int.");
  EXPECT_EQ(database.Refusal("select * from T where Code=1.5"),
            "-2147217913 Error converting data type varchar to numeric.");
}

TEST(ServerRefusals, ABadLiteralIsRefusedWithoutAnyRow) {
  TestDatabase database("create table T (D datetime, N int)");
  EXPECT_EQ(database.Refusal("select * from T where D='soon'"),
            "-2147217913 Conversion failed when converting date and/or time from character string.");
  EXPECT_EQ(database.Refusal("select * from T where N='x'"),
            "-2147217913 Conversion failed when converting the varchar value 'x' to data type int.");
}

}  // namespace
}  // namespace ovindra
