#include "base/database/recordset.h"

#include <gtest/gtest.h>

#include "base/runtime_error.h"

namespace ovindra {
namespace {

Recordset TwoChildren() {
  Recordset rows;
  for (const char* column : {"Enroll_No", "Age", "Screened_Date", "enroll_no"}) rows.AddColumn(column);
  rows.AppendText(" A1 ");
  rows.AppendInteger(9);
  rows.AppendMoment(*ReadMoment("05/31/2016"));
  rows.AppendText("shadow");
  rows.AppendText("A2");
  rows.AppendReal(10.5);
  rows.AppendNull();
  rows.AppendText("");
  return rows;
}

template <typename Action>
long ErrorOf(Action action) {
  try {
    action();
  } catch (const RuntimeError& error) {
    return error.number();
  }
  return 0;
}

TEST(Recordsets, AreReadByNameFirstColumnFirstAndRowByRow) {
  Recordset rows = TwoChildren();
  EXPECT_EQ(rows.row_count(), 2U);
  EXPECT_EQ(Trim(rows["ENROLL_NO"]), "A1");
  EXPECT_EQ(rows["enroll_no"].AsText(), " A1 ");
  EXPECT_EQ(Trim(rows["Age"]), "9");
  EXPECT_EQ(Trim(rows["Screened_Date"]), "31/05/2016");
  EXPECT_EQ(YearFirstText(rows["Screened_Date"]), "2016-05-31");
  rows.MoveNext();
  EXPECT_EQ(Trim(rows["Age"]), "10.5");
  rows.MoveNext();
  EXPECT_TRUE(rows.Eof());
}

TEST(Recordsets, NullIsAnErrorUnlessItIsTrimmed) {
  Recordset rows = TwoChildren();
  rows.MoveNext();
  EXPECT_EQ(Trim(rows["Screened_Date"]), "");
  EXPECT_EQ(ErrorOf([&] { rows["Screened_Date"].AsText(); }), 94);
  EXPECT_EQ(ErrorOf([&] { rows["Screened_Date"].AsNumber(); }), 94);
  EXPECT_EQ(ErrorOf([&] { rows["Enroll_No"].AsNumber(); }), 13);
}

TEST(Recordsets, ReadingWhereThereIsNothingHasItsNumber) {
  Recordset rows = TwoChildren();
  EXPECT_EQ(ErrorOf([&] { rows["Mr_No"]; }), 3265);
  rows.MoveNext();
  rows.MoveNext();
  EXPECT_EQ(ErrorOf([&] { rows["Age"]; }), 3021);
}

}  // namespace
}  // namespace ovindra
