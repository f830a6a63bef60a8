// What a person does, with keys and mouse on the widgets.
#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QClipboard>
#include <QComboBox>
#include <QDateEdit>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include "base/controls/combo_box.h"
#include "base/text/utf8.h"
#include "platform/desktop/binder/grid_view.h"
#include "platform/desktop/binder/text.h"
#include "tools/driver/key_for.h"
#include "tools/driver/window/find_widget.h"

namespace ovindra::driver {
namespace {

struct KeyCode {
  KeyName name;
  Qt::Key code;
};
constexpr KeyCode kKeyCodes[] = {
    {KeyName::kEnter, Qt::Key_Return},
    {KeyName::kSpace, Qt::Key_Space},
    {KeyName::kBackspace, Qt::Key_Backspace},
    {KeyName::kDelete, Qt::Key_Delete},
    {KeyName::kUp, Qt::Key_Up},
    {KeyName::kDown, Qt::Key_Down},
    {KeyName::kTab, Qt::Key_Tab},
    {KeyName::kEscape, Qt::Key_Escape},
    {KeyName::kF8, Qt::Key_F8},
    {KeyName::kF9, Qt::Key_F9},
};

/// The line that a text box is, or that a combo box has.
QLineEdit* LineOf(QWidget& widget) {
  if (auto* combo = qobject_cast<QComboBox*>(&widget)) return combo->lineEdit();
  return qobject_cast<QLineEdit*>(&widget);
}

void GoToEndUnlessSelected(QWidget& widget) {
  const QLineEdit* line = LineOf(widget);
  if (line != nullptr && !line->hasSelectedText()) QTest::keyClick(&widget, Qt::Key_End);
}

void ClickMiddle(QWidget& widget) {
  QTest::mouseClick(&widget, Qt::LeftButton, {}, widget.rect().center());
}

/// The first entry that reads so.
int IndexOf(const QAbstractItemModel& model, const ControlName& name, std::string_view entry) {
  for (int row = 0; row < model.rowCount(); ++row) {
    if (model.index(row, 0).data().toString() == desktop::ToQt(entry)) return row;
  }
  throw StepFailure("an entry \"" + std::string(entry) + "\" in " + name.control,
                    std::to_string(model.rowCount()) + " entries without it");
}

void ClickItem(QAbstractItemView& view, const QModelIndex& index) {
  view.scrollTo(index);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
}

void ClickItem(QMenu& menu, QAction& item) {
  QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&item).center());
}

QPoint HeadPlace(const QHeaderView& head, int column) {
  return {head.sectionViewportPosition(column) + head.sectionSize(column) / 2, head.height() / 2};
}

/// Two clicks, the second of which is a double-click, unless the first has closed what was clicked.
void DoubleClickAt(QWidget& widget, QPoint place) {
  const QPointer<QWidget> clicked(&widget);
  QTest::mouseClick(&widget, Qt::LeftButton, {}, place);
  if (clicked != nullptr && clicked->isVisible()) QTest::mouseDClick(&widget, Qt::LeftButton, {}, place);
}

QTabBar& BarOf(QWidget& widget) {
  auto* pages = qobject_cast<QTabWidget*>(&widget);
  return pages == nullptr ? dynamic_cast<QTabBar&>(widget) : *pages->tabBar();
}

}  // namespace

void WindowPlayer::TurnTo(std::string_view form) {
  WindowOf(form).Show(nullptr);
  Activate(form);
}

/// Without a window manager a window that has closed leaves none active.
void WindowPlayer::Activate(std::string_view form) {
  ClosePopups();
  QApplication::setActiveWindow(WindowOf(form).window()->window());
}

void WindowPlayer::Click(const ControlName& name) {
  if (QAction* action = ActionOf(name)) {
    ChooseFromMenu(*action);
    return;
  }
  Activate(name.form);
  QWidget& widget = BindingOf(name).widget();
  // A click in a list would go to an entry; the focus is all that is meant.
  const bool has_entries = qobject_cast<QAbstractItemView*>(&widget) != nullptr;
  if (has_entries || qobject_cast<QComboBox*>(&widget) != nullptr) {
    BringFocus(name);
  } else {
    ClickMiddle(widget);
  }
}

