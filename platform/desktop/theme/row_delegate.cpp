#include "platform/desktop/theme/row_delegate.h"

#include <QAbstractItemView>
#include <QTableView>

#include "platform/desktop/theme/theme.h"

namespace ovindra::theme {
namespace {

// The list of an open combo box takes the keys without having the focus in Qt's sense.
bool HasKeys(const QWidget& view) {
  return view.hasFocus() || view.inherits("QComboBoxListView");
}

}  // namespace

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QSize size = QStyledItemDelegate::sizeHint(option, index);
  const bool grid = qobject_cast<const QTableView*>(option.widget) != nullptr;
  size.setHeight(qMax(size.height(), grid ? kGridRowHeight : kListRowHeight));
  return size;
}

void RowDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  option->state &= ~QStyle::State_HasFocus;
  option->state &= ~QStyle::State_MouseOver;
  if (option->widget == nullptr || !option->widget->isEnabled()) return;
  const Tokens& tokens = Current();
  const bool strong = HasKeys(*option->widget);
  option->palette.setColor(QPalette::All, QPalette::Highlight, strong ? tokens.fill : tokens.soft);
  option->palette.setColor(QPalette::All, QPalette::HighlightedText, strong ? tokens.on_fill : tokens.text);
}

}  // namespace ovindra::theme
