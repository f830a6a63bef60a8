#include "platform/embedded/moment_text.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <optional>

#include "base/date.h"
#include "base/text/blanks.h"
#include "base/text/utf8.h"
#include "platform/embedded/conversion.h"
#include "platform/embedded/refusals.h"

namespace ovindra::embedded {
namespace {

using std::chrono::days;
using std::chrono::floor;
using std::chrono::local_days;
using std::chrono::months;
using std::chrono::seconds;

constexpr std::array<std::string_view, 12> kMonthNames{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                       "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

Moment MomentAt(std::int64_t moment) {
  return Moment(seconds(moment));
}

/// The parts of a moment as numbers.
struct Parts {
  explicit Parts(std::int64_t moment) {
    const auto day_start = floor<days>(MomentAt(moment));
    const Date day(day_start);
    const std::chrono::hh_mm_ss time(MomentAt(moment) - day_start);
    year = static_cast<int>(day.year());
    month = static_cast<unsigned>(day.month());
    day_of_month = static_cast<unsigned>(day.day());
    hour = static_cast<int>(time.hours().count());
    minute = static_cast<int>(time.minutes().count());
    second = static_cast<int>(time.seconds().count());
  }
  int year;
  unsigned month;
  unsigned day_of_month;
  int hour;
  int minute;
  int second;
};

struct Style {
  int number;
  std::string_view form;
};

/// The styles that are written; in a form Y is the year of four digits, y of two, M the month as number, N as
/// name, D the day of two digits, d padded with a blank, H, I and S the time, T the time of twelve hours.
constexpr Style kStyles[] = {
    {0, "N d Y T"},
    {100, "N d Y T"},
    {1, "M/D/y"},
    {101, "M/D/Y"},
    {2, "y.M.D"},
    {102, "Y.M.D"},
    {3, "D/M/y"},
    {103, "D/M/Y"},
    {4, "D.M.y"},
    {104, "D.M.Y"},
    {5, "D-M-y"},
    {105, "D-M-Y"},
    {6, "D N y"},
    {106, "D N Y"},
    {7, "N D, y"},
    {107, "N D, Y"},
    {8, "H:I:S"},
    {108, "H:I:S"},
    {10, "M-D-y"},
    {110, "M-D-Y"},
    {11, "y/M/D"},
    {111, "Y/M/D"},
    {12, "yMD"},
    {112, "YMD"},
    {20, "Y-M-D H:I:S"},
    {120, "Y-M-D H:I:S"},
    {23, "Y-M-D"},
    {121, "Y-M-D H:I:S.000"},
    {21, "Y-M-D H:I:S.000"},
    {126, "Y-M-D~H:I:S"},
};

std::string Formatted(const char* format, int value) {
  std::array<char, 16> buffer{};
  const int length = std::snprintf(buffer.data(), buffer.size(), format, value);
  return {buffer.data(), static_cast<std::size_t>(length)};
}

std::string TwelveHours(const Parts& parts) {
  const int hour = parts.hour % 12 == 0 ? 12 : parts.hour % 12;
  return Formatted("%2d", hour) + Formatted(":%02d", parts.minute) + (parts.hour < 12 ? "AM" : "PM");
}

std::string FormPart(char letter, const Parts& parts) {
  switch (letter) {
    case 'Y':
      return Formatted("%04d", parts.year);
    case 'y':
      return Formatted("%02d", parts.year % 100);
    case 'M':
      return Formatted("%02d", static_cast<int>(parts.month));
    case 'N':
      return std::string(kMonthNames.at(parts.month - 1));
    case 'D':
      return Formatted("%02d", static_cast<int>(parts.day_of_month));
    case 'd':
      return Formatted("%2d", static_cast<int>(parts.day_of_month));
    case 'H':
      return Formatted("%02d", parts.hour);
    case 'I':
      return Formatted("%02d", parts.minute);
    case 'S':
      return Formatted("%02d", parts.second);
    case 'T':
      return TwelveHours(parts);
    case '~':
      return "T";
    default:
      return {letter};
  }
}

/// yyyymmdd as yyyy-mm-dd.
std::optional<Moment> ReadUnparted(std::string_view text) {
  const bool is_digits = std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
  if (text.size() != 8 || !is_digits) return {};
  std::string parted(text);
  parted.insert(6, "-").insert(4, "-");
  return ReadMoment(parted);
}

enum class Part { kYear, kMonth, kDay, kHour, kMinute, kSecond, kWeek, kQuarter, kWeekday, kDayOfYear };

struct PartName {
  std::string_view name;
  Part part;
};

constexpr PartName kPartNames[] = {
    {"year", Part::kYear},
    {"yy", Part::kYear},
    {"yyyy", Part::kYear},
    {"quarter", Part::kQuarter},
    {"qq", Part::kQuarter},
    {"q", Part::kQuarter},
    {"month", Part::kMonth},
    {"mm", Part::kMonth},
    {"m", Part::kMonth},
    {"day", Part::kDay},
    {"dd", Part::kDay},
    {"d", Part::kDay},
    {"dayofyear", Part::kDayOfYear},
    {"dy", Part::kDayOfYear},
    {"y", Part::kDayOfYear},
    {"week", Part::kWeek},
    {"wk", Part::kWeek},
    {"ww", Part::kWeek},
    {"weekday", Part::kWeekday},
    {"dw", Part::kWeekday},
    {"hour", Part::kHour},
    {"hh", Part::kHour},
    {"minute", Part::kMinute},
    {"mi", Part::kMinute},
    {"n", Part::kMinute},
    {"second", Part::kSecond},
    {"ss", Part::kSecond},
    {"s", Part::kSecond},
};

Part PartNamed(std::string_view name, std::string_view function) {
  for (const PartName& each : kPartNames) {
    if (SameWithoutCase(each.name, name)) return each.part;
  }
  throw InvalidDatePart(name, function);
}

std::int64_t DayNumber(std::int64_t moment) {
  return floor<days>(MomentAt(moment)).time_since_epoch().count();
}

/// Weeks begin on a Sunday.
std::int64_t WeekNumber(std::int64_t moment) {
  // 1970-01-04 was a Sunday; the offset keeps every day of the calendar above zero.
  constexpr std::int64_t kFirstSunday = 3;
  constexpr std::int64_t kManyWeeks = 100000;
  return (DayNumber(moment) - kFirstSunday + 7 * kManyWeeks) / 7;
}

std::int64_t AddMonths(std::int64_t count, std::int64_t moment) {
  const auto day_start = floor<days>(MomentAt(moment));
  const auto time = MomentAt(moment) - day_start;
  if (count > 120000 || count < -120000) throw ArithmeticOverflow(kMomentType);
  Date day = Date(day_start) + months(count);
  if (!day.ok()) day = Date(day.year() / day.month() / std::chrono::last);
  return FitMoment((StartOf(day) + time).time_since_epoch().count());
}

std::int64_t AddSeconds(std::int64_t count, std::int64_t unit, std::int64_t moment) {
  if (count > 400'000'000'000 || count < -400'000'000'000) throw ArithmeticOverflow(kMomentType);
  return FitMoment(moment + count * unit);
}

}  // namespace

std::string MomentText(std::int64_t moment, int style) {
  const auto* found = std::find_if(std::begin(kStyles), std::end(kStyles),
                                   [&](const Style& each) { return each.number == style; });
  if (found == std::end(kStyles)) throw InvalidStyle(style);
  const Parts parts(moment);
  std::string text;
  for (char letter : found->form) text += FormPart(letter, parts);
  return text;
}

std::int64_t MomentOfText(std::string_view text) {
  const std::string_view date = Trim(text);
  if (date.empty()) return kDayZero;
  std::optional<Moment> moment = ReadMoment(date);
  if (!moment) moment = ReadUnparted(date);
  if (moment) return FitMoment(moment->time_since_epoch().count());
  if (date.find_first_not_of("0123456789/-:. ") == std::string_view::npos) throw MomentOutOfRange();
  throw TextIsNoMoment();
}

std::int64_t FitMoment(std::int64_t moment) {
  constexpr std::int64_t kLowest = -6847804800;    // 1753-01-01
  constexpr std::int64_t kHighest = 253402300799;  // 9999-12-31 23:59:59
  if (moment < kLowest || moment > kHighest) throw ArithmeticOverflow(kMomentType);
  return moment;
}

std::int64_t MomentPart(std::string_view part, std::int64_t moment) {
  const Parts parts(moment);
  switch (PartNamed(part, "datepart")) {
    case Part::kYear:
      return parts.year;
    case Part::kQuarter:
      return (parts.month + 2) / 3;
    case Part::kMonth:
      return parts.month;
    case Part::kDay:
      return parts.day_of_month;
    case Part::kHour:
      return parts.hour;
    case Part::kMinute:
      return parts.minute;
    case Part::kSecond:
      return parts.second;
    case Part::kWeekday:
      return std::chrono::weekday(floor<days>(MomentAt(moment))).c_encoding() + 1;
    case Part::kDayOfYear:
    case Part::kWeek: {
      const Date first(std::chrono::year(parts.year), std::chrono::January, std::chrono::day(1));
      const std::int64_t start = StartOf(first).time_since_epoch().count();
      if (PartNamed(part, "datepart") == Part::kWeek) return WeekNumber(moment) - WeekNumber(start) + 1;
      return DayNumber(moment) - DayNumber(start) + 1;
    }
  }
  return 0;
}

std::int64_t AddMomentParts(std::string_view part, std::int64_t count, std::int64_t moment) {
  switch (PartNamed(part, "dateadd")) {
    case Part::kYear:
      return AddMonths(std::clamp<std::int64_t>(count, -100000, 100000) * 12, moment);
    case Part::kQuarter:
      return AddMonths(std::clamp<std::int64_t>(count, -100000, 100000) * 3, moment);
    case Part::kMonth:
      return AddMonths(count, moment);
    case Part::kWeek:
      return AddSeconds(count, 7 * kDaySeconds, moment);
    case Part::kHour:
      return AddSeconds(count, 3600, moment);
    case Part::kMinute:
      return AddSeconds(count, 60, moment);
    case Part::kSecond:
      return AddSeconds(count, 1, moment);
    default:
      return AddSeconds(count, kDaySeconds, moment);
  }
}

std::int64_t CountMomentParts(std::string_view part, std::int64_t from, std::int64_t to) {
  const Parts first(from);
  const Parts last(to);
  const auto month_number = [](const Parts& parts) { return parts.year * 12LL + parts.month - 1; };
  const auto units = [&](std::int64_t unit) {
    return (to - kDayZero * 4) / unit - (from - kDayZero * 4) / unit;
  };
  switch (PartNamed(part, "datediff")) {
    case Part::kYear:
      return last.year - first.year;
    case Part::kQuarter:
      return month_number(last) / 3 - month_number(first) / 3;
    case Part::kMonth:
      return month_number(last) - month_number(first);
    case Part::kWeek:
      return WeekNumber(to) - WeekNumber(from);
    case Part::kHour:
      return units(3600);
    case Part::kMinute:
      return units(60);
    case Part::kSecond:
      return to - from;
    default:
      return DayNumber(to) - DayNumber(from);
  }
}

std::int64_t MomentNow() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return static_cast<std::int64_t>(now) + local.tm_gmtoff;
}

}  // namespace ovindra::embedded
