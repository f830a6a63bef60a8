// The types of the dialect, as far as they decide a behaviour: how long a text may be, how a number counts,
// and which of two types wins where they meet. Values only, nothing here fails.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace ovindra::embedded {

/// Kinds in the order of the dialect's precedence: where two meet, the later one wins.
enum class TypeKind : std::uint8_t { kNull, kText, kInteger, kNumeric, kFloat, kMoment };

/// The length of a text whose declaration says max.
inline constexpr int kMaxText = -1;

/// A type. `size` is the characters of a text, the bytes of an integer (0 for a bit) or the digits of a
/// numeric; `scale` the digits behind the point.
struct SqlType {
  TypeKind kind = TypeKind::kNull;
  int size = 0;
  int scale = 0;

  bool IsText() const { return kind == TypeKind::kText; }
  bool IsNumber() const { return kind > TypeKind::kText && kind < TypeKind::kMoment; }
  friend bool operator==(const SqlType&, const SqlType&) = default;
};

inline constexpr SqlType kIntType{TypeKind::kInteger, 4, 0};
inline constexpr SqlType kBigIntType{TypeKind::kInteger, 8, 0};
inline constexpr SqlType kFloatType{TypeKind::kFloat, 8, 0};
inline constexpr SqlType kMomentType{TypeKind::kMoment, 0, 0};
constexpr SqlType TextType(int size) {
  return {TypeKind::kText, size, 0};
}
constexpr SqlType NumericType(int precision, int scale) {
  return {TypeKind::kNumeric, precision, scale};
}

/// The type that a declaration names, as varchar with 20; nothing for a name that the dialect does not have.
/// A length of max is given as kMaxText.
std::optional<SqlType> TypeNamed(std::string_view name, std::span<const int> arguments);

/// The type of a declaration as it stands in a table: "varchar(20)". Nothing when it is none of the dialect.
std::optional<SqlType> TypeDeclared(std::string_view declaration);

/// The declaration of the type: "varchar(20)", "numeric(18,0)", "datetime"; a text of
/// any length is "varchar(-1)", which SQLite can read.
std::string DeclarationOf(SqlType type);

/// The name of the type in the server's messages: "varchar", "int", "numeric".
std::string_view NameOf(SqlType type);

/// The type of a value that may be of either type: of the branches of a case, of a union, of a comparison.
SqlType CommonType(SqlType left, SqlType right);

/// The lowest and highest value of an integer type.
std::int64_t LowestOf(SqlType integer);
std::int64_t HighestOf(SqlType integer);

}  // namespace ovindra::embedded
