// The one delegate of lists and grids: the selected row is strong while its view has the focus and soft while
// it has not, no cell has a focus frame of its own, and rows are as high as the theme says. The view owns it.
#pragma once

#include <QStyledItemDelegate>

namespace ovindra::theme {

class RowDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

}  // namespace ovindra::theme
