#include "core/entry/column_sort.h"

namespace ovindra {

void ColumnSort::DoubleClick(Grid& grid) {
  if (grid.mouse_row() >= grid.fixed_rows()) return;
  constexpr int kOrders = 2;
  m_iSortType = grid.mouse_column() == m_iSortCol ? m_iSortType % kOrders + 1 : 1;
  m_iSortCol = grid.mouse_column();
  DoColumnSort(grid);
}

void ColumnSort::DoColumnSort(Grid& grid) const {
  grid.SetRedraw(false);
  grid.SelectRows(grid.fixed_rows(), grid.rows() - 1);
  grid.SetColumn(m_iSortCol);
  grid.Sort(static_cast<SortOrder>(m_iSortType));
  grid.SetRedraw(true);
}

}  // namespace ovindra
