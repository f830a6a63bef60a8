// The list grid: fixed header rows above rows of text cells, with a current row and column. Loading it by
// code fires no event; a person's click and keys do.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "base/controls/control.h"

namespace ovindra {

enum class SortOrder { kNone = 0, kGenericAscending = 1, kGenericDescending = 2 };

class Grid : public Control {
 public:
  using Row = std::vector<std::string>;

  /// A grid with one fixed row that holds the headings, and one blank row below.
  Grid(Container& container, std::string_view name, std::initializer_list<std::string_view> headings);

  int rows() const { return static_cast<int>(rows_.size()); }
  int columns() const { return static_cast<int>(rows_.front().size()); }
  int fixed_rows() const { return kFixedRows; }

  /// Cuts the rows off behind that many, or adds blank ones; fewer than the fixed rows is error 380.
  void SetRows(int count);

  /// Adds a row from its cells joined with tabs.
  void AddItem(std::string_view tabbed);
  void AddRow(Row cells);

  /// Error 30015 for the last data row, 380 for a fixed row or one past the end.
  void RemoveItem(int row);

  /// Past the ends is error 380, for setting too.
  const std::string& Cell(int row, int column) const;
  void SetCell(int row, int column, std::string_view text);
  const Row& RowAt(int row) const;

  int row() const { return row_; }
  int column() const { return column_; }
  void SetRow(int row);
  void SetColumn(int column);

  /// The cell that the mouse was over at the last click or double-click.
  int mouse_row() const { return mouse_row_; }
  int mouse_column() const { return mouse_column_; }

  /// Whether changes are shown as they come.
  bool redraw() const { return redraw_; }
  void SetRedraw(bool redraw);

  /// Selects the rows that a sort works on, as far as they are there; the first becomes the current row.
  void SelectRows(int first, int last);

  /// Sorts the selected rows by the current column: two cells that both read as numbers as numbers, others as
  /// texts without regard to case. Rows that compare equal keep their order.
  void Sort(SortOrder order);

  /// A person clicks a cell. On a fixed row nothing happens; else the current cell moves, with the cell-move
  /// event when it moved, then click fires.
  void UserClickCell(int row, int column);
  /// A person double-clicks a cell: on a data row its click comes first.
  void UserDoubleClickCell(int row, int column);
  /// The second click of a double-click whose first was UserClickCell.
  void UserSecondClickCell(int row, int column);
  /// A person moves the current cell by keyboard.
  void UserMoveTo(int row, int column);

  Event<> cell_moved;

 protected:
  void DoClick() override {}
  /// Up and Down move; Space clicks the current cell, so that a list can be worked without a mouse.
  void DoKey(Key key) override;

 private:
  static constexpr int kFixedRows = 1;

  bool HasCell(int row, int column) const;
  bool BeginUserStep(int row, int column);
  void MoveCurrent(int row, int column);
  void KeepCurrentInside();

  std::vector<Row> rows_;
  int row_ = kFixedRows;
  int column_ = 0;
  int mouse_row_ = 0;
  int mouse_column_ = 0;
  int last_selected_row_ = kFixedRows;
  bool redraw_ = true;
};

}  // namespace ovindra
