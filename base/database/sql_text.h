// The one place where SQL text and values are joined: sql("... where Sc_Name=", quoted(name)). Fragments are
// literals of the program, values come in through quoted() and bare() alone, and a value that would change
// the shape of the statement makes it broken: executing it raises the server's refusal and sends nothing. So
// no typed text can ever become SQL.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "base/runtime_error.h"

namespace ovindra {

/// A piece of SQL that the program's text holds. It can be made from a constant alone, so that a table of
/// fragments is as safe as a literal at the call.
class Fragment {
 public:
  consteval Fragment(const char* text) : text_(text) {}
  constexpr std::string_view text() const { return text_; }

 private:
  std::string_view text_;
};

/// A value that stands in single quotes, with a fixed tail before the closing quote ("%" for a prefix match).
struct QuotedValue {
  std::string value;
  std::string_view tail;
};

/// A value that stands without quotes.
struct BareValue {
  std::string value;
};

/// The value in single quotes: 'value', or 'value' with the tail behind the value.
QuotedValue quoted(std::string_view value);
QuotedValue quoted(std::string_view value, Fragment tail);
// A std::string would otherwise find std::quoted, where <iomanip> or <filesystem> is included.
inline QuotedValue quoted(const char* value) {
  return quoted(std::string_view(value));
}
inline QuotedValue quoted(const std::string& value) {
  return quoted(std::string_view(value));
}
inline QuotedValue quoted(std::string& value) {
  return quoted(std::string_view(value));
}

/// The value as it stands.
BareValue bare(std::string_view value);

/// Where a value stands in a statement; of a quoted value the text between the quotes.
struct ValuePlace {
  std::size_t offset;
  std::size_t length;
  bool is_quoted;
};

/// A statement: its text, and which parts of it are values.
class SqlText {
 public:
  SqlText() = default;

  const std::string& text() const { return text_; }
  const std::vector<ValuePlace>& values() const { return values_; }

  /// The refusal that executing this statement raises, when a value has broken it.
  const std::optional<RuntimeError>& refusal() const { return refusal_; }

 private:
  template <typename... Parts>
  friend SqlText sql(Parts&&... parts);
  friend SqlText WholeStatement(std::string_view text);

  void Add(std::string_view fragment) { text_ += fragment; }
  void Add(const Fragment& fragment) { text_ += fragment.text(); }
  void Add(const QuotedValue& value);
  void Add(const BareValue& value);
  void Add(const SqlText& statement);
  void Finish();

  std::string text_;
  std::vector<ValuePlace> values_;
  std::optional<std::size_t> broken_literal_;
  std::optional<RuntimeError> refusal_;
};

namespace sql_detail {
template <std::size_t N>
std::string_view Part(const char (&literal)[N]) {
  return {literal, N - 1};
}
template <std::size_t N>
void Part(char (&buffer)[N]) = delete;
inline const Fragment& Part(const Fragment& fragment) {
  return fragment;
}
inline const QuotedValue& Part(const QuotedValue& value) {
  return value;
}
inline const BareValue& Part(const BareValue& value) {
  return value;
}
inline const SqlText& Part(const SqlText& statement) {
  return statement;
}
}  // namespace sql_detail

/// Joins string literals, fragments, quoted and bare values, and statements so joined.
template <typename... Parts>
SqlText sql(Parts&&... parts) {
  SqlText statement;
  (statement.Add(sql_detail::Part(parts)), ...);
  statement.Finish();
  return statement;
}

/// A whole statement that a person wrote as SQL: an administrator's, a test's. Never for text that the
/// program joined.
SqlText WholeStatement(std::string_view text);

}  // namespace ovindra
