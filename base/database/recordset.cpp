#include "base/database/recordset.h"

#include <bit>
#include <charconv>
#include <cmath>

#include "base/database/database_error.h"
#include "base/text/blanks.h"
#include "base/text/utf8.h"

namespace ovindra {
namespace {

/// The shortest digits that read back as the same number, without an exponent where a person would write
/// none.
std::string NumberText(double value) {
  char digits[400];
  const auto format = std::abs(value) < 1e15 ? std::chars_format::fixed : std::chars_format::general;
  const auto written = std::to_chars(std::begin(digits), std::end(digits), value, format);
  return {digits, written.ptr};
}

template <typename Number>
Number ReadNumber(std::string_view text) {
  text = Trim(text);
  Number value{};
  const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
  if (read.ec != std::errc{} || read.ptr != text.data() + text.size()) throw TypeMismatch();
  return value;
}

Moment OfSeconds(std::int64_t seconds) {
  return Moment(std::chrono::seconds(seconds));
}

}  // namespace

Field Field::Integer(std::int64_t value) {
  Field field(FieldKind::kInteger);
  field.integer_ = value;
  return field;
}

Field Field::Real(double value) {
  Field field(FieldKind::kReal);
  field.real_ = value;
  return field;
}

Field Field::Text(std::string_view value) {
  Field field(FieldKind::kText);
  field.text_ = value;
  return field;
}

Field Field::OfMoment(Moment value) {
  Field field(FieldKind::kMoment);
  field.integer_ = value.time_since_epoch().count();
  return field;
}

std::string Field::AsText() const {
  switch (kind_) {
    case FieldKind::kNull:
      throw InvalidUseOfNull();
    case FieldKind::kInteger:
      return std::to_string(integer_);
    case FieldKind::kReal:
      return NumberText(real_);
    case FieldKind::kText:
      return std::string(text_);
    case FieldKind::kMoment:
      return ShortDate(OfSeconds(integer_));
  }
  return {};
}

double Field::AsNumber() const {
  switch (kind_) {
    case FieldKind::kNull:
      throw InvalidUseOfNull();
    case FieldKind::kInteger:
      return static_cast<double>(integer_);
    case FieldKind::kReal:
      return real_;
    case FieldKind::kText:
      return ReadNumber<double>(text_);
    case FieldKind::kMoment:
      throw TypeMismatch();
  }
  return 0;
}

std::int64_t Field::AsInteger() const {
  if (kind_ == FieldKind::kInteger) return integer_;
  return static_cast<std::int64_t>(std::nearbyint(AsNumber()));
}

Moment Field::AsMoment() const {
  if (IsNull()) throw InvalidUseOfNull();
  if (kind_ == FieldKind::kMoment) return OfSeconds(integer_);
  const auto moment = kind_ == FieldKind::kText ? ReadMoment(text_) : std::nullopt;
  if (!moment) throw TypeMismatch();
  return *moment;
}

std::string Trim(const Field& field) {
  if (field.IsNull()) return {};
  if (field.kind() == FieldKind::kText) return std::string(Trim(field.RawText()));
  return field.AsText();
}

std::string YearFirstText(const Field& field) {
  if (field.IsNull()) return {};
  return field.kind() == FieldKind::kMoment ? YearFirst(field.AsMoment()) : field.AsText();
}

Recordset Recordset::OfCount(std::int64_t affected_rows) {
  Recordset result;
  result.affected_rows_ = affected_rows;
  return result;
}

std::size_t Recordset::Ordinal(std::string_view name) const {
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    if (SameWithoutCase(columns_[i], name)) return i;
  }
  throw NoSuchField();
}

Field Recordset::At(std::size_t ordinal) const {
  if (ordinal >= columns_.size()) throw NoSuchField();
  if (Eof()) throw NoCurrentRecord();
  const Cell& cell = cells_[row_ * columns_.size() + ordinal];
  switch (cell.kind) {
    case FieldKind::kNull:
      break;
    case FieldKind::kInteger:
      return Field::Integer(cell.bits);
    case FieldKind::kReal:
      return Field::Real(std::bit_cast<double>(cell.bits));
    case FieldKind::kText:
      return Field::Text(std::string_view(text_).substr(static_cast<std::size_t>(cell.bits), cell.length));
    case FieldKind::kMoment:
      return Field::OfMoment(OfSeconds(cell.bits));
  }
  return Field::Null();
}

void Recordset::AppendReal(double value) {
  Append(FieldKind::kReal, std::bit_cast<std::int64_t>(value), 0);
}

void Recordset::AppendText(std::string_view value) {
  Append(FieldKind::kText, static_cast<std::int64_t>(text_.size()), static_cast<std::uint32_t>(value.size()));
  text_ += value;
}

void Recordset::AppendMoment(Moment value) {
  Append(FieldKind::kMoment, value.time_since_epoch().count(), 0);
}

void Recordset::Append(FieldKind kind, std::int64_t bits, std::uint32_t length) {
  cells_.push_back({bits, length, kind});
  if (cells_.size() == (row_count_ + 1) * columns_.size()) ++row_count_;
}

}  // namespace ovindra
