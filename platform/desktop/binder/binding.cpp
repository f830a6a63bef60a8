#include "platform/desktop/binder/binding.h"

#include <QAbstractScrollArea>
#include <QKeyEvent>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTabWidget>
#include <utility>

#include "platform/desktop/binder/form_view.h"
#include "platform/desktop/binder/keys.h"
#include "platform/desktop/binder/text.h"

namespace ovindra::desktop {
namespace {

// The pages of tabs are shown and hidden by their stack.
bool IsPage(const QWidget& widget) {
  return qobject_cast<const QStackedWidget*>(widget.parentWidget()) != nullptr;
}

/// What a widget may have changed by itself: not its entries and rows, and a selection that the form has made
/// is a thing of the moment.
constexpr Aspects kAheadOfControl =
    kAllAspects & ~static_cast<Aspects>(Aspect::kSelection) & ~static_cast<Aspects>(Aspect::kItems);

bool IsMnemonicChord(const QKeyEvent& event) {
  return (event.modifiers() & ~Qt::ShiftModifier) == Qt::AltModifier && event.key() < Qt::Key_Escape;
}

}  // namespace

Binding::Binding(FormView& view, Control& control) : QObject(&view), view_(view), control_(control) {}

Aspects Binding::TakePending() {
  return std::exchange(pending_, 0U);
}

bool Binding::Act(const std::function<void()>& action) {
  view_.Mark(*this, kAheadOfControl);
  return view_.Act(action);
}

WidgetBinding::WidgetBinding(FormView& view, Control& control, QWidget& widget)
    : Binding(view, control),
      widget_(widget),
      caption_label_(view.root()->findChild<QLabel*>("look_" + widget.objectName())) {
  // What stands on the pages of tabs is no part of them.
  if (qobject_cast<QTabWidget*>(&widget) != nullptr) return;
  Watch(widget);
  if (!control.TakesFocus()) return;
  for (QWidget* part : widget.findChildren<QWidget*>()) {
    // Scrolling is no step in the form.
    const bool scrolls = qobject_cast<QScrollBar*>(part) != nullptr;
    if (part->window() == widget.window() && !scrolls) Watch(*part);
  }
}

void WidgetBinding::Watch(QWidget& part) {
  part.installEventFilter(this);
  // A click moves the focus through the form, which may refuse it; the toolkit must not move it by itself.
  if (part.focusPolicy() != Qt::NoFocus) part.setFocusPolicy(Qt::TabFocus);
}

void WidgetBinding::Show(Aspects aspects) {
  if (Has(aspects, Aspect::kCaption) && caption_label_ != nullptr)
    caption_label_->setText(ToQt(control().caption()));
  if (!Has(aspects, Aspect::kState)) return;
  widget_.setEnabled(control().enabled());
  if (!IsPage(widget_)) widget_.setVisible(control().visible());
}

void WidgetBinding::PressMnemonic() {
  view().Commit();
  // A letter that several share leads from one to the next, so that none is pressed by mistake.
  if (view().SharesMnemonic(*this)) {
    view().UserFocus(*this, FocusBy::kKeyboard);
  } else {
    Act([this] { control().UserClick(); });
  }
}

bool WidgetBinding::eventFilter(QObject* watched, QEvent* event) {
  return !view().IsRetired() && Filter(watched, *event);
}

bool WidgetBinding::Filter(QObject* watched, QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return MouseDown(event.type() == QEvent::MouseButtonDblClick);
    case QEvent::MouseButtonRelease:
      MouseUp();
      return view().IsRetired();
    case QEvent::Wheel:
      // Rolling over a form must not change what stands in a field that happens to lie below the mouse.
      if (qobject_cast<QAbstractScrollArea*>(&widget_) != nullptr) return false;
      event.ignore();
      return true;
    case QEvent::FocusIn:
      if (watched == &focus_widget()) view().FocusCameTo(*this);
      return false;
    case QEvent::Shortcut:
      PressMnemonic();
      return true;
    case QEvent::ShortcutOverride: {
      // Before the menu bar, which may have the same letter.
      const auto& key = static_cast<QKeyEvent&>(event);
      const bool own = IsMnemonicChord(key) && view().WithMnemonic(key) != nullptr;
      if (own) event.accept();
      return own;
    }
    case QEvent::KeyPress: {
      // A part that has the keyboard for itself, the year of a calendar, keeps its keys.
      if (watched != &focus_widget() && watched != &widget_) return false;
      auto& key = static_cast<QKeyEvent&>(event);
      WidgetBinding* target = IsMnemonicChord(key) ? view().WithMnemonic(key) : nullptr;
      if (target == nullptr) return KeyPressed(key);
      target->PressMnemonic();
      return true;
    }
    default:
      return false;
  }
}

/// True when the press is not to be passed on: the focus could not be had.
bool WidgetBinding::MouseDown(bool second) {
  if (control().TakesFocus() && !view().UserFocus(*this, FocusBy::kMouse)) return true;
  MousePressed();
  is_pressed_ = IsClickedAsAWhole() && !second && !view().IsRetired();
  if (IsClickedAsAWhole() && second) Act([this] { control().double_click.Fire(); });
  return view().IsRetired();
}

void WidgetBinding::MouseUp() {
  if (std::exchange(is_pressed_, false)) Act([this] { control().UserClick(); });
}

bool WidgetBinding::KeyPressed(QKeyEvent& event) {
  const auto key = KeyOf(event);
  if (!key || key->name == KeyName::kTab) return false;
  Act([&] { control().UserKey(*key); });
  return true;
}

}  // namespace ovindra::desktop
