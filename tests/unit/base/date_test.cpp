#include "base/date.h"

#include <gtest/gtest.h>

namespace ovindra {
namespace {

TEST(Dates, AreReadMonthFirstOrYearFirstWithBlanksAround) {
  const struct {
    const char* text;
    const char* year_first;
  } cases[] = {
      {"05/31/2016", "2016-05-31"},
      {" 5/1/2016 ", "2016-05-01"},
      {"2016-05-31", "2016-05-31"},
      {"02/29/2016", "2016-02-29"},
      {"05/31/2016 10:15", "2016-05-31 10:15:00"},
      {"2016-05-31 00:00:00", "2016-05-31"},
  };
  for (const auto& row : cases) {
    const auto moment = ReadMoment(row.text);
    ASSERT_TRUE(moment) << row.text;
    EXPECT_EQ(YearFirst(*moment), row.year_first) << row.text;
  }
}

TEST(Dates, WhatIsNoDateIsNotRead) {
  for (const char* text :
       {"", "31/05/2016", "02/29/2015", "05/31", "05/31/2016/", "05/31/2016x", "a/b/c", "00/01/2016",
        "05/31/2016 24:00", "05/31/2016 10", "1/1/1", "-5/31/2016", "99999/1/2016"}) {
    EXPECT_FALSE(ReadMoment(text)) << text;
  }
}

TEST(Dates, AreShownInTheMachinesShortForm) {
  const Date day = DayOf(*ReadMoment("05/01/2016"));
  EXPECT_EQ(ShortDate(day), "01/05/2016");
  UseShortDateForm("M/d/yy");
  EXPECT_EQ(ShortDate(day), "5/1/16");
  UseShortDateForm("dd.MM.yyyy");
  EXPECT_EQ(ShortDate(*ReadMoment("05/01/2016 10:15")), "01.05.2016 10:15:00");
  UseShortDateForm("dd/MM/yyyy");
  EXPECT_EQ(MonthFirst(day), "05/01/2016");
  EXPECT_EQ(MonthFirst(AddDays(day, -1)), "04/30/2016");
}

}  // namespace
}  // namespace ovindra
