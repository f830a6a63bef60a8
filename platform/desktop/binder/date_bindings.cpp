#include "platform/desktop/binder/date_bindings.h"

#include <QKeyEvent>
#include <QSignalBlocker>
#include <QTableView>

#include "platform/desktop/binder/form_view.h"
#include "platform/desktop/binder/keys.h"
#include "platform/desktop/binder/text.h"

namespace ovindra::desktop {
namespace {

// So that no day is cramped, whatever the layout would ask for.
constexpr QSize kCalendarSize(308, 246);

}  // namespace

QString QtShortDateForm() {
  return ToQt(ShortDateForm());
}

DateBinding::DateBinding(FormView& view, DatePicker& picker, QDateEdit& edit)
    : WidgetBinding(view, picker, edit), picker_(picker), edit_(edit) {
  edit.setDisplayFormat(QtShortDateForm());
  // A half typed year is no date yet.
  edit.setKeyboardTracking(false);
  if (!edit.calendarPopup()) edit.setButtonSymbols(QAbstractSpinBox::NoButtons);
  connect(&edit, &QDateEdit::dateChanged, this,
          [this](QDate day) { Act([&] { picker_.UserSetDate(FromQt(day)); }); });
}

void DateBinding::Show(Aspects aspects) {
  WidgetBinding::Show(aspects);
  const QSignalBlocker blocker(&edit_);
  const QDate day = ToQt(picker_.value());
  if (edit_.date() != day) edit_.setDate(day);
}

void DateBinding::FocusArrived() {
  edit_.setSelectedSection(edit_.sectionAt(0));
}

void DateBinding::Commit() {
  edit_.interpretText();
}

bool DateBinding::KeyPressed(QKeyEvent& event) {
  // The toolkit's Tab would only go from the day to the month.
  if (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab) {
    view().UserTab(event.key() == Qt::Key_Backtab);
    return true;
  }
  const auto key = KeyOf(event);
  if (!key) return false;
  if (key->name == KeyName::kEnter) Commit();
  if (!Act([&] { control().UserKey(*key); })) return true;
  return key->name == KeyName::kEnter || key->name == KeyName::kF8 || key->name == KeyName::kF9;
}

MonthBinding::MonthBinding(FormView& view, MonthView& month, QCalendarWidget& calendar)
    : WidgetBinding(view, month, calendar),
      month_(month),
      calendar_(calendar),
      days_(calendar.findChild<QTableView*>()) {
  calendar.setGridVisible(false);
  calendar.setMinimumSize(kCalendarSize);
  connect(&calendar, &QCalendarWidget::clicked, this,
          [this](QDate day) { Act([&] { month_.UserClickDay(FromQt(day)); }); });
}

void MonthBinding::Show(Aspects aspects) {
  WidgetBinding::Show(aspects);
  const QSignalBlocker blocker(&calendar_);
  calendar_.setSelectedDate(ToQt(month_.value()));
}

bool MonthBinding::KeyPressed(QKeyEvent& event) {
  const QDate day = calendar_.selectedDate();
  const auto move_to = [this](QDate to) {
    Act([&] { month_.UserMoveToDay(FromQt(to)); });
    return true;
  };
  switch (event.key()) {
    case Qt::Key_Left:
      return move_to(day.addDays(-1));
    case Qt::Key_Right:
      return move_to(day.addDays(1));
    case Qt::Key_PageUp:
      return move_to(day.addMonths(-1));
    case Qt::Key_PageDown:
      return move_to(day.addMonths(1));
    case Qt::Key_Home:
      return move_to(QDate(day.year(), day.month(), 1));
    case Qt::Key_End:
      return move_to(QDate(day.year(), day.month(), day.daysInMonth()));
    default:
      return WidgetBinding::KeyPressed(event);
  }
}

}  // namespace ovindra::desktop
