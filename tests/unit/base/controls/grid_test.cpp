#include "base/controls/grid.h"

#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "tests/unit/base/controls/test_form.h"

namespace ovindra {
namespace {

class Listing : public TestForm {
 public:
  using TestForm::TestForm;
  Grid Grid1{*this, "Grid1", {"No.", "Name"}};
};

class Grids : public ::testing::Test {
 protected:
  Grids() {
    grid.SetRows(1);
    for (const char* row : {"10\tzoya", "9\tANIL", "x\tmina", "9.5\tAnil"}) grid.AddItem(row);
    log.Note(grid.click, "click");
    log.Note(grid.cell_moved, "moved");
    log.Note(grid.double_click, "double-click");
  }

  std::string Column(int column) const {
    std::string cells;
    for (int row = 1; row < grid.rows(); ++row) cells += grid.Cell(row, column) + " ";
    return cells;
  }

  QuietMachine machine;
  EventLog log;
  Listing form{machine};
  Grid& grid = form.Grid1;
};

TEST_F(Grids, AClickOnAnotherRowMovesTheCellFirst) {
  grid.UserClickCell(1, 0);
  EXPECT_EQ(log.Take(), Events{"click"});
  grid.UserClickCell(2, 1);
  EXPECT_EQ(log.Take(), (Events{"moved", "click"}));
  grid.UserMoveTo(3, 1);
  EXPECT_EQ(log.Take(), Events{"moved"});
}

TEST_F(Grids, AFixedRowTakesNoClickButADoubleClick) {
  grid.UserClickCell(0, 1);
  EXPECT_EQ(log.Take(), Events{});
  grid.UserDoubleClickCell(0, 1);
  EXPECT_EQ(log.Take(), Events{"double-click"});
  EXPECT_EQ(grid.row(), 1);
  EXPECT_EQ(grid.mouse_row(), 0);
  EXPECT_EQ(grid.mouse_column(), 1);
  grid.UserDoubleClickCell(2, 0);
  EXPECT_EQ(log.Take(), (Events{"moved", "click", "double-click"}));
}

TEST_F(Grids, LoadingByCodeFiresNothingAndBringsTheCurrentRowBack) {
  grid.UserClickCell(4, 1);
  log.Take();
  grid.SetRows(1);
  EXPECT_EQ(grid.rows(), 1);
  grid.SetRows(3);
  EXPECT_EQ(grid.Cell(2, 1), "");
  EXPECT_EQ(grid.row(), 1);
  EXPECT_EQ(log.Take(), Events{});
}

TEST_F(Grids, TheLastDataRowStays) {
  for (int i = 0; i < 3; ++i) grid.RemoveItem(1);
  try {
    grid.RemoveItem(1);
    FAIL() << "the last data row was removed";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.number(), 30015);
    EXPECT_EQ(error.text(), "Cannot remove last non-fixed row");
  }
  EXPECT_EQ(grid.Cell(1, 1), "Anil");
}

TEST_F(Grids, NumbersSortAsNumbersAndTextsWithoutRegardToCase) {
  grid.SelectRows(1, 4);
  grid.SetColumn(1);
  grid.Sort(SortOrder::kGenericAscending);
  EXPECT_EQ(Column(1), "ANIL Anil mina zoya ");
  grid.RemoveItem(3);
  grid.SetColumn(0);
  grid.SelectRows(1, 3);
  grid.Sort(SortOrder::kGenericAscending);
  EXPECT_EQ(Column(0), "9 9.5 10 ");
  grid.Sort(SortOrder::kGenericDescending);
  EXPECT_EQ(Column(0), "10 9.5 9 ");
}

TEST_F(Grids, ARowWithTooFewOrTooManyCellsKeepsTheColumns) {
  grid.AddItem("alone");
  grid.AddItem("a\tb\tc");
  EXPECT_EQ(grid.RowAt(5), (Grid::Row{"alone", ""}));
  EXPECT_EQ(grid.RowAt(6), (Grid::Row{"a", "b"}));
}

}  // namespace
}  // namespace ovindra
