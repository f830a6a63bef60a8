// A workbook as the toolkit wants to see it, without a copy, and with empty cells beyond its own as far as a
// sheet looks endless. What is shown stays as it was told last until Refresh. The workbook outlives it.
#pragma once

#include <QAbstractTableModel>

#include "base/workbook/workbook.h"

namespace ovindra::desktop {

class SheetModel : public QAbstractTableModel {
 public:
  /// Beside the toolkit's own: whether a text is wrapped (bool), the sides of a cell that have a line
  /// (Qt::Edges), the width of a column in the sheet's own unit.
  enum Role { kWrapped = Qt::UserRole, kLines, kWidth };

  explicit SheetModel(const Workbook& workbook) : workbook_(workbook) {}

  void Refresh();

  const Workbook& workbook() const { return workbook_; }
  /// What is written on, counted from 1; 0 for nothing.
  int used_rows() const { return used_rows_; }
  int used_columns() const { return used_columns_; }

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : columns_; }
  /// A cell aligned in the general way has no horizontal flag in its alignment.
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  const Workbook& workbook_;
  int used_rows_ = 0;
  int used_columns_ = 0;
  int rows_ = 0;
  int columns_ = 0;
};

}  // namespace ovindra::desktop
