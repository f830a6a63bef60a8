#include "core/entry/calendar.h"

namespace ovindra {

void ShowCalendar(MonthView& calendar) {
  calendar.SetVisible(true);
  calendar.SetFocus();
}

void TakeDay(MonthView& calendar, DatePicker& picker) {
  picker.SetValue(calendar.value());
  calendar.SetVisible(false);
}

}  // namespace ovindra
