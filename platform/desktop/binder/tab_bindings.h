// Tabs: the strip alone, and the tabs whose pages are frames of the form.
#pragma once

#include <QTabBar>
#include <QTabWidget>

#include "base/controls/tabs.h"
#include "platform/desktop/binder/binding.h"

namespace ovindra::desktop {

class TabStripBinding : public WidgetBinding {
 public:
  TabStripBinding(FormView& view, TabStrip& strip, QTabBar& bar);

  void Show(Aspects aspects) override;
  QWidget& focus_widget() const override { return bar_; }

 protected:
  /// `widget` is what the whole control is shown by, the bar itself or the pages with it.
  TabStripBinding(FormView& view, TabStrip& strip, QTabBar& bar, QWidget& widget);

  bool eventFilter(QObject* watched, QEvent* event) override;
  bool KeyPressed(QKeyEvent& event) override;
  TabStrip& strip() const { return strip_; }

 private:
  void Choose(int tab);

  TabStrip& strip_;
  QTabBar& bar_;
};

class TabPagesBinding : public TabStripBinding {
 public:
  TabPagesBinding(FormView& view, TabControl& tabs, QTabWidget& pages);

  void Show(Aspects aspects) override;

 private:
  QTabWidget& pages_;
};

}  // namespace ovindra::desktop
