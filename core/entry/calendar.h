// The month calendar beside a date picker: a button shows it, and the day that is clicked in it, or stands in
// it when Enter is pressed, goes to the picker.
#pragma once

#include "base/controls/dates.h"

namespace ovindra {

/// Shows the calendar and gives it the focus. It keeps the day last picked in it.
void ShowCalendar(MonthView& calendar);

/// The calendar's day goes to the picker and the calendar is hidden.
void TakeDay(MonthView& calendar, DatePicker& picker);

}  // namespace ovindra
