// The functions of the dialect as a table: name, argument types, result type, and what SQLite is told. A
// function that is not in the table is refused by its name.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace ovindra::embedded {

/// What an argument is converted to. A part is a bare word, such as month of dateadd.
enum class ArgumentKind : std::uint8_t { kNone, kAny, kText, kInteger, kNumber, kMoment, kPart, kLikeFirst };

/// What the result is: of a fixed type, of the type of the first argument, or of the first type that all
/// share.
enum class ResultKind : std::uint8_t { kText, kInteger, kMoment, kFirst, kCommon };

struct Function {
  std::string_view name;
  std::size_t least_arguments;
  std::array<ArgumentKind, 4> arguments;
  ResultKind result;
  /// SQLite's text, $1 to $4 standing for the arguments, $* for all.
  std::string_view output;
};

/// The function of that name, without regard to case; null when the dialect has none.
const Function* FunctionNamed(std::string_view name);

}  // namespace ovindra::embedded
