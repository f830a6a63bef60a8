#include "platform/embedded/sql_type.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <vector>

#include "base/text/blanks.h"
#include "base/text/utf8.h"

namespace ovindra::embedded {
namespace {

struct NamedType {
  std::string_view name;
  SqlType type;
};

constexpr int kUnstatedLength = 1;
constexpr int kUnstatedPrecision = 18;

constexpr NamedType kNamedTypes[] = {
    {"int", kIntType},
    {"integer", kIntType},
    {"bigint", kBigIntType},
    {"smallint", {TypeKind::kInteger, 2, 0}},
    {"tinyint", {TypeKind::kInteger, 1, 0}},
    {"bit", {TypeKind::kInteger, 0, 0}},
    {"varchar", TextType(kUnstatedLength)},
    {"nvarchar", TextType(kUnstatedLength)},
    {"char", TextType(kUnstatedLength)},
    {"nchar", TextType(kUnstatedLength)},
    {"text", TextType(kMaxText)},
    {"numeric", NumericType(kUnstatedPrecision, 0)},
    {"decimal", NumericType(kUnstatedPrecision, 0)},
    {"float", kFloatType},
    {"real", kFloatType},
    {"datetime", kMomentType},
    {"smalldatetime", kMomentType},
    {"date", kMomentType},
};

int LongerText(int left, int right) {
  return left == kMaxText || right == kMaxText ? kMaxText : std::max(left, right);
}

/// How an integer counts where it meets a numeric.
SqlType AsNumeric(SqlType type) {
  if (type.kind == TypeKind::kNumeric) return type;
  constexpr std::array<int, 9> kDigits{1, 3, 5, 0, 10, 0, 0, 0, 19};
  return NumericType(kDigits[static_cast<std::size_t>(type.size)], 0);
}

}  // namespace

std::optional<SqlType> TypeNamed(std::string_view name, std::span<const int> arguments) {
  const auto* named = std::find_if(std::begin(kNamedTypes), std::end(kNamedTypes),
                                   [&](const NamedType& each) { return SameWithoutCase(each.name, name); });
  if (named == std::end(kNamedTypes)) return {};
  SqlType type = named->type;
  if (arguments.empty()) return type;
  if (type.kind == TypeKind::kNumeric) {
    type.size = arguments[0];
    type.scale = arguments.size() > 1 ? arguments[1] : 0;
    if (arguments.size() > 2 || type.size < 1 || type.size > 38 || type.scale < 0 || type.scale > type.size)
      return {};
    return type;
  }
  const bool is_length = arguments[0] == kMaxText || (arguments[0] >= 1 && arguments[0] <= 8000);
  if (type.IsText() && arguments.size() == 1 && is_length) {
    type.size = arguments[0];
    return type;
  }
  if (type.kind == TypeKind::kFloat && arguments.size() == 1) return type;
  return {};
}

std::optional<SqlType> TypeDeclared(std::string_view declaration) {
  const std::size_t open = std::min(declaration.find('('), declaration.size());
  const std::string_view name = Trim(declaration.substr(0, open));
  std::vector<int> arguments;
  for (std::string_view rest = declaration.substr(open); rest.size() > 1;) {
    rest.remove_prefix(1);
    const std::size_t end = std::min(rest.find_first_of(",)"), rest.size());
    const std::string_view word = Trim(rest.substr(0, end));
    int value = 0;
    if (std::from_chars(word.data(), word.data() + word.size(), value).ec != std::errc{}) return {};
    arguments.push_back(value);
    rest.remove_prefix(end);
    if (rest.starts_with(')')) break;
  }
  return TypeNamed(name, arguments);
}

std::string DeclarationOf(SqlType type) {
  switch (type.kind) {
    case TypeKind::kNull:
      return "int";
    case TypeKind::kText:
      return "varchar(" + std::to_string(type.size) + ")";
    case TypeKind::kNumeric:
      return "numeric(" + std::to_string(type.size) + "," + std::to_string(type.scale) + ")";
    default:
      return std::string(NameOf(type));
  }
}

std::string_view NameOf(SqlType type) {
  const auto* named =
      std::find_if(std::begin(kNamedTypes), std::end(kNamedTypes), [&](const NamedType& each) {
        return each.type.kind == type.kind &&
               (type.kind != TypeKind::kInteger || each.type.size == type.size);
      });
  return named == std::end(kNamedTypes) ? "NULL" : named->name;
}

SqlType CommonType(SqlType left, SqlType right) {
  const SqlType& winner = left.kind < right.kind ? right : left;
  if (left.kind != right.kind) {
    if (winner.kind != TypeKind::kNumeric) return winner;
    const SqlType& other = left.kind < right.kind ? left : right;
    if (other.kind != TypeKind::kInteger) return winner;
    return CommonType(winner, AsNumeric(other));
  }
  SqlType common = left;
  if (common.IsText()) {
    common.size = LongerText(left.size, right.size);
  } else if (common.kind == TypeKind::kNumeric) {
    const int whole = std::max(left.size - left.scale, right.size - right.scale);
    common.scale = std::max(left.scale, right.scale);
    common.size = std::min(whole + common.scale, 38);
  } else {
    common.size = std::max(left.size, right.size);
  }
  return common;
}

std::int64_t LowestOf(SqlType integer) {
  switch (integer.size) {
    case 0:
    case 1:
      return 0;
    case 2:
      return std::numeric_limits<std::int16_t>::min();
    case 4:
      return std::numeric_limits<std::int32_t>::min();
    default:
      return std::numeric_limits<std::int64_t>::min();
  }
}

std::int64_t HighestOf(SqlType integer) {
  switch (integer.size) {
    case 0:
      return 1;
    case 1:
      return std::numeric_limits<std::uint8_t>::max();
    case 2:
      return std::numeric_limits<std::int16_t>::max();
    case 4:
      return std::numeric_limits<std::int32_t>::max();
    default:
      return std::numeric_limits<std::int64_t>::max();
  }
}

}  // namespace ovindra::embedded
