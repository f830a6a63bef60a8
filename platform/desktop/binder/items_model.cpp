#include "platform/desktop/binder/items_model.h"

#include "platform/desktop/binder/text.h"

namespace ovindra::desktop {

void ItemsModel::Refresh() {
  beginResetModel();
  rows_ = items_.count();
  endResetModel();
}

QVariant ItemsModel::data(const QModelIndex& index, int role) const {
  const bool has_text = role == Qt::DisplayRole || role == Qt::EditRole;
  if (!has_text || !index.isValid() || index.row() >= items_.count()) return {};
  return ToQt(items_.Text(index.row()));
}

int ItemsModel::FirstWith(const QString& beginning) const {
  for (int row = 0; row < items_.count(); ++row) {
    if (ToQt(items_.Text(row)).startsWith(beginning, Qt::CaseInsensitive)) return row;
  }
  return -1;
}

}  // namespace ovindra::desktop
