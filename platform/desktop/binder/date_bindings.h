// Dates: the picker, in the machine's short form, and the month calendar.
#pragma once

#include <QCalendarWidget>
#include <QDateEdit>

#include "base/controls/dates.h"
#include "platform/desktop/binder/binding.h"

namespace ovindra::desktop {

class DateBinding : public WidgetBinding {
 public:
  DateBinding(FormView& view, DatePicker& picker, QDateEdit& edit);

  void Show(Aspects aspects) override;
  void FocusArrived() override;
  void Commit() override;

 protected:
  bool KeyPressed(QKeyEvent& event) override;
  bool IsClickedAsAWhole() const override { return true; }

 private:
  DatePicker& picker_;
  QDateEdit& edit_;
};

class MonthBinding : public WidgetBinding {
 public:
  MonthBinding(FormView& view, MonthView& month, QCalendarWidget& calendar);

  void Show(Aspects aspects) override;
  QWidget& focus_widget() const override { return *days_; }

 protected:
  bool KeyPressed(QKeyEvent& event) override;

 private:
  MonthView& month_;
  QCalendarWidget& calendar_;
  QWidget* days_;
};

/// The machine's short date form as the toolkit writes it.
QString QtShortDateForm();

}  // namespace ovindra::desktop
