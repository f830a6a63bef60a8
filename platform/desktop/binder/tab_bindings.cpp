#include "platform/desktop/binder/tab_bindings.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>

#include "platform/desktop/binder/form_view.h"
#include "platform/desktop/binder/text.h"

namespace ovindra::desktop {

TabStripBinding::TabStripBinding(FormView& view, TabStrip& strip, QTabBar& bar)
    : TabStripBinding(view, strip, bar, bar) {}

TabStripBinding::TabStripBinding(FormView& view, TabStrip& strip, QTabBar& bar, QWidget& widget)
    : WidgetBinding(view, strip, widget), strip_(strip), bar_(bar) {
  Watch(bar);
  const int count = static_cast<int>(strip.captions().size());
  while (&widget == &bar && bar.count() < count) bar.addTab(QString());
}

void TabStripBinding::Show(Aspects aspects) {
  WidgetBinding::Show(aspects);
  const QSignalBlocker blocker(&bar_);
  for (int tab = 0; tab < bar_.count() && tab < static_cast<int>(strip_.captions().size()); ++tab) {
    bar_.setTabText(tab, ToQt(strip_.captions()[static_cast<std::size_t>(tab)]));
  }
  bar_.setCurrentIndex(strip_.selected());
}

bool TabStripBinding::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress && watched == &bar_ && !view().IsRetired()) {
    Choose(bar_.tabAt(static_cast<QMouseEvent*>(event)->position().toPoint()));
    return true;
  }
  return WidgetBinding::eventFilter(watched, event);
}

bool TabStripBinding::KeyPressed(QKeyEvent& event) {
  if (event.key() == Qt::Key_Left || event.key() == Qt::Key_Right) {
    Choose(strip_.selected() + (event.key() == Qt::Key_Left ? -1 : 1));
    return true;
  }
  return WidgetBinding::KeyPressed(event);
}

void TabStripBinding::Choose(int tab) {
  if (tab < 0 || tab >= static_cast<int>(strip_.captions().size())) return;
  view().Commit();
  Act([this, tab] { strip_.UserSelect(tab); });
}

TabPagesBinding::TabPagesBinding(FormView& view, TabControl& tabs, QTabWidget& pages)
    : TabStripBinding(view, tabs, *pages.tabBar(), pages), pages_(pages) {}

void TabPagesBinding::Show(Aspects aspects) {
  TabStripBinding::Show(aspects);
  const QSignalBlocker blocker(&pages_);
  pages_.setCurrentIndex(strip().selected());
}

}  // namespace ovindra::desktop
