// A grid tied to the view that shows it. The view reads the grid's own rows, so that a list of a hundred
// thousand opens at once; the fixed row is the view's header, which is hidden when it has no texts.
#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "base/controls/grid.h"
#include "platform/desktop/binder/binding.h"
#include "platform/desktop/binder/grid_view.h"

namespace ovindra::desktop {

/// The grid's rows as the toolkit wants to see them, without a copy; what is shown stays as it was told last
/// until Refresh.
class GridModel : public QAbstractTableModel {
 public:
  explicit GridModel(const Grid& grid) : grid_(grid) {}

  void Refresh();
  bool HasHeadings() const;

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  int columnCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : static_cast<int>(alignment_.size());
  }
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  /// Numbers stand right, one or two letters in the middle, all else left, judged by the first rows.
  Qt::Alignment Judge(int column) const;

  const Grid& grid_;
  int rows_ = 0;
  std::vector<Qt::Alignment> alignment_;
};

class GridBinding : public WidgetBinding {
 public:
  GridBinding(FormView& view, Grid& grid, GridView& shown);

  void Show(Aspects aspects) override;
  void FocusArrived() override;

 protected:
  void MousePressed() override { ShowCurrent(); }
  bool KeyPressed(QKeyEvent& event) override;

 private:
  void ShowCurrent();

  Grid& grid_;
  GridView& shown_;
  GridModel model_;
  // A list that was just loaded has a current row, but nobody has gone to it yet.
  bool is_visited_ = false;
  bool is_reloaded_ = false;
};

}  // namespace ovindra::desktop