void WindowPlayer::ChooseFromMenu(QAction& action) {
  auto& bar = *WindowOf("MDIForm1").view().root()->findChild<QMenuBar*>();
  for (QAction* title : bar.actions()) {
    const bool in_menu = title->menu() != nullptr && title->menu()->actions().contains(&action);
    if (title != &action && !in_menu) continue;
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(title).center());
    if (in_menu) ClickItem(*title->menu(), action);
    return;
  }
}

void WindowPlayer::DoubleClick(const ControlName& name) {
  Activate(name.form);
  QWidget& widget = BindingOf(name).widget();
  auto* list = qobject_cast<QListView*>(&widget);
  if (list == nullptr) {
    QTest::mouseDClick(&widget, Qt::LeftButton, {}, widget.rect().center());
  } else if (list->currentIndex().isValid()) {
    list->scrollTo(list->currentIndex());
    DoubleClickAt(*list->viewport(), list->visualRect(list->currentIndex()).center());
  }
}

void WindowPlayer::ClickCell(const ControlName& name, int row, int column) {
  Activate(name.form);
  auto& grid = WidgetOf<desktop::GridView>(name);
  QHeaderView& head = *grid.horizontalHeader();
  if (row == 0) {
    QTest::mouseClick(head.viewport(), Qt::LeftButton, {}, HeadPlace(head, column));
  } else {
    ClickItem(grid, grid.model()->index(row - 1, column));
  }
}

void WindowPlayer::DoubleClickCell(const ControlName& name, int row, int column) {
  Activate(name.form);
  auto& grid = WidgetOf<desktop::GridView>(name);
  QHeaderView& head = *grid.horizontalHeader();
  if (row == 0) {
    DoubleClickAt(*head.viewport(), HeadPlace(head, column));
    return;
  }
  const QModelIndex index = grid.model()->index(row - 1, column);
  grid.scrollTo(index);
  DoubleClickAt(*grid.viewport(), grid.visualRect(index).center());
}

void WindowPlayer::MoveToCell(const ControlName& name, int row, int column) {
  if (!BringFocus(name)) return;
  auto& grid = WidgetOf<desktop::GridView>(name);
  const QModelIndex here = grid.currentIndex();
  const int by = row - 1 - here.row();
  if (here.column() == column && (by == 1 || by == -1)) {
    QTest::keyClick(&grid, by == 1 ? Qt::Key_Down : Qt::Key_Up);
  } else {
    // One step, whatever the distance: the keys that lead there would stop at the rows between.
    emit grid.CellReached(row - 1, column);
  }
}

void WindowPlayer::Focus(const ControlName& name) {
  BringFocus(name);
}

void WindowPlayer::Leave(const ControlName& name) {
  if (BringFocus(name)) PressKey({KeyName::kTab});
}

void WindowPlayer::Type(const ControlName& name, std::string_view text) {
  if (!BringFocus(name)) return;
  GoToEndUnlessSelected(BindingOf(name).widget());
  for (const char32_t character : Characters(text)) {
    if (!IsOpen(name.form)) return;
    PressKey(KeyFor(character));
  }
}

void WindowPlayer::Paste(const ControlName& name, std::string_view text) {
  if (!BringFocus(name)) return;
  QWidget& widget = BindingOf(name).widget();
  GoToEndUnlessSelected(widget);
  QGuiApplication::clipboard()->setText(desktop::ToQt(text));
  QTest::keyClick(&widget, Qt::Key_V, Qt::ControlModifier);
}

void WindowPlayer::Clear(const ControlName& name) {
  if (!BringFocus(name)) return;
  QWidget& widget = BindingOf(name).widget();
  QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&widget, Qt::Key_Delete);
}

