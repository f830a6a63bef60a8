#include "base/date.h"

#include <array>
#include <charconv>

#include "base/text/blanks.h"

namespace ovindra {
namespace {

using std::chrono::days;
using std::chrono::floor;
using std::chrono::local_days;

std::string& TheShortDateForm() {
  static std::string form = "dd/MM/yyyy";
  return form;
}

std::string Padded(long value, std::size_t digits) {
  std::string text = std::to_string(value);
  return text.size() < digits ? std::string(digits - text.size(), '0') + text : text;
}

long YearOf(Date day) {
  return static_cast<int>(day.year());
}
long MonthOf(Date day) {
  return static_cast<unsigned>(day.month());
}
long DayOfMonth(Date day) {
  return static_cast<unsigned>(day.day());
}

std::string TimeText(Moment moment) {
  const std::chrono::hh_mm_ss time(moment - floor<days>(moment));
  return Padded(time.hours().count(), 2) + ":" + Padded(time.minutes().count(), 2) + ":" +
         Padded(time.seconds().count(), 2);
}

bool IsMidnight(Moment moment) {
  return moment == floor<days>(moment);
}

std::string_view NextWord(std::string_view& rest) {
  rest = Trim(rest);
  const std::string_view word = rest.substr(0, rest.find(' '));
  rest.remove_prefix(word.size());
  return word;
}

/// The numbers between separators; nothing when a part is not all digits, is longer than four, or there are
/// more parts than fit.
std::optional<std::array<int, 3>> ReadParts(std::string_view text, char separator, std::size_t least) {
  std::array<int, 3> parts{};
  std::size_t count = 0;
  while (count < parts.size()) {
    const std::size_t end = std::min(text.find(separator), text.size());
    const char* last = text.data() + end;
    if (end == 0 || end > 4) return {};
    const auto read = std::from_chars(text.data(), last, parts[count++]);
    if (read.ec != std::errc{} || read.ptr != last) return {};
    if (end == text.size()) return count >= least ? std::optional(parts) : std::nullopt;
    text.remove_prefix(end + 1);
  }
  return {};
}

}  // namespace

Date DayOf(Moment moment) {
  return Date(floor<days>(moment));
}

Moment StartOf(Date day) {
  return local_days(day);
}

Date AddDays(Date day, int count) {
  return Date(local_days(day) + days(count));
}

std::string MonthFirst(Date day) {
  return Padded(MonthOf(day), 2) + "/" + Padded(DayOfMonth(day), 2) + "/" + Padded(YearOf(day), 4);
}

std::string YearFirst(Date day) {
  return Padded(YearOf(day), 4) + "-" + Padded(MonthOf(day), 2) + "-" + Padded(DayOfMonth(day), 2);
}

std::string YearFirst(Moment moment) {
  const std::string day = YearFirst(DayOf(moment));
  return IsMidnight(moment) ? day : day + " " + TimeText(moment);
}

std::optional<Moment> ReadMoment(std::string_view text) {
  const std::string_view day_text = NextWord(text);
  const std::string_view time_text = NextWord(text);
  if (!Trim(text).empty()) return {};
  Date day{};
  if (const auto month_first = ReadParts(day_text, '/', 3)) {
    const auto& [month, day_of_month, year] = *month_first;
    if (month < 0 || day_of_month < 0) return {};
    day = Date(std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
               std::chrono::day(static_cast<unsigned>(day_of_month)));
  } else if (const auto year_first = ReadParts(day_text, '-', 3)) {
    const auto& [year, month, day_of_month] = *year_first;
    day = Date(std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
               std::chrono::day(static_cast<unsigned>(day_of_month)));
  }
  if (!day.ok() || YearOf(day) < 1753) return {};
  Moment moment = StartOf(day);
  if (!time_text.empty()) {
    const auto time = ReadParts(time_text, ':', 2);
    if (!time || (*time)[0] > 23 || (*time)[1] > 59 || (*time)[2] > 59) return {};
    moment +=
        std::chrono::hours((*time)[0]) + std::chrono::minutes((*time)[1]) + std::chrono::seconds((*time)[2]);
  }
  return moment;
}

void UseShortDateForm(std::string form) {
  TheShortDateForm() = std::move(form);
}

const std::string& ShortDateForm() {
  return TheShortDateForm();
}

std::string ShortDate(Date day) {
  const std::string& form = TheShortDateForm();
  std::string text;
  for (std::size_t at = 0; at < form.size();) {
    const std::size_t end = std::min(form.find_first_not_of(form[at], at), form.size());
    const std::size_t digits = end - at;
    switch (form[at]) {
      case 'd':
        text += Padded(DayOfMonth(day), digits);
        break;
      case 'M':
        text += Padded(MonthOf(day), digits);
        break;
      case 'y':
        text += digits == 2 ? Padded(YearOf(day) % 100, 2) : Padded(YearOf(day), 4);
        break;
      default:
        text.append(form, at, digits);
    }
    at = end;
  }
  return text;
}

std::string ShortDate(Moment moment) {
  const std::string day = ShortDate(DayOf(moment));
  return IsMidnight(moment) ? day : day + " " + TimeText(moment);
}

}  // namespace ovindra
