// A list tied to one of the toolkit.
#pragma once

#include <QListView>

#include "base/controls/list_box.h"
#include "platform/desktop/binder/binding.h"
#include "platform/desktop/binder/items_model.h"

namespace ovindra::desktop {

class ListBinding : public WidgetBinding {
 public:
  ListBinding(FormView& view, ListBox& list, QListView& shown);

  void Show(Aspects aspects) override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  bool KeyPressed(QKeyEvent& event) override;

 private:
  void Step(const QKeyEvent& event);

  ListBox& list_;
  QListView& shown_;
  ItemsModel items_;
};

}  // namespace ovindra::desktop
