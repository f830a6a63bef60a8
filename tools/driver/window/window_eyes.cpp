// What a person sees, as the widgets show it.
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>

#include "base/controls/shown.h"
#include "platform/desktop/binder/grid_view.h"
#include "platform/desktop/binder/text.h"
#include "tools/driver/window/find_widget.h"

namespace ovindra::driver {
namespace {

using desktop::FromQt;

std::string MonthFirstOf(QDate day) {
  return MonthFirst(FromQt(day));
}

/// Text that a widget of this kind shows; nothing for another kind.
using Reader = std::optional<std::string> (*)(const QWidget&);

template <typename Kind, auto read>
std::optional<std::string> ReadAs(const QWidget& widget) {
  const auto* kind = qobject_cast<const Kind*>(&widget);
  if (kind == nullptr) return {};
  return read(*kind);
}

constexpr Reader kReaders[] = {
    &ReadAs<QLineEdit, [](const QLineEdit& line) { return FromQt(line.text()); }>,
    &ReadAs<QComboBox, [](const QComboBox& box) { return FromQt(box.currentText()); }>,
    &ReadAs<QAbstractButton, [](const QAbstractButton& button) { return FromQt(button.text()); }>,
    &ReadAs<QDateEdit, [](const QDateEdit& edit) { return MonthFirstOf(edit.date()); }>,
    &ReadAs<QCalendarWidget,
            [](const QCalendarWidget& calendar) { return MonthFirstOf(calendar.selectedDate()); }>,
    &ReadAs<QGroupBox, [](const QGroupBox& group) { return FromQt(group.title()); }>,
    &ReadAs<QListView, [](const QListView& list) { return FromQt(list.currentIndex().data().toString()); }>,
    &ReadAs<QTabBar, [](const QTabBar& bar) { return FromQt(bar.tabText(bar.currentIndex())); }>,
    &ReadAs<QTabWidget, [](const QTabWidget& pages) { return FromQt(pages.tabText(pages.currentIndex())); }>,
};

const QAbstractItemModel& ModelOf(const QWidget& widget) {
  if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) return *combo->model();
  return *dynamic_cast<const QAbstractItemView&>(widget).model();
}

}  // namespace

bool WindowPlayer::IsOpen(std::string_view form) {
  const Form* open = program_->has_ended() ? nullptr : program_->OpenForm(form);
  const desktop::FormWindow* window = open == nullptr ? nullptr : desktop_->WindowOf(*open);
  return window != nullptr && window->window() != nullptr && window->window()->isVisible();
}

std::string WindowPlayer::FormCaption(std::string_view form) {
  return FromQt(WindowOf(form).view().root()->windowTitle());
}

std::string WindowPlayer::FocusedControl(std::string_view form) {
  desktop::FormWindow& window = WindowOf(form);
  const QWidget* focus = window.view().root()->focusWidget();
  for (const Control* control : window.form().controls()) {
    const desktop::WidgetBinding* binding = window.view().BindingOf(*control);
    if (focus != nullptr && binding != nullptr && &binding->focus_widget() == focus)
      return control->full_name();
  }
  return {};
}

PointerShape WindowPlayer::SeenPointer() {
  const QCursor* cursor = QApplication::overrideCursor();
  const bool waits = cursor != nullptr && cursor->shape() == Qt::WaitCursor;
  return waits ? PointerShape::kHourglass : PointerShape::kDefault;
}

bool WindowPlayer::IsEnabled(const ControlName& name) {
  if (const QAction* action = ActionOf(name)) return action->isEnabled();
  if (const Timer* timer = TimerOf(name)) return timer->enabled();
  return BindingOf(name).widget().isEnabled();
}

bool WindowPlayer::IsVisible(const ControlName& name) {
  if (const QAction* action = ActionOf(name)) return action->isVisible();
  if (const Timer* timer = TimerOf(name)) return timer->visible();
  return BindingOf(name).widget().isVisibleTo(WindowOf(name.form).view().root());
}

bool WindowPlayer::IsOn(const ControlName& name) {
  return WidgetOf<QAbstractButton>(name).isChecked();
}

std::string WindowPlayer::Text(const ControlName& name) {
  if (const QAction* action = ActionOf(name)) return FromQt(action->text());
  const QWidget& widget = BindingOf(name).widget();
  for (const Reader reader : kReaders) {
    if (const auto text = reader(widget)) return *text;
  }
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    const QVariant picture = label->property("picture");
    return FromQt(picture.isValid() ? picture.toString() : label->text());
  }
  return LabelBeside(name);
}

std::string WindowPlayer::LabelBeside(const ControlName& name) {
  const QWidget* root = WindowOf(name.form).view().root();
  const auto* label = root->findChild<QLabel*>("look_" + BindingOf(name).widget().objectName());
  if (label == nullptr || !label->isVisibleTo(root))
    throw StepFailure("a label beside " + name.control, "it shows none");
  return FromQt(label->text());
}

std::string WindowPlayer::PanelText(const ControlName& name, int panel) {
  auto& bar = WidgetOf<QStatusBar>(name);
  desktop::FormView& view = WindowOf(name.form).view();
  // The clock may have been set since the bar last looked at it.
  view.Mark(BindingOf(name), desktop::kAllAspects);
  view.ShowChanges();
  const auto panels = bar.findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
  return FromQt(panels[panel]->text());
}

std::vector<std::string> WindowPlayer::Items(const ControlName& name) {
  const QAbstractItemModel& model = ModelOf(BindingOf(name).widget());
  std::vector<std::string> texts;
  for (int row = 0; row < model.rowCount(); ++row)
    texts.push_back(FromQt(model.index(row, 0).data().toString()));
  return texts;
}

int WindowPlayer::GridRows(const ControlName& name) {
  return WidgetOf<desktop::GridView>(name).model()->rowCount() + 1;
}

std::vector<std::string> WindowPlayer::GridRow(const ControlName& name, int row) {
  const QAbstractItemModel& model = *WidgetOf<desktop::GridView>(name).model();
  std::vector<std::string> cells;
  for (int column = 0; column < model.columnCount(); ++column) {
    const QVariant cell = row == 0 ? model.headerData(column, Qt::Horizontal, Qt::EditRole)
                                   : model.index(row - 1, column).data();
    cells.push_back(FromQt(cell.toString()));
  }
  return cells;
}

}  // namespace ovindra::driver
