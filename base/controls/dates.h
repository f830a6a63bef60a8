// Dates to type and to pick: the date picker and the month calendar.
#pragma once

#include "base/controls/control.h"
#include "base/date.h"

namespace ovindra {

class DatePicker : public Control {
 public:
  template <typename... Options>
  DatePicker(Container& container, std::string_view name, std::string_view caption, Options... options)
      : Control(container, name, caption) {
    (Apply(options), ...);
  }

  Date value() const { return value_; }
  /// Fires change when the date differs.
  void SetValue(Date value);

  /// A person sets the date.
  void UserSetDate(Date value);

  Event<> change;

 private:
  using Control::Apply;

  Date value_{std::chrono::year(1900), std::chrono::January, std::chrono::day(1)};
};

class MonthView : public Control {
 public:
  template <typename... Options>
  MonthView(Container& container, std::string_view name, Options... options) : Control(container, name, "") {
    (Apply(options), ...);
  }

  Date value() const { return value_; }
  void SetValue(Date value);

  /// A person clicks a day: it becomes the current one, then the day's click fires.
  void UserClickDay(Date day);
  /// A person moves to a day by keyboard.
  void UserMoveToDay(Date day);

  Event<> date_click;

 protected:
  /// Up and Down move a week; Enter passes on as a key press. Escape puts a calendar away that was brought
  /// up.
  void DoKey(Key key) override;
  void DoClick() override {}

 private:
  using Control::Apply;
  void Apply(HiddenTag hidden) {
    Control::Apply(hidden);
    is_brought_up_ = true;
  }

  Date value_{std::chrono::year(1900), std::chrono::January, std::chrono::day(1)};
  bool is_brought_up_ = false;
};

}  // namespace ovindra
