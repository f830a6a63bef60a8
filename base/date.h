// Dates as the system writes them: month first in SQL, the machine's short form on the screen, year first in
// files for other programs. A Date is a day of the calendar, a Moment a day with a time, without a time zone.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace ovindra {

using Date = std::chrono::year_month_day;
using Moment = std::chrono::local_seconds;

/// The day of a moment.
Date DayOf(Moment moment);

/// Midnight, the start of the day.
Moment StartOf(Date day);

/// The day that many days later (earlier when negative).
Date AddDays(Date day, int days);

/// "mm/dd/yyyy", the form in which every date enters SQL.
std::string MonthFirst(Date day);

/// "yyyy-mm-dd".
std::string YearFirst(Date day);

/// "yyyy-mm-dd", followed by a blank and "hh:mm:ss" unless the moment is a midnight.
std::string YearFirst(Moment moment);

/// Reads "mm/dd/yyyy" or "yyyy-mm-dd", blanks around it allowed, followed by a blank and "hh:mm" or
/// "hh:mm:ss" or by nothing. Gives nothing for a text that is no date.
std::optional<Moment> ReadMoment(std::string_view text);

/// The order of day, month and year in the machine's short date form, its separator and the digits of each
/// part: written as in "dd/MM/yyyy", "M/d/yy".
void UseShortDateForm(std::string form);

const std::string& ShortDateForm();

/// The day in the machine's short date form ("dd/MM/yyyy" until told otherwise).
std::string ShortDate(Date day);

/// The moment in the machine's short form: the day alone at midnight, else the day, a blank and "hh:mm:ss".
std::string ShortDate(Moment moment);

}  // namespace ovindra
