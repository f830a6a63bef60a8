#include "platform/embedded/conversion.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

#include "base/date.h"
#include "base/text/blanks.h"
#include "base/text/utf8.h"
#include "platform/embedded/moment_text.h"
#include "platform/embedded/refusals.h"

namespace ovindra::embedded {
namespace {

/// The widest numeric that a whole number of 64 bits holds for sure.
constexpr int kWholeDigits = 18;

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

std::int64_t IntegerOf(std::string_view text, SqlType type) {
  std::string_view digits = Trim(text);
  if (digits.empty()) return 0;
  const bool is_negative = digits.front() == '-';
  if (is_negative || digits.front() == '+') digits.remove_prefix(1);
  digits = Trim(digits);
  if (digits.empty() || !std::all_of(digits.begin(), digits.end(), IsDigit))
    throw TextDoesNotConvert(text, type);
  std::int64_t value = 0;
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (is_negative) value = -value;
  if (read.ec != std::errc{} || value < LowestOf(type) || value > HighestOf(type))
    throw TextOverflows(text, type);
  return value;
}

/// A text of a numeric in its parts: "-12.50" is 12 and 50.
struct NumericText {
  bool is_negative = false;
  std::string_view whole;
  std::string_view fraction;
};

NumericText NumericParts(std::string_view text, SqlType type) {
  NumericText parts;
  text = Trim(text);
  if (text.starts_with('-') || text.starts_with('+')) {
    parts.is_negative = text.front() == '-';
    text.remove_prefix(1);
  }
  const std::size_t point = std::min(text.find('.'), text.size());
  parts.whole = text.substr(0, point);
  parts.fraction = text.substr(std::min(point + 1, text.size()));
  const auto all_digits = [](std::string_view part) {
    return std::all_of(part.begin(), part.end(), IsDigit);
  };
  if (parts.whole.empty() && parts.fraction.empty()) throw TextIsNoNumeric(type);
  if (!all_digits(parts.whole) || !all_digits(parts.fraction)) throw TextIsNoNumeric(type);
  return parts;
}

std::int64_t FitWholeNumeric(std::int64_t value, SqlType type) {
  std::int64_t limit = 1;
  for (int digits = 0; digits < std::min(type.size, kWholeDigits); ++digits) limit *= 10;
  if (type.size <= kWholeDigits && (value >= limit || value <= -limit)) throw ArithmeticOverflow(type);
  return value;
}

Value NumericOf(std::string_view text, SqlType type) {
  const NumericText parts = NumericParts(text, type);
  const std::string number = std::string(parts.whole.empty() ? "0" : parts.whole) + "." +
                             std::string(parts.fraction.empty() ? "0" : parts.fraction);
  if (type.scale == 0) {
    std::int64_t value = 0;
    const std::string_view whole = std::string_view(number).substr(0, number.find('.'));
    const auto read = std::from_chars(whole.data(), whole.data() + whole.size(), value);
    if (read.ec != std::errc{} || value == std::numeric_limits<std::int64_t>::max())
      throw ArithmeticOverflow(type);
    if (!parts.fraction.empty() && parts.fraction.front() >= '5') ++value;
    return FitWholeNumeric(parts.is_negative ? -value : value, type);
  }
  double value = 0;
  std::from_chars(number.data(), number.data() + number.size(), value);
  return FitNumber(parts.is_negative ? -value : value, type);
}

double FloatOf(std::string_view text, SqlType type) {
  std::string_view digits = Trim(text);
  if (digits.empty()) return 0;
  if (digits.starts_with('+')) digits.remove_prefix(1);
  double value = 0;
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (read.ec != std::errc{} || read.ptr != digits.data() + digits.size() || !std::isfinite(value)) {
    throw TextIsNoNumeric(type);
  }
  return value;
}

/// Text of the length that the purpose allows: a conversion cuts, a column refuses.
std::string TextOf(std::string_view text, SqlType type, Purpose purpose) {
  if (purpose == Purpose::kStored) return std::string(FitText(text, type.size));
  if (type.size != kMaxText) text = FirstCharacters(text, static_cast<std::size_t>(type.size));
  return std::string(purpose == Purpose::kCompared ? TrimRight(text) : text);
}

/// The digits of a number; a whole number that does not fit is written as a star, any other is refused.
std::string NumberText(std::string digits, SqlType from, SqlType to, Purpose purpose) {
  if (to.size == kMaxText || digits.size() <= static_cast<std::size_t>(to.size)) return digits;
  if (from.kind == TypeKind::kInteger && purpose != Purpose::kStored) return "*";
  throw ArithmeticOverflow(to);
}

std::string RealDigits(double value, SqlType from) {
  std::array<char, 400> digits{};
  const auto written =
      from.kind == TypeKind::kNumeric
          ? std::to_chars(digits.begin(), digits.end(), value, std::chars_format::fixed, from.scale)
          : std::to_chars(digits.begin(), digits.end(), value, std::chars_format::general, 6);
  return {digits.begin(), written.ptr};
}

std::int64_t WholeOf(double value, SqlType type) {
  value = std::trunc(value);
  // 2^63 itself is no longer a whole number of 64 bits, -2^63 still is.
  constexpr double kLimit = 9223372036854775808.0;
  if (!(value >= -kLimit && value < kLimit)) throw ArithmeticOverflow(type);
  return FitInteger(static_cast<std::int64_t>(value), type);
}

/// A number of days is a moment that long after the first day.
std::int64_t MomentOfDays(double days) {
  const double seconds = std::nearbyint(days * static_cast<double>(kDaySeconds));
  if (!(std::abs(seconds) < 4e11)) throw ArithmeticOverflow(kMomentType);
  return FitMoment(kDayZero + static_cast<std::int64_t>(seconds));
}

double DaysOfMoment(std::int64_t moment) {
  return static_cast<double>(moment - kDayZero) / static_cast<double>(kDaySeconds);
}

Value ConvertMoment(std::int64_t moment, SqlType to, Purpose purpose, int style) {
  switch (to.kind) {
    case TypeKind::kText:
      return TextOf(MomentText(moment, style), to, purpose);
    case TypeKind::kInteger:
      return WholeOf(std::round(DaysOfMoment(moment)), to);
    case TypeKind::kNumeric:
    case TypeKind::kFloat:
      return FitNumber(DaysOfMoment(moment), to);
    default:
      return moment;
  }
}

Value ConvertInteger(std::int64_t value, SqlType from, SqlType to, Purpose purpose) {
  switch (to.kind) {
    case TypeKind::kText:
      return NumberText(std::to_string(value), from, to, purpose);
    case TypeKind::kInteger:
      if (to.size == 0) return std::int64_t{value != 0};
      return FitInteger(value, to);
    case TypeKind::kNumeric:
      if (to.scale == 0) return FitWholeNumeric(value, to);
      return FitNumber(static_cast<double>(value), to);
    case TypeKind::kFloat:
      return static_cast<double>(value);
    case TypeKind::kMoment:
      return MomentOfDays(static_cast<double>(value));
    default:
      return value;
  }
}

Value ConvertReal(double value, SqlType from, SqlType to, Purpose purpose) {
  switch (to.kind) {
    case TypeKind::kText:
      return NumberText(RealDigits(value, from), from, to, purpose);
    case TypeKind::kInteger:
      if (to.size == 0) return std::int64_t{value != 0};
      return WholeOf(value, to);
    case TypeKind::kNumeric:
      return FitNumber(value, to);
    case TypeKind::kMoment:
      return MomentOfDays(value);
    default:
      return value;
  }
}

}  // namespace

Value ConvertText(std::string_view text, SqlType to, Purpose purpose) {
  switch (to.kind) {
    case TypeKind::kInteger:
      return IntegerOf(text, to);
    case TypeKind::kNumeric:
      return NumericOf(text, to);
    case TypeKind::kFloat:
      return FloatOf(text, to);
    case TypeKind::kMoment:
      return MomentOfText(text);
    default:
      return TextOf(text, to, purpose);
  }
}

Value Convert(const Value& value, SqlType from, SqlType to, Purpose purpose, int style) {
  if (const auto* text = std::get_if<std::string>(&value)) return ConvertText(*text, to, purpose);
  if (const auto* real = std::get_if<double>(&value)) return ConvertReal(*real, from, to, purpose);
  if (const auto* whole = std::get_if<std::int64_t>(&value)) {
    if (from.kind == TypeKind::kMoment) return ConvertMoment(*whole, to, purpose, style);
    return ConvertInteger(*whole, from, to, purpose);
  }
  return {};
}

std::string_view FitText(std::string_view text, int size) {
  text = TrimRight(text);
  if (size != kMaxText && text.size() > static_cast<std::size_t>(size) &&
      CharacterCount(text) > static_cast<std::size_t>(size)) {
    throw TextTooLong();
  }
  return text;
}

std::int64_t FitInteger(std::int64_t value, SqlType type) {
  if (value < LowestOf(type) || value > HighestOf(type)) throw ArithmeticOverflow(type);
  return value;
}

Value FitNumber(double value, SqlType type) {
  if (!std::isfinite(value)) throw ArithmeticOverflow(type);
  if (type.kind != TypeKind::kNumeric) return value;
  if (type.scale == 0) {
    value = std::round(value);
    if (std::abs(value) >= std::pow(10.0, std::min(type.size, kWholeDigits))) throw ArithmeticOverflow(type);
    return static_cast<std::int64_t>(value);
  }
  value = RoundHalfAway(value, type.scale);
  if (std::abs(value) >= std::pow(10.0, type.size - type.scale)) throw ArithmeticOverflow(type);
  return value;
}

double RoundHalfAway(double value, int scale) {
  const double power = std::pow(10.0, scale);
  const double scaled = value * power;
  if (!std::isfinite(scaled)) return value;
  // 1.005 is stored a little below itself; the nudge is smaller than any digit that is kept.
  const double nudge = std::copysign(std::abs(scaled) * 1e-15, scaled);
  return std::round(scaled + nudge) / power;
}

}  // namespace ovindra::embedded
