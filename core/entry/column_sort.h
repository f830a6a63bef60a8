// Sorting a grid by a double-click on a heading: the first sorts ascending, every further one on the same
// heading turns the order round.
#pragma once

#include "base/controls/grid.h"

namespace ovindra {

class ColumnSort {
 public:
  /// What a double-click on the grid does: nothing unless the mouse is over a heading.
  void DoubleClick(Grid& grid);

 private:
  void DoColumnSort(Grid& grid) const;

  int m_iSortCol = -1;
  int m_iSortType = 0;
};

}  // namespace ovindra
