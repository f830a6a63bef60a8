#include <gtest/gtest.h>

#include "test_database.h"

namespace ovindra {
namespace {

constexpr std::string_view kWards = R"(
create table Ward (Code varchar(5) primary key, Name varchar(20), Beds int, Opened datetime)
create table Bed (Ward varchar(6), Number int, Free varchar(1) default 'Y')
insert into Ward values ('A','Surgery',10,'05/31/2016'),('B','Eyes',null,'2016-06-01'),('C ','eyes ',3,null)
insert into Bed values ('a ',1,'Y'),('A',2,'N'),('B',1,null)
)";

class Queries : public testing::Test {
 protected:
  TestDatabase database{kWards};
};

TEST_F(Queries, TextsCompareWithoutCaseAndTrailingBlanks) {
  EXPECT_EQ(database.Select("select Code from Ward where Code='a   '"), (Rows{{"A"}}));
  EXPECT_EQ(database.Select("select Code from Ward where Name='EYES' order by Code"), (Rows{{"B"}, {"C"}}));
  EXPECT_EQ(database.Select("select Code from Ward where Code in ('a','b ') order by Code"),
            (Rows{{"A"}, {"B"}}));
  EXPECT_EQ(database.Select("select Code from Ward where Code<'b'"), (Rows{{"A"}}));
  EXPECT_EQ(database.Select("select Code from Ward where 'EYES '=Name order by 1"), (Rows{{"B"}, {"C"}}));
  EXPECT_EQ(database.Select("select Code from Ward where Name+' '='eyes' order by 1"), (Rows{{"B"}, {"C"}}));
  EXPECT_EQ(database.Select("select Code from Ward where ' '+Name=' Eyes' order by 1"), (Rows{{"B"}, {"C"}}));
  EXPECT_EQ(database.Value("select case when 'a'='A ' then 1 else 0 end"), "1");
  EXPECT_EQ(database.Value("select count(distinct Name) from Ward"), "2");
  EXPECT_EQ(database.Value("select count(distinct Name+' ') from Ward"), "2");
  EXPECT_EQ(database.Select("select distinct Name from Ward").size(), 2U);
  EXPECT_EQ(database.Select("select distinct upper(Name)+' ' from Ward").size(), 2U);
  EXPECT_EQ(database.Select("select Name,count(*) from Ward group by Name").size(), 2U);
  EXPECT_EQ(database.Select("select Name from Ward union select 'SURGERY'").size(), 2U);
  EXPECT_EQ(database.Select(
                "select a.Code from (select Code,Name+'!' as n from Ward) a where a.n='eyes!' order by 1"),
            (Rows{{"B"}, {"C"}}));
}

TEST_F(Queries, OrderIgnoresCase) {
  database.Run("insert into Ward(Code,Name) values ('D','attic'),('E','Zoo')");
  EXPECT_EQ(database.Select("select Name from Ward where Code in ('A','D','E') order by Name desc"),
            (Rows{{"Zoo"}, {"Surgery"}, {"attic"}}));
  EXPECT_EQ(database.Select("select Code,Name+'' as n from Ward where Code in ('A','D','E') order by n"),
            (Rows{{"D", "attic"}, {"A", "Surgery"}, {"E", "Zoo"}}));
}

TEST_F(Queries, WhatIsComputedMayBeGroupedAndOrderedBy) {
  EXPECT_EQ(
      database.Select("select upper(Name)+'' as n,count(*) from Ward group by upper(Name)+'' order by n"),
      (Rows{{"EYES", "2"}, {"SURGERY", "1"}}));
  EXPECT_EQ(database.Select("select distinct upper(Name)+'' from Ward order by upper(Name)+'' desc"),
            (Rows{{"SURGERY"}, {"EYES"}}));
}

TEST_F(Queries, LikeFindsPrefixesInTheMiddleAndSets) {
  EXPECT_EQ(database.Select("select Code from Ward where Name like 'sur%'"), (Rows{{"A"}}));
  EXPECT_EQ(database.Select("select Code from Ward where Name like '%Y%' order by 1"),
            (Rows{{"A"}, {"B"}, {"C"}}));
  EXPECT_EQ(database.Select("select Code from Ward where Name like 's_r%y'"), (Rows{{"A"}}));
  EXPECT_EQ(database.Select("select Code from Ward where Name like 'surgery'"), (Rows{{"A"}}));
  EXPECT_EQ(database.Select("select Code from Ward where Name not like 's%' order by 1"),
            (Rows{{"B"}, {"C"}}));
  EXPECT_EQ(database.Select("select Code from Ward where Beds like '1%'"), (Rows{{"A"}}));
  EXPECT_EQ(database.Select("select Code from Ward where Name+'x' like '%EX' order by 1"), (Rows{}));
}

TEST_F(Queries, DatesAreReadMonthFirst) {
  EXPECT_EQ(database.Select("select Opened from Ward where Opened between' 05/01/2016 'and'05/31/2016'"),
            (Rows{{"2016-05-31"}}));
  EXPECT_EQ(database.Select("select Code from Ward where Opened>'2016-05-31'"), (Rows{{"B"}}));
  EXPECT_EQ(database.Value("select convert(varchar(10),Opened,103) from Ward where Code='A'"), "31/05/2016");
  EXPECT_EQ(database.Value("select year(Opened)+month(Opened) from Ward where Code='A'"), "2021");
  EXPECT_EQ(database.Value("select dateadd(day,1,Opened) from Ward where Code='A'"), "2016-06-01");
  EXPECT_EQ(database.Value("select Opened+1 from Ward where Code='A'"), "2016-06-01");
  EXPECT_EQ(database.Value("select ''+Opened from Ward where Code='A'"), "2016-05-31");
  EXPECT_EQ(database.Run("select Opened as o from Ward where Code='A'")["O"].kind(), FieldKind::kMoment);
}

TEST_F(Queries, JoinsByCommasAndWords) {
  const Rows both{{"A", "1"}, {"A", "2"}, {"B", "1"}};
  EXPECT_EQ(database.Select("select Code,Number from Ward a,Bed b where a.Code=b.Ward order by Code,Number"),
            both);
  EXPECT_EQ(database.Select("select Code,Number from Ward inner join Bed on Code=Ward order by 1,2"), both);
  EXPECT_EQ(database.Select("select Code,Number from Ward left join Bed on Ward=Code where Number is null"),
            (Rows{{"C", "NULL"}}));
  EXPECT_EQ(database.Value("select count(*) from Ward cross join Bed"), "9");
  EXPECT_EQ(
      database.Select("select a.* from Ward a join (Bed b join Ward c on c.Code=b.Ward) on b.Number=2 and "
                      "a.Code=c.Code"),
      (Rows{{"A", "Surgery", "10", "2016-05-31"}}));
}

TEST_F(Queries, AStarKeepsOrderAndRepeatsNames) {
  const Recordset records = database.Run("select *,b.* from Ward a,Bed b");
  EXPECT_EQ(records.columns(), (std::vector<std::string>{"Code", "Name", "Beds", "Opened", "Ward", "Number",
                                                         "Free", "Ward", "Number", "Free"}));
}

TEST_F(Queries, UnnamedColumnsHaveNoName) {
  const Recordset records = database.Run("select count(*),Code+'x',Code as c,d=Code from Ward group by Code");
  EXPECT_EQ(records.columns(), (std::vector<std::string>{"", "", "c", "d"}));
}

TEST_F(Queries, SubqueriesMayLookAround) {
  EXPECT_EQ(database.Select("select Code from Ward where Code not in (select Ward from Bed)"), (Rows{{"C"}}));
  EXPECT_EQ(database.Select(
                "select Code from Ward a where exists(select * from Bed where Ward=a.Code and Number=2)"),
            (Rows{{"A"}}));
  EXPECT_EQ(database.Select("select Code,(select max(Number) from Bed where Ward=Code) from Ward order by 1"),
            (Rows{{"A", "2"}, {"B", "1"}, {"C", "NULL"}}));
  database.Run("insert into Bed(Ward) values (null)");
  EXPECT_EQ(database.Select("select Code from Ward where Code not in (select Ward from Bed)"), (Rows{}))
      << "one NULL among the rows leaves nothing out for sure";
  EXPECT_EQ(database.Refusal("select (select Number from Bed)").substr(0, 44),
            "-2147467259 Subquery returned more than 1 va");
}

TEST_F(Queries, GroupsAndAggregates) {
  EXPECT_EQ(database.Select("select Ward,count(*) as n,sum(Number) from Bed group by Ward having count(*)>1"),
            (Rows{{"a", "2", "3"}}));
  EXPECT_EQ(database.Select("select count(*),count(Beds),sum(Beds),min(Beds),max(Name),avg(Beds) from Ward"),
            (Rows{{"3", "2", "13", "3", "Surgery", "6"}}));
  EXPECT_EQ(database.Select("select sum(Beds),count(*) from Ward where 1=2"), (Rows{{"NULL", "0"}}));
  EXPECT_EQ(
      database.Select("select distinct left(Name,1),count(*) from Ward group by left(Name,1) order by 1"),
      (Rows{{"E", "2"}, {"S", "1"}}));
  EXPECT_EQ(database.Select("select Name from Ward group by Name order by count(*) desc"),
            (Rows{{"Eyes"}, {"Surgery"}}));
}

TEST_F(Queries, UnionsAndTops) {
  EXPECT_EQ(database.Select("select top 2 Code from Ward order by Code desc"), (Rows{{"C"}, {"B"}}));
  EXPECT_EQ(database.Select("select Code from Ward union all select Ward from Bed order by Code").size(), 6U);
  EXPECT_EQ(database.Select("select Beds from Ward where Code='A' union select '7' order by 1"),
            (Rows{{"7"}, {"10"}}));
  EXPECT_EQ(database.Value("select count(*) from (select top 1 Code from Ward order by Code) t"), "1");
}

TEST_F(Queries, NamesAreFoundWithoutCaseInBracketsAndUnderTheOwner) {
  EXPECT_EQ(database.Select("SELECT w.[CODE] FROM dbo.[wArD] AS W where W.code='A'"), (Rows{{"A"}}));
  EXPECT_EQ(database.Select("select ward.Code from Ward where WARD.CODE='A'"), (Rows{{"A"}}));
}

TEST_F(Queries, CasesGiveTheTypeOfAllBranches) {
  EXPECT_EQ(database.Select(
                "select case Code when 'a' then 'first' when 'B' then 'second' end from Ward order by Code"),
            (Rows{{"first"}, {"second"}, {"NULL"}}));
  EXPECT_EQ(database.Select("select case when Beds>5 then Beds else '7' end from Ward order by Code"),
            (Rows{{"10"}, {"7"}, {"7"}}));
  EXPECT_NE(database.Refusal("select case when Beds>5 then Beds else 'many' end from Ward"), "not refused");
}

TEST(Arithmetic, FollowsTheTypes) {
  TestDatabase database;
  const std::pair<const char*, const char*> kCases[] = {
      {"5/2", "2"},
      {"-5/2", "-2"},
      {"5/2.0", "2.5"},
      {"5%3", "2"},
      {"1.5+1", "2.5"},
      {"2+'3'", "5"},
      {"'2'+'3'", "23"},
      {"'a'+null", "NULL"},
      {"1+null", "NULL"},
      {"2*3+4", "10"},
      {"2*(3+4)", "14"},
      {"-(-3)", "3"},
      {"10-2-3", "5"},
      {"1e2+1", "101"},
      {"0.1+0.2", "0.3"},
      {"convert(numeric,'1.5')", "2"},
      {"convert(numeric,'1')+convert(numeric,'2')", "3"},
      {"convert(varchar(10),12)+'x'", "12x"},
      {"convert(int,2.9)", "2"},
      {"convert(varchar(3),'abcdef')", "abc"},
      {"cast('7' as int)+1", "8"},
      {"isnull(null,'x')", "x"},
      {"coalesce(null,null,3)", "3"},
      {"len('ab  ')", "2"},
      {"substring('abcdef',2,3)", "bcd"},
      {"left('abc',2)+right('abc',1)", "abc"},
      {"replace('aXbx','x','-')", "a-b-"},
      {"charindex('C','abc')", "3"},
      {"ltrim('  a ')+'|'", "a |"},
      {"datediff(month,'01/31/2016','02/01/2016')", "1"},
  };
  for (const auto& [expression, value] : kCases) {
    EXPECT_EQ(database.Value("select " + std::string(expression)), value) << expression;
  }
}

TEST(Arithmetic, RefusesWhatDoesNotFit) {
  TestDatabase database;
  const std::pair<const char*, const char*> kCases[] = {
      {"1/0", "-2147467259 Divide by zero error encountered."},
      {"1%0", "-2147467259 Divide by zero error encountered."},
      {"2147483647+1", "-2147217833 Arithmetic overflow error converting expression to data type int."},
      {"-2147483647-2", "-2147217833 Arithmetic overflow error converting expression to data type int."},
      {"1+'x'", "-2147217913 Conversion failed when converting the varchar value 'x' to data type int."},
      {"1.5+'x'", "-2147217913 Error converting data type varchar to numeric."},
      {"'a'-'b'", "-2147217900 Operand data type varchar is invalid for subtract operator."},
      {"substring('a',1,-1)",
       "-2147467259 Invalid length parameter passed to the LEFT or SUBSTRING function."},
  };
  for (const auto& [expression, refusal] : kCases) {
    EXPECT_EQ(database.Refusal("select " + std::string(expression)), refusal) << expression;
  }
}

}  // namespace
}  // namespace ovindra
