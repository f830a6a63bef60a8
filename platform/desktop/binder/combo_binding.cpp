#include "platform/desktop/binder/combo_binding.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QSignalBlocker>

#include "platform/desktop/binder/form_view.h"
#include "platform/desktop/binder/keys.h"
#include "platform/desktop/binder/text.h"

namespace ovindra::desktop {
namespace {

constexpr int kRowsShown = 12;

}  // namespace

ComboBinding::ComboBinding(FormView& view, ComboBox& combo, QComboBox& box)
    : WidgetBinding(view, combo, box), combo_(combo), box_(box), items_(combo.items()) {
  box.setModel(&items_);
  box.setMaxVisibleItems(kRowsShown);
  if (combo.style() == DropDownCombo) MakeTypable();
  connect(&box, &QComboBox::activated, this, [this](int index) { Act([&] { combo_.UserPick(index); }); });
}

void ComboBinding::MakeTypable() {
  box_.setEditable(true);
  box_.setInsertPolicy(QComboBox::NoInsert);
  box_.setCompleter(nullptr);
  QLineEdit& line = *box_.lineEdit();
  // Leaving the box or pressing Enter in it would pick an entry that reads like the text.
  disconnect(&line, &QLineEdit::editingFinished, &box_, nullptr);
  disconnect(&line, &QLineEdit::returnPressed, &box_, nullptr);
  Watch(line);
  typed_.emplace(line, combo_, [this](const auto& action) { return Act(action); });
}

void ComboBinding::Show(Aspects aspects) {
  WidgetBinding::Show(aspects);
  const QSignalBlocker blocker(&box_);
  if (Has(aspects, Aspect::kItems)) items_.Refresh();
  // Set anew it would undo the selection in a typed text.
  if (box_.currentIndex() != combo_.list_index()) box_.setCurrentIndex(combo_.list_index());
  if (typed_) typed_->Show(0);
}

void ComboBinding::FocusArrived() {
  if (typed_) box_.lineEdit()->end(false);
}

bool ComboBinding::eventFilter(QObject* watched, QEvent* event) {
  if (view().IsRetired()) return false;
  const bool in_popup = is_popup_watched_ && watched == box_.view();
  if (in_popup) {
    if (event->type() == QEvent::Hide) searched_.clear();
    return event->type() == QEvent::KeyPress && KeyInPopup(static_cast<QKeyEvent&>(*event));
  }
  if (typed_ && watched == &box_ && event->type() == QEvent::InputMethod &&
      typed_->TextComposed(static_cast<QInputMethodEvent&>(*event))) {
    return true;
  }
  return WidgetBinding::eventFilter(watched, event);
}

bool ComboBinding::KeyPressed(QKeyEvent& event) {
  if (OpensList(event)) {
    OpenPopup();
    return true;
  }
  return typed_ ? typed_->KeyPressed(event) : KeyOnClosedList(event);
}

bool ComboBinding::KeyOnClosedList(QKeyEvent& event) {
  const auto key = KeyOf(event);
  if (!key) return !event.text().isEmpty() || event.modifiers() == Qt::NoModifier;
  if (key->name != KeyName::kCharacter) return WidgetBinding::KeyPressed(event);
  bool passed = false;
  if (Act([&] { passed = combo_.UserPassKey(key->character).has_value(); }) && passed) {
    OpenPopup();
    Search(event.text());
  }
  return true;
}

bool ComboBinding::KeyInPopup(QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      PickAndMoveOn();
      return true;
    case Qt::Key_Backspace:
      Search({});
      return true;
    default:
      break;
  }
  const auto key = KeyOf(event);
  if (!key || (key->name != KeyName::kCharacter && key->name != KeyName::kSpace)) return false;
  Search(event.text());
  return true;
}

void ComboBinding::OpenPopup() {
  WatchPopup();
  if (box_.count() > 0) box_.showPopup();
}

void ComboBinding::WatchPopup() {
  QAbstractItemView& list = *box_.view();
  list.setMinimumWidth(list.sizeHintForColumn(0) + list.verticalScrollBar()->sizeHint().width() + 8);
  if (is_popup_watched_) return;
  is_popup_watched_ = true;
  list.installEventFilter(this);
}

void ComboBinding::Search(const QString& text) {
  if (!IsOpen()) return;
  const QString beginning =
      text.isEmpty() ? searched_.chopped(searched_.isEmpty() ? 0 : 1) : searched_ + text;
  const int found = items_.FirstWith(beginning);
  if (found < 0) return;
  searched_ = beginning;
  box_.view()->setCurrentIndex(items_.index(found));
}

void ComboBinding::PickAndMoveOn() {
  const int row = box_.view()->currentIndex().row();
  box_.hidePopup();
  if (row >= 0 && !Act([&] { combo_.UserPick(row); })) return;
  view().UserTab(false);
}

bool ComboBinding::IsOpen() const {
  return is_popup_watched_ && box_.view()->isVisible();
}

}  // namespace ovindra::desktop
