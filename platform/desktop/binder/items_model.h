// The entries of a combo box or a list as the toolkit wants to see them, without a copy. What is shown stays
// as it was told last until Refresh, so that a list that is being filled is read only when it is whole.
#pragma once

#include <QAbstractListModel>

#include "base/controls/list_items.h"

namespace ovindra::desktop {

class ItemsModel : public QAbstractListModel {
 public:
  explicit ItemsModel(const ListItems& items) : items_(items) {}

  /// The entries have changed.
  void Refresh();

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  QVariant data(const QModelIndex& index, int role) const override;

  /// The first entry that begins with the text, without regard to case; -1 for none.
  int FirstWith(const QString& beginning) const;

 private:
  const ListItems& items_;
  int rows_ = 0;
};

}  // namespace ovindra::desktop
