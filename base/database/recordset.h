// The result of a statement, read to its end when the statement ran: rows of fields, walked forward and read
// by name. A Recordset owns all its text; a Field looks into it and is valid as long as the Recordset stands
// unchanged.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/date.h"

namespace ovindra {

enum class FieldKind : std::uint8_t { kNull, kInteger, kReal, kText, kMoment };

/// One value of a row.
class Field {
 public:
  static Field Null() { return Field(FieldKind::kNull); }
  static Field Integer(std::int64_t value);
  static Field Real(double value);
  static Field Text(std::string_view value);
  static Field OfMoment(Moment value);

  FieldKind kind() const { return kind_; }
  bool IsNull() const { return kind_ == FieldKind::kNull; }

  /// The value as text: a number without trailing zeros, a date in the machine's short form. NULL is
  /// error 94.
  std::string AsText() const;

  /// The text of a text field without a copy; for any other kind an empty one.
  std::string_view RawText() const { return text_; }

  /// The value as a number; a text that is no number is error 13, NULL error 94.
  double AsNumber() const;
  std::int64_t AsInteger() const;

  /// The value as a date; a text that is no date is error 13, NULL error 94.
  Moment AsMoment() const;

 private:
  explicit Field(FieldKind kind) : kind_(kind) {}

  FieldKind kind_;
  std::int64_t integer_ = 0;
  double real_ = 0;
  std::string_view text_;
};

/// The field as text without the blanks around it; NULL gives an empty text.
std::string Trim(const Field& field);

/// The field as text with a date as yyyy-mm-dd; NULL gives an empty text.
std::string YearFirstText(const Field& field);

/// The rows that a statement gave.
class Recordset {
 public:
  Recordset() = default;

  /// The result of a statement without rows.
  static Recordset OfCount(std::int64_t affected_rows);

  bool HasColumns() const { return !columns_.empty(); }
  const std::vector<std::string>& columns() const { return columns_; }
  std::size_t row_count() const { return row_count_; }
  /// The bytes of all texts.
  std::size_t text_bytes() const { return text_.size(); }

  /// How many rows a statement without columns has changed.
  std::int64_t affected_rows() const { return affected_rows_; }

  bool Eof() const { return row_ >= row_count_; }
  void MoveNext() { ++row_; }
  void MoveFirst() { row_ = 0; }

  /// The first column of that name, without regard to case. No such column is error 3265.
  std::size_t Ordinal(std::string_view name) const;

  /// The field of the current row. No current row is error 3021, no such column 3265.
  Field operator[](std::string_view name) const { return At(Ordinal(name)); }
  Field At(std::size_t ordinal) const;

  /// For those who fill a Recordset: all columns first, then the fields row by row.
  void AddColumn(std::string name) { columns_.push_back(std::move(name)); }
  void Reserve(std::size_t rows, std::size_t text_bytes) {
    cells_.reserve(rows * columns_.size());
    text_.reserve(text_bytes);
  }
  void AppendNull() { Append(FieldKind::kNull, 0, 0); }
  void AppendInteger(std::int64_t value) { Append(FieldKind::kInteger, value, 0); }
  void AppendReal(double value);
  void AppendText(std::string_view value);
  void AppendMoment(Moment value);

 private:
  struct Cell {
    std::int64_t bits;  // the number, the seconds since 1970 or the text's place in text_
    std::uint32_t length;
    FieldKind kind;
  };

  void Append(FieldKind kind, std::int64_t bits, std::uint32_t length);

  std::vector<std::string> columns_;
  std::vector<Cell> cells_;
  std::string text_;
  std::size_t row_count_ = 0;
  std::size_t row_ = 0;
  std::int64_t affected_rows_ = 0;
};

}  // namespace ovindra
