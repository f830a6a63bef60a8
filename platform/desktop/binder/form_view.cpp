#include "platform/desktop/binder/form_view.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <algorithm>
#include <utility>

#include "base/controls/shown.h"
#include "platform/desktop/binder/binding.h"
#include "platform/desktop/binder/cards.h"
#include "platform/desktop/binder/form_file.h"
#include "platform/desktop/binder/form_panel.h"
#include "platform/desktop/binder/keys.h"
#include "platform/desktop/binder/make_binding.h"
#include "platform/desktop/binder/text.h"
#include "platform/desktop/binder/totals.h"

namespace ovindra::desktop {
namespace {

QMdiSubWindow* ChildWindowOf(QWidget* widget) {
  while (widget != nullptr && qobject_cast<QMdiSubWindow*>(widget) == nullptr)
    widget = widget->parentWidget();
  return qobject_cast<QMdiSubWindow*>(widget);
}

}  // namespace

FormView::FormView(Form& form, Perform perform, ViewSettings settings)
    : form_(form), perform_(std::move(perform)), settings_(std::move(settings)) {
  form_.Observe(this);
}

FormView::~FormView() {
  Retire();
  delete root_.data();
}

void FormView::Build() {
  if (IsBuilt()) return;
  root_ = LoadFormFile(ToQt(form_.name()));
  if (root_ == nullptr) {
    untied_.push_back(ToQt(form_.name()) + ".ui");
    root_ = new FormPanel;
  }
  if (auto* panel = dynamic_cast<FormPanel*>(root_.data())) panel->SetView(*this);
  Tie();
  PlaceCards(*root_);
  PlaceTotals(*root_);
}

void FormView::Tie() {
  QHash<QString, QWidget*> named = ControlWidgets(*root_);
  for (Control* control : form_.controls()) {
    Binding* binding = MakeBinding(*this, *control, named.take(WidgetName(*control)));
    if (binding == nullptr) {
      untied_.push_back(ToQt(control->full_name()));
      continue;
    }
    by_control_.insert(control, binding);
    changed_.push_back(binding);
  }
  for (auto left = named.cbegin(); left != named.cend(); ++left) untied_.push_back(left.key());
}

WidgetBinding* FormView::BindingOf(const Control& control) const {
  return dynamic_cast<WidgetBinding*>(by_control_.value(&control));
}

void FormView::Mark(Binding& binding, unsigned aspects) {
  if (!binding.IsPending()) changed_.push_back(&binding);
  binding.Mark(aspects);
}

void FormView::ShowChanges() {
  if (!IsBuilt() || is_retired_ || is_showing_) return;
  is_showing_ = true;
  if (std::exchange(caption_changed_, false)) root_->setWindowTitle(ToQt(form_.caption()));
  for (Binding* binding : std::exchange(changed_, {})) binding->Show(binding->TakePending());
  is_showing_ = false;
  ShowFocus();
}

void FormView::ShowFocus() {
  if (!IsBuilt() || is_retired_ || !IsActive()) return;
  WidgetBinding* binding = form_.focused() == nullptr ? nullptr : BindingOf(*form_.focused());
  // The main window has nothing to focus itself; its child windows have.
  if (binding == nullptr && qobject_cast<QMainWindow*>(root_.data()) != nullptr) return;
  QWidget& target = binding == nullptr ? *root_ : binding->focus_widget();
  const bool changed = std::exchange(focus_changed_, false);
  if (root_->window()->focusWidget() != &target) target.setFocus(Qt::OtherFocusReason);
  if (changed && binding != nullptr && !by_mouse_) binding->FocusArrived();
}

bool FormView::IsActive() const {
  const QMdiSubWindow* child = ChildWindowOf(root_);
  return child == nullptr || child->mdiArea() == nullptr || child->mdiArea()->activeSubWindow() == child;
}

void FormView::Activate() {
  QMdiSubWindow* child = ChildWindowOf(root_);
  if (child != nullptr && child->mdiArea() != nullptr) child->mdiArea()->setActiveSubWindow(child);
}

bool FormView::Act(const std::function<void()>& action) {
  if (is_showing_ || is_retired_) return false;
  const QPointer<FormView> self(this);
  perform_(action);
  return self != nullptr && !is_retired_;
}

bool FormView::UserFocus(WidgetBinding& binding, FocusBy by) {
  Activate();
  Control& control = binding.control();
  if (form_.focused() == &control) return control.CanAct();
  Commit();
  if (is_retired_) return false;
  bool came = false;
  by_mouse_ = by == FocusBy::kMouse;
  const bool alive = Act([&] { came = form_.UserFocus(control); });
  by_mouse_ = false;
  return alive && came;
}

void FormView::UserTab(bool backward) {
  Commit();
  Act([this, backward] {
    Control* from = form_.focused();
    if (from != nullptr && from->UserKeyDown(KeyName::kTab)) form_.UserLeave(*from, backward);
  });
  TakeFirstFocus();
}

void FormView::TakeFirstFocus() {
  if (is_retired_ || form_.focused() != nullptr) return;
  const auto& controls = form_.controls();
  const auto first = std::find_if(controls.begin(), controls.end(), [](const Control* control) {
    return control->IsTabStop() && control->CanAct();
  });
  if (first != controls.end()) Act([this, first] { form_.UserFocus(**first); });
}

void FormView::UserKeyOnForm(const QKeyEvent& event) {
  const auto key = KeyOf(event);
  if (key && key->name != KeyName::kCharacter) Act([&] { form_.key_down.Fire(key->name); });
}

void FormView::Commit() {
  if (is_retired_ || form_.focused() == nullptr) return;
  if (WidgetBinding* binding = BindingOf(*form_.focused())) binding->Commit();
}

void FormView::FocusCameTo(const WidgetBinding& binding) {
  if (is_showing_ || is_retired_ || form_.focused() == &binding.control()) return;
  QMetaObject::invokeMethod(this, &FormView::ShowFocus, Qt::QueuedConnection);
}

WidgetBinding* FormView::UsableWith(const Control& control, QChar letter) const {
  WidgetBinding* binding = BindingOf(control);
  const bool has_it =
      binding != nullptr && !letter.isNull() && binding->mnemonic().toUpper() == letter.toUpper();
  return has_it && control.CanAct() ? binding : nullptr;
}

bool FormView::SharesMnemonic(const WidgetBinding& binding) const {
  const auto& controls = form_.controls();
  return std::any_of(controls.begin(), controls.end(), [&](const Control* control) {
    const WidgetBinding* other = UsableWith(*control, binding.mnemonic());
    return other != nullptr && other != &binding;
  });
}

WidgetBinding* FormView::WithMnemonic(const QKeyEvent& event) const {
  // Of several with the letter the next one after the focus is meant.
  const QChar letter(static_cast<char16_t>(event.key()));
  WidgetBinding* first = nullptr;
  bool behind = form_.focused() == nullptr;
  for (const Control* control : form_.controls()) {
    WidgetBinding* meant = UsableWith(*control, letter);
    if (meant != nullptr && behind) return meant;
    if (first == nullptr) first = meant;
    behind = behind || control == form_.focused();
  }
  return first;
}

void FormView::Retire() {
  if (is_retired_) return;
  is_retired_ = true;
  form_.Observe(nullptr);
  changed_.clear();
}

void FormView::FocusChanged() {
  focus_changed_ = true;
  if (settings_.focus_moved) settings_.focus_moved(form_);
}

void FormView::ControlChanged(Control& control, Aspect aspect) {
  if (Binding* binding = by_control_.value(&control)) Mark(*binding, static_cast<unsigned>(aspect));
  const auto* animation = dynamic_cast<const Animation*>(&control);
  if (animation == nullptr || !animation->is_playing()) return;
  // The work that it stands for begins now, and nothing is shown before that has ended.
  ShowChanges();
  if (!IsBuilt()) return;
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  root_->repaint();
}

}  // namespace ovindra::desktop
