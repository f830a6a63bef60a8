#include "base/controls/dates.h"

#include "base/controls/form.h"

namespace ovindra {

void DatePicker::SetValue(Date value) {
  if (value == value_) return;
  value_ = value;
  Changed(Aspect::kText);
  change.Fire();
}

void DatePicker::UserSetDate(Date value) {
  if (CanAct() && form().UserFocus(*this)) SetValue(value);
}

void MonthView::SetValue(Date value) {
  value_ = value;
  Changed(Aspect::kText);
}

void MonthView::UserClickDay(Date day) {
  if (!CanAct() || !form().UserFocus(*this)) return;
  SetValue(day);
  date_click.Fire();
}

void MonthView::UserMoveToDay(Date day) {
  if (CanAct() && form().UserFocus(*this)) SetValue(day);
}

void MonthView::DoKey(Key key) {
  constexpr int kDaysInWeek = 7;
  switch (key.name) {
    case KeyName::kDown:
      SetValue(AddDays(value_, kDaysInWeek));
      break;
    case KeyName::kUp:
      SetValue(AddDays(value_, -kDaysInWeek));
      break;
    case KeyName::kEscape:
      if (is_brought_up_) SetVisible(false);
      break;
    default:
      Control::DoKey(key);
  }
}

}  // namespace ovindra
