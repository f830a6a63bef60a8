// The text of one SQLite statement while it is written. Expressions, queries and definitions stand in a file
// each.
#pragma once

#include <string>
#include <string_view>

#include "platform/embedded/binder/bound_tree.h"

namespace ovindra::embedded {

class SqlWriter {
 public:
  const std::string& text() const { return text_; }
  std::string Take() { return std::move(text_); }

  SqlWriter& operator<<(std::string_view text) {
    text_ += text;
    return *this;
  }
  SqlWriter& operator<<(std::size_t number) {
    text_ += std::to_string(number);
    return *this;
  }

  /// A name in double quotes.
  void WriteName(std::string_view name);
  void WriteNames(const std::vector<std::string>& names);
  void WriteValue(const Value& value);

  void WriteExpression(const bound::Expression& expression);
  /// An expression where two values are compared: a text is compared without regard to case.
  void WriteCompared(const bound::Expression& expression);
  /// Expressions parted by commas.
  void WriteList(const bound::ExpressionList& list);

  /// A query. Where its columns are named, they are c1, c2 and so on, or bear their own names.
  enum class Columns { kUnnamed, kNumbered, kNamed };
  void WriteQuery(const bound::Query& query, Columns columns);
  void WriteFrom(const std::vector<bound::SourcePtr>& from);
  void WriteWhere(const bound::ExpressionPtr& where);

  /// The declaration of a column.
  void WriteType(SqlType type);
  void WriteColumnDefinition(const bound::ColumnDefinition& column);

  /// In a definition a column stands by its bare name and only what SQLite itself can compute is written,
  /// where that suffices.
  void BeginDefinition() { is_definition_ = true; }

 private:
  void Write(const bound::Literal& literal);
  void Write(const bound::Parameter& parameter);
  void Write(const bound::Column& column);
  void Write(const bound::Arithmetic& arithmetic, SqlType type);
  void Write(const bound::Concatenation& concatenation);
  void Write(const bound::Negation& negation, SqlType type);
  void Write(const bound::Comparison& comparison);
  void Write(const bound::Junction& junction);
  void Write(const bound::Not& node);
  void Write(const bound::Between& between);
  void Write(const bound::Like& like);
  void Write(const bound::InList& in);
  void Write(const bound::InQuery& in);
  void Write(const bound::IsNull& is_null);
  void Write(const bound::Exists& exists);
  void Write(const bound::Case& node);
  void Write(const bound::FunctionCall& call, SqlType type);
  void Write(const bound::Aggregate& aggregate, SqlType type);
  void Write(const bound::Conversion& conversion, SqlType type);
  void Write(const bound::Subquery& subquery);

  void WriteChain(const bound::Concatenation& concatenation);
  void WriteNegatable(bool is_not, const bound::Expression& left);
  void WriteTypeArguments(SqlType type);
  void WriteSelect(const bound::Query& query, std::size_t number, Columns columns);
  void WriteItems(const bound::Query& query, const bound::Select& select, Columns columns);
  void WriteSource(const bound::Source& source);
  void WriteOrder(const bound::Query& query);
  void WriteOrderOfGroups(const bound::Select& select);

  std::string text_;
  bool is_definition_ = false;
};

}  // namespace ovindra::embedded
