#include "platform/odbc/result_reader.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <vector>

#include "platform/odbc/wide_text.h"

namespace ovindra::odbc {
namespace {

struct Column {
  std::string name;
  FieldKind kind;
};

FieldKind KindOf(SQLSMALLINT type, SQLSMALLINT digits_behind_point) {
  switch (type) {
    case SQL_BIT:
    case SQL_TINYINT:
    case SQL_SMALLINT:
    case SQL_INTEGER:
    case SQL_BIGINT:
      return FieldKind::kInteger;
    case SQL_NUMERIC:
    case SQL_DECIMAL:
      return digits_behind_point == 0 ? FieldKind::kInteger : FieldKind::kReal;
    case SQL_REAL:
    case SQL_FLOAT:
    case SQL_DOUBLE:
      return FieldKind::kReal;
    case SQL_DATE:
    case SQL_TIMESTAMP:
    case SQL_TYPE_DATE:
    case SQL_TYPE_TIMESTAMP:
      return FieldKind::kMoment;
    default:
      return FieldKind::kText;
  }
}

Moment MomentOf(const SQL_TIMESTAMP_STRUCT& stamp) {
  using namespace std::chrono;
  const Date day{year(stamp.year), month(stamp.month), std::chrono::day(stamp.day)};
  return StartOf(day) + hours(stamp.hour) + minutes(stamp.minute) + seconds(stamp.second);
}

/// Reads one result, column by column and row by row.
class ResultReader {
 public:
  explicit ResultReader(const StatementHandle& statement) : statement_(statement) {
    for (SQLUSMALLINT number = 1; number <= ColumnCount(statement_); ++number) Describe(number);
  }

  Recordset ReadAll() {
    for (const Column& column : columns_) rows_.AddColumn(column.name);
    while (statement_.Check(SQLFetch(statement_.get())) != SQL_NO_DATA) {
      for (std::size_t i = 0; i < columns_.size(); ++i)
        ReadField(static_cast<SQLUSMALLINT>(i + 1), columns_[i].kind);
    }
    return std::move(rows_);
  }

 private:
  void Describe(SQLUSMALLINT number) {
    constexpr std::size_t kLongestName = 256;
    std::array<SQLWCHAR, kLongestName> name{};
    SQLSMALLINT length = 0;
    SQLSMALLINT type = SQL_UNKNOWN_TYPE;
    SQLULEN size = 0;
    SQLSMALLINT digits = 0;
    SQLSMALLINT takes_null = 0;
    statement_.Check(SQLDescribeColW(statement_.get(), number, name.data(),
                                     static_cast<SQLSMALLINT>(name.size()), &length, &type, &size, &digits,
                                     &takes_null));
    columns_.push_back({NarrowText(name.data(), LengthOf(name.data(), name.size())), KindOf(type, digits)});
  }

  void ReadField(SQLUSMALLINT number, FieldKind kind) {
    switch (kind) {
      case FieldKind::kInteger:
        if (SQLBIGINT value = 0; Get(number, SQL_C_SBIGINT, value)) rows_.AppendInteger(value);
        return;
      case FieldKind::kReal:
        if (double value = 0; Get(number, SQL_C_DOUBLE, value)) rows_.AppendReal(value);
        return;
      case FieldKind::kMoment:
        if (SQL_TIMESTAMP_STRUCT value{}; Get(number, SQL_C_TYPE_TIMESTAMP, value))
          rows_.AppendMoment(MomentOf(value));
        return;
      case FieldKind::kText:
      case FieldKind::kNull:
        ReadText(number);
        return;
    }
  }

  /// Reads a value of fixed size. False for NULL, which is appended.
  template <typename Value>
  bool Get(SQLUSMALLINT number, SQLSMALLINT type, Value& value) {
    SQLLEN length = 0;
    statement_.Check(SQLGetData(statement_.get(), number, type, &value, sizeof value, &length));
    if (length != SQL_NULL_DATA) return true;
    rows_.AppendNull();
    return false;
  }

  /// Reads a text of any length, piece by piece; the driver ends each with a mark.
  void ReadText(SQLUSMALLINT number) {
    text_.clear();
    SQLLEN length = 0;
    while (true) {
      const SQLRETURN answer = statement_.Check(SQLGetData(
          statement_.get(), number, SQL_C_WCHAR, piece_.data(), static_cast<SQLLEN>(sizeof piece_), &length));
      if (answer == SQL_NO_DATA) break;
      if (length == SQL_NULL_DATA) return rows_.AppendNull();
      constexpr SQLLEN kRoom = sizeof piece_ - sizeof(SQLWCHAR);
      const bool has_more = answer == SQL_SUCCESS_WITH_INFO && (length == SQL_NO_TOTAL || length > kRoom);
      const std::size_t bytes =
          static_cast<std::size_t>(has_more ? kRoom : std::clamp(length, SQLLEN{0}, kRoom));
      const std::size_t count = bytes / sizeof(SQLWCHAR);
      text_.insert(text_.end(), piece_.begin(), piece_.begin() + static_cast<std::ptrdiff_t>(count));
      if (!has_more) break;
    }
    rows_.AppendText(NarrowText(text_.data(), text_.size()));
  }

  const StatementHandle& statement_;
  std::vector<Column> columns_;
  Recordset rows_;
  std::array<SQLWCHAR, 1024> piece_{};
  std::vector<SQLWCHAR> text_;
};

}  // namespace

SQLSMALLINT ColumnCount(const StatementHandle& statement) {
  SQLSMALLINT count = 0;
  statement.Check(SQLNumResultCols(statement.get(), &count));
  return count;
}

Recordset ReadRows(const StatementHandle& statement) {
  return ResultReader(statement).ReadAll();
}

}  // namespace ovindra::odbc
