#include "platform/desktop/binder/menu_bindings.h"

#include <QCoreApplication>
#include <QEvent>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QTime>

#include "platform/desktop/binder/form_file.h"
#include "platform/desktop/binder/form_view.h"
#include "platform/desktop/binder/text.h"
#include "platform/desktop/services/lock_keys.h"
#include "platform/desktop/theme/roles.h"

namespace ovindra::desktop {
namespace {

constexpr int kRefreshMilliseconds = 500;

/// The title's menu, made when its first item is: a title without items is chosen itself.
QMenu& MenuOf(QMenuBar& bar, const MenuItem& title) {
  auto* action = bar.findChild<QAction*>(WidgetName(title));
  if (action->menu() == nullptr) {
    auto* menu = new QMenu(&bar);
    action->setMenu(menu);
  }
  return *action->menu();
}

void ShowLock(QLabel& label, bool on) {
  const QString state = on ? "on" : "off";
  if (label.property(theme::role::kLock) == state) return;
  theme::role::Set(label, theme::role::kLock, state);
  // A label reads its margins from the style only when it is told so.
  QEvent change(QEvent::StyleChange);
  QCoreApplication::sendEvent(&label, &change);
}

}  // namespace

MenuBinding::MenuBinding(FormView& view, MenuItem& item, QAction& action)
    : Binding(view, item), item_(item), action_(action) {
  connect(&action, &QAction::triggered, this, [this] { Act([this] { item_.UserClick(); }); });
}

void MenuBinding::Show(Aspects /*aspects*/) {
  action_.setText(ToQt(item_.caption()));
  action_.setEnabled(item_.enabled());
  action_.setVisible(item_.visible());
}

Binding* MakeMenuBinding(FormView& view, MenuItem& item) {
  auto* bar = view.root()->findChild<QMenuBar*>();
  if (bar == nullptr) return nullptr;
  auto* action = new QAction(bar);
  action->setObjectName(WidgetName(item));
  action->setShortcut(QKeySequence::fromString(ToQt(item.shortcut()), QKeySequence::PortableText));
  if (item.menu() == nullptr) {
    bar->addAction(action);
  } else {
    MenuOf(*bar, *item.menu()).addAction(action);
  }
  return new MenuBinding(view, item, *action);
}

StatusBarBinding::StatusBarBinding(FormView& view, StatusBar& control, QStatusBar& bar)
    : WidgetBinding(view, control, bar), control_(control) {
  bar.setSizeGripEnabled(false);
  for (const StatusBar::Panel& panel : control.panels()) {
    auto* label = new QLabel(&bar);
    const bool is_lock = panel.kind == PanelKind::kCapsLock || panel.kind == PanelKind::kNumLock;
    const bool is_clock = panel.kind == PanelKind::kDate || panel.kind == PanelKind::kTime;
    if (is_lock) {
      ShowLock(*label, false);
    } else {
      theme::role::Set(*label, theme::role::kPanel);
    }
    // The bar takes its height from what its panels hold when they come.
    label->setText(Text(panel));
    label->ensurePolished();
    if (is_clock) {
      bar.addPermanentWidget(label);
    } else {
      bar.addWidget(label, is_lock ? 0 : 1);
    }
    panels_.push_back(label);
  }
  connect(&clock_, &QTimer::timeout, this, [this] { Refresh(); });
  clock_.start(kRefreshMilliseconds);
}

void StatusBarBinding::Show(Aspects aspects) {
  WidgetBinding::Show(aspects);
  Refresh();
}

void StatusBarBinding::Refresh() {
  if (view().IsRetired()) return;
  const LockKeys locks = ReadLockKeys();
  for (std::size_t i = 0; i < panels_.size(); ++i) {
    const StatusBar::Panel& panel = control_.panels()[i];
    if (panel.kind == PanelKind::kCapsLock) ShowLock(*panels_[i], locks.caps);
    if (panel.kind == PanelKind::kNumLock) ShowLock(*panels_[i], locks.num);
    panels_[i]->setText(Text(panel));
  }
}

QString StatusBarBinding::Text(const StatusBar::Panel& panel) const {
  const Moment now = view().form().machine().clock.Now();
  if (panel.kind == PanelKind::kDate) return ToQt(ShortDate(DayOf(now)));
  if (panel.kind != PanelKind::kTime) return ToQt(panel.text);
  const auto since_midnight = now - StartOf(DayOf(now));
  return QTime(0, 0).addSecs(static_cast<int>(since_midnight.count())).toString("h:mm AP");
}

}  // namespace ovindra::desktop