void WindowPlayer::Press(const ControlName& name, Key key) {
  if (!BringFocus(name)) return;
  PressKey(KeyFor(key));
}

void WindowPlayer::PressOnForm(std::string_view form, Key key) {
  TurnTo(form);
  PressKey(KeyFor(key));
}

void WindowPlayer::PressKey(Key key) {
  const QWidget* popup = QApplication::activePopupWidget();
  QWidget* target = popup != nullptr && popup->focusWidget() != nullptr ? popup->focusWidget()
                                                                        : QApplication::focusWidget();
  if (target == nullptr) throw StepFailure("a widget with the keyboard", "none");
  for (const KeyCode& named : kKeyCodes) {
    if (named.name == key.name) QTest::keyClick(target, named.code);
  }
  if (key.name != KeyName::kCharacter) return;
  const QString text = QString::fromUcs4(&key.character, 1);
  const auto code = static_cast<Qt::Key>(text.front().toUpper().unicode());
  QTest::sendKeyEvent(QTest::Click, target, code, text, Qt::NoModifier);
}

void WindowPlayer::Pick(const ControlName& name, std::string_view entry) {
  Activate(name.form);
  QWidget& widget = BindingOf(name).widget();
  if (auto* list = qobject_cast<QListView*>(&widget)) {
    ClickItem(*list, list->model()->index(IndexOf(*list->model(), name, entry), 0));
    return;
  }
  auto& combo = WidgetOf<QComboBox>(name);
  const int index = IndexOf(*combo.model(), name, entry);
  if (!BringFocus(name)) return;
  QTest::keyClick(&combo, Qt::Key_F4);
  ClickItem(*combo.view(), combo.model()->index(index, 0));
}

void WindowPlayer::Tick(const ControlName& name, bool on) {
  if (IsOn(name) == on) {
    BringFocus(name);
  } else {
    Click(name);
  }
}

void WindowPlayer::SelectTab(const ControlName& name, std::string_view caption) {
  Activate(name.form);
  QTabBar& bar = BarOf(BindingOf(name).widget());
  for (int tab = 0; tab < bar.count(); ++tab) {
    if (bar.tabText(tab) != desktop::ToQt(caption)) continue;
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(tab).center());
    return;
  }
  throw StepFailure("a tab \"" + std::string(caption) + "\" of " + name.control, "no such tab");
}

void WindowPlayer::SetDate(const ControlName& name, Date date) {
  if (!BringFocus(name)) return;
  // Typed digit by digit a date passes through others, of which some may not be.
  WidgetOf<QDateEdit>(name).setDate(desktop::ToQt(date));
}

void WindowPlayer::ClickDay(const ControlName& name, Date date) {
  Activate(name.form);
  auto& calendar = WidgetOf<QCalendarWidget>(name);
  const QDate day = desktop::ToQt(date);
  calendar.setCurrentPage(day.year(), day.month());
  auto& days = *calendar.findChild<QTableView*>();
  const QAbstractItemModel& model = *days.model();
  // Days of the month before come first; the month begins where a 1 stands.
  int passed = 0;
  for (int row = 1; row < model.rowCount(); ++row) {
    for (int column = 0; column < model.columnCount(); ++column) {
      const QModelIndex index = model.index(row, column);
      if (days.isColumnHidden(column) || (passed == 0 && index.data().toInt() != 1)) continue;
      if (++passed < day.day()) continue;
      QTest::mouseClick(days.viewport(), Qt::LeftButton, {}, days.visualRect(index).center());
      return;
    }
  }
}

void WindowPlayer::CloseWindow(std::string_view form) {
  WindowOf(form).window()->close();
}

bool WindowPlayer::BringFocus(const ControlName& name) {
  Activate(name.form);
  Control& control = ControlOf(name);
  if (!control.TakesFocus()) return true;
  return WindowOf(name.form).view().UserFocus(BindingOf(name), desktop::FocusBy::kKeyboard);
}

}  // namespace ovindra::driver
