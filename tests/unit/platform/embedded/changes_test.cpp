#include <gtest/gtest.h>

#include "test_database.h"

namespace ovindra {
namespace {

constexpr std::string_view kPeople = R"(
create table Person (
  Code int identity primary key,
  Label as convert(varchar(10),Code) persisted,
  Name varchar(10) not null constraint UQ_Person_Name unique,
  Age int,
  Born datetime,
  Seen varchar(1) default 'N',
  Weight numeric(5,1)
)
create table Note (Person varchar(10), Text varchar(20))
GO
)";

class Changes : public testing::Test {
 protected:
  TestDatabase database{kPeople};
};

TEST_F(Changes, InsertSkipsIdentityAndComputedColumns) {
  database.Run("insert into Person values('ANN','7','05/31/2016','Y','12.25')");
  database.Run("insert into Person(Name) values('BOB')");
  EXPECT_EQ(database.Select("select * from Person order by Code"),
            (Rows{{"1", "1", "ANN", "7", "2016-05-31", "Y", "12.3"},
                  {"2", "2", "BOB", "NULL", "NULL", "N", "NULL"}}));
  database.Run("delete from Person where Name='BOB'");
  database.Run("insert into Person(Name) values('CID')");
  EXPECT_EQ(database.Value("select Label from Person where Name='CID'"), "3")
      << "a number is never given twice";
}

TEST_F(Changes, IdentityTakesAValueOnlyWhenTold) {
  EXPECT_EQ(database.Refusal("insert into Person(Code,Name) values(9,'ANN')"),
            "-2147217900 Cannot insert explicit value for identity column in table 'Person' when "
            "IDENTITY_INSERT is set "
            "to OFF.");
  database.Run("set identity_insert Person on");
  database.Run("insert into Person(Code,Name) values(9,'ANN')");
  database.Run("set identity_insert Person off");
  database.Run("insert into Person(Name) values('BOB')");
  EXPECT_EQ(database.Select("select Label,Name from Person order by Code"),
            (Rows{{"9", "ANN"}, {"10", "BOB"}}));
}

TEST_F(Changes, StoredValuesConvertToTheColumn) {
  database.Run("insert into Person(Name,Age,Born) values(12,'',''),('BOB',' 5 ',null)");
  EXPECT_EQ(database.Select("select Name,Age,Born from Person order by Code"),
            (Rows{{"12", "0", "1900-01-01"}, {"BOB", "5", "NULL"}}));
  const std::pair<const char*, const char*> kRefused[] = {
      {"'5.'", "-2147217913 Conversion failed when converting the varchar value '5.' to data type int."},
      {"'x'", "-2147217913 Conversion failed when converting the varchar value 'x' to data type int."},
  };
  for (const auto& [age, refusal] : kRefused) {
    EXPECT_EQ(database.Refusal("insert into Person(Name,Age) values('C'," + std::string(age) + ")"), refusal);
    EXPECT_EQ(database.Refusal("update Person set Age=" + std::string(age)), refusal);
  }
  EXPECT_EQ(database.Refusal("update Person set Name='12345678901'"),
            "-2147217833 String or binary data would be truncated.");
  EXPECT_EQ(database.Refusal("insert into Note select 'x',Name+'12345678901234567890' from Person"),
            "-2147217833 String or binary data would be truncated.");
  EXPECT_EQ(database.Value("select count(*) from Note"), "0");
}

TEST_F(Changes, ARefusedStatementChangesNothing) {
  database.Run("insert into Person(Name,Age) values('ANN',1),('BOB',2)");
  EXPECT_EQ(database.Refusal("insert into Person(Name) values('CID'),('ann ')"),
            "-2147217873 Violation of UNIQUE KEY constraint 'UQ_Person_Name'. Cannot insert duplicate key in "
            "object "
            "'dbo.Person'. The duplicate key value is (ann).");
  EXPECT_EQ(database.Refusal("update Person set Age=10/(Age-2)"),
            "-2147467259 Divide by zero error encountered.");
  EXPECT_EQ(database.Refusal("insert into Person(Name) values(null)"),
            "-2147217873 Cannot insert the value NULL into column 'Name', table 'ZQR.dbo.Person'; column "
            "does not allow "
            "nulls. INSERT fails.");
  EXPECT_EQ(database.Refusal("update Person set Name=null where Age=1"),
            "-2147217873 Cannot insert the value NULL into column 'Name', table 'ZQR.dbo.Person'; column "
            "does not allow "
            "nulls. UPDATE fails.");
  EXPECT_EQ(database.Select("select Name,Age from Person order by Code"), (Rows{{"ANN", "1"}, {"BOB", "2"}}));
}

TEST_F(Changes, DuplicateKeysTellTheirValue) {
  database.Run("create table Pair (A varchar(5), B int, constraint PK_Pair primary key (A,B))");
  database.Run("insert into Pair values('x',1)");
  const std::string head =
      "-2147217873 Violation of PRIMARY KEY constraint 'PK_Pair'. Cannot insert duplicate key in object "
      "'dbo.Pair'.";
  EXPECT_EQ(database.Refusal("insert into Pair values('y',1),('X ',1)"),
            head + " The duplicate key value is (X, 1).");
  EXPECT_EQ(database.Refusal("insert into Pair(B,A) values(2,'z'),(2,'Z')"),
            head + " The duplicate key value is (z, 2).");
  EXPECT_EQ(database.Refusal("insert into Pair select A,B from Pair"),
            head + " The duplicate key value is (x, 1).");
  database.Run("insert into Pair values('y',1)");
  EXPECT_EQ(database.Refusal("update Pair set A='x'"), head);
  EXPECT_EQ(database->Run(sql("select count(*) from Pair where A=", quoted("y"))).At(0).AsInteger(), 1);
  EXPECT_EQ(
      RefusalOf([&] { database->Run(sql("insert into Pair values(", quoted("Y"), ",", bare("1"), ")")); }),
      head + " The duplicate key value is (Y, 1).");
}

TEST_F(Changes, UniqueIndexesKeepRowsApart) {
  database.Run("create unique index IX_Note on Note(Person) where Text='once'");
  database.Run("insert into Note values('A','often'),('A','often'),('A','once')");
  EXPECT_EQ(database.Refusal("insert into Note values('a','once')"),
            "-2147217873 Cannot insert duplicate key row in object 'dbo.Note' with unique index 'IX_Note'. "
            "The duplicate "
            "key value is (a).");
  EXPECT_EQ(database.Refusal("create unique index IX_All on Note(Person)"),
            "-2147217873 The CREATE UNIQUE INDEX statement terminated because a duplicate key was found for "
            "the object "
            "name 'dbo.Note' and the index name 'IX_All'.");
}

TEST_F(Changes, UpdateFromOtherRows) {
  database.Run("insert into Person(Name,Age) values('ANN',1),('BOB',2),('CID',3)");
  database.Run("insert into Note values('1','old'),('2',null),('9','none')");
  EXPECT_EQ(database
                .Run("Update Note Set Note.Text = t1.Name from (Select distinct * from Person) as T1 Where "
                     "Note.Person = "
                     "t1.Code")
                .affected_rows(),
            2);
  EXPECT_EQ(database.Select("select * from Note order by Person"),
            (Rows{{"1", "ANN"}, {"2", "BOB"}, {"9", "none"}}));
  database.Run("update n set Text=p.Name+'!' from Note n,Person p where n.Person=p.Label and p.Age=1");
  EXPECT_EQ(database.Value("select Text from Note where Person='1'"), "ANN!");
  database.Run("delete n from Note n,Person p where n.Person=p.Label");
  EXPECT_EQ(database.Select("select Person from Note"), (Rows{{"9"}}));
  EXPECT_EQ(database.Refusal("update Note set Text='x' from Person where Note.Person='VC1' and Person=Code")
                .substr(0, 11),
            "not refused");
  database.Run("insert into Note values('VC1','x')");
  EXPECT_EQ(database.Refusal("update Note set Text='y' from Person p where Note.Person=p.Code"),
            "-2147217913 Conversion failed when converting the varchar value 'VC1' to data type int.");
}

TEST_F(Changes, SelectIntoTakesTypesFromItsSources) {
  database.Run("insert into Person(Name,Age,Born) values('ANN',7,'05/31/2016')");
  EXPECT_EQ(database.Run("select p.Name,Age,Born,Name+'x' as Longer into Copy from Person p order by Name")
                .affected_rows(),
            1);
  database.Run("alter table Copy add Extra varchar(5),Other varchar(20) default 'd'");
  EXPECT_EQ(database.Select("select * from Copy where Born='05/31/2016' and Longer='ANNX'"),
            (Rows{{"ANN", "7", "2016-05-31", "ANNx", "NULL", "d"}}));
  EXPECT_EQ(database.Refusal("update Copy set Name='12345678901'"),
            "-2147217833 String or binary data would be truncated.");
  EXPECT_EQ(database.Refusal("update Copy set Age='x'").substr(0, 11), "-2147217913");
  EXPECT_EQ(database.Refusal("select Name into Copy from Person"),
            "-2147217900 There is already an object named 'Copy' in the database.");
  EXPECT_EQ(database.Refusal("select count(*) into Counted from Person"),
            "-2147217900 No column name was specified for column 1 of 'Counted'.");
  EXPECT_EQ(database.Refusal("select 1/0 as n into Halted"), "-2147467259 Divide by zero error encountered.");
  EXPECT_EQ(database.Refusal("select * from Halted"), "-2147217865 Invalid object name 'Halted'.")
      << "the table of a failed select into is not left behind";
}

TEST_F(Changes, IfRunsOnlyTheBranchThatHolds) {
  database.Run(
      "if exists(select * from dbo.Note) drop table dbo.Note else insert into Note values('A','empty')");
  EXPECT_EQ(database.Select("select Text from Note"), (Rows{{"empty"}}));
  database.Run("IF EXISTS(SELECT * FROM   dbo.Note) DROP TABLE dbo.Note");
  EXPECT_EQ(database.Refusal("select * from Note"), "-2147217865 Invalid object name 'Note'.");
  EXPECT_EQ(database.Refusal("IF EXISTS(SELECT * FROM   dbo.Note) DROP TABLE dbo.Note"),
            "-2147217865 Invalid object name 'dbo.Note'.");
  database.Run("if not exists(select * from Person) select 1 as n into Made");
  EXPECT_EQ(database.Value("select n from Made"), "1");
}

TEST_F(Changes, ViewsShowTheirRowsUnderTheirNames) {
  database.Run("insert into Person(Name,Age) values('ANN',7)");
  database.Run("create view vw_Person as select Name as Who,Age+1 as Next,Name+' ' as Padded from Person");
  EXPECT_EQ(database.Select("select * from vw_Person where Next='8' and Padded='ann'"),
            (Rows{{"ANN", "8", "ANN "}}));
  EXPECT_EQ(database.Refusal("insert into vw_Person values('x',1,'y')").substr(0, 57),
            "-2147217900 View or function 'vw_Person' is not updatable");
  database.Run("drop view vw_Person");
  EXPECT_EQ(database.Refusal("select * from vw_Person").substr(0, 11), "-2147217865");
}

TEST_F(Changes, ADefinitionKeepsTheValuesThatItWasMadeWith) {
  database->Run(sql("create table Kept (A int, B varchar(5) default ", quoted("b"), ")"));
  database->Run(sql("insert into Kept(A) values(", bare("1"), ")"));
  database->Run(sql("create view vw_Kept as select B from Kept where A=", bare("1")));
  EXPECT_EQ(database.Select("select * from vw_Kept"), (Rows{{"b"}}));
  database->Run(sql("select A into Taken from Kept where B=", quoted("B")));
  EXPECT_EQ(database.Select("select * from Taken"), (Rows{{"1"}}));
}

TEST_F(Changes, AConditionOnTheNewValuesSeesTheOldRow) {
  database.Run("insert into Person(Name,Age) values('ANN',1)");
  database.Run("update Person set Age=Age+1,Weight=Age where Age=1");
  EXPECT_EQ(database.Select("select Age,Weight from Person"), (Rows{{"2", "1"}}));
  EXPECT_EQ(database.Run("update Person set Age=5 where Name='nobody'").affected_rows(), 0);
  EXPECT_EQ(database.Run("delete Person").affected_rows(), 1);
}

}  // namespace
}  // namespace ovindra
