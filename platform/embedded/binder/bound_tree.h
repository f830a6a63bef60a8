// What the binder makes of a statement: every name resolved to a table or to a column of a source, every
// expression with its type, every conversion explicit. The translator turns it into SQLite's text without a
// further question.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "platform/embedded/binder/functions.h"
#include "platform/embedded/conversion.h"
#include "platform/embedded/like_pattern.h"
#include "platform/embedded/parser/syntax_tree.h"
#include "platform/embedded/sql_type.h"

namespace ovindra::embedded::bound {

using syntax::DropKind;
using syntax::JoinKind;
using syntax::Operator;

struct Expression;
struct Query;
struct Source;
using ExpressionPtr = std::unique_ptr<Expression>;
using ExpressionList = std::vector<ExpressionPtr>;
using QueryPtr = std::unique_ptr<Query>;
using SourcePtr = std::unique_ptr<Source>;

/// How a value that was joined into the statement becomes a parameter: which value, what its literal is, and
/// what it is converted to each time the statement runs.
struct ParameterRule {
  std::size_t value;
  SqlType from;
  SqlType to;
  Purpose purpose;
};

struct Literal {
  Value value;
};

/// A parameter, by its number among the rules of the statement.
struct Parameter {
  std::size_t rule;
};

/// A column of a source of a from list.
struct Column {
  std::size_t source;
  std::string name;
};

struct Arithmetic {
  Operator operation;
  ExpressionPtr left;
  ExpressionPtr right;
};

struct Concatenation {
  ExpressionPtr left;
  ExpressionPtr right;
};

struct Negation {
  ExpressionPtr operand;
};

struct Comparison {
  Operator operation;
  ExpressionPtr left;
  ExpressionPtr right;
};

struct Junction {
  bool is_and;
  ExpressionList operands;
};

struct Not {
  ExpressionPtr operand;
};

struct Between {
  bool is_not;
  ExpressionPtr value;
  ExpressionPtr low;
  ExpressionPtr high;
};

using embedded::PatternShape;

struct Like {
  bool is_not;
  ExpressionPtr value;
  ExpressionPtr pattern;
  PatternShape shape;
};

struct InList {
  bool is_not;
  ExpressionPtr value;
  ExpressionList list;
};

struct InQuery {
  bool is_not;
  ExpressionPtr value;
  QueryPtr query;
};

struct IsNull {
  bool is_not;
  ExpressionPtr value;
};

struct Exists {
  QueryPtr query;
};

struct When {
  ExpressionPtr condition;
  ExpressionPtr result;
};

struct Case {
  std::vector<When> branches;
  ExpressionPtr otherwise;
};

struct FunctionCall {
  const Function* function;
  ExpressionList arguments;
};

enum class AggregateKind : std::uint8_t { kCount, kSum, kMin, kMax, kAverage };

/// An aggregate; count(*) has no argument.
struct Aggregate {
  AggregateKind kind;
  bool is_distinct;
  ExpressionPtr argument;
};

/// A conversion to the type of the expression, or to a text without trailing blanks.
struct Conversion {
  ExpressionPtr value;
  Purpose purpose;
  int style;
};

/// The first row of a query, which may have one only.
struct Subquery {
  QueryPtr query;
};

struct Expression {
  std::variant<Literal, Parameter, Column, Arithmetic, Concatenation, Negation, Comparison, Junction, Not,
               Between, Like, InList, InQuery, IsNull, Exists, Case, FunctionCall, Aggregate, Conversion,
               Subquery>
      node;
  SqlType type;
  bool is_condition = false;
  bool allows_null = true;
  /// Whether a text has no trailing blanks for sure.
  bool is_trimmed = false;
};

struct Table {
  std::string name;
};

struct Derived {
  QueryPtr query;
};

struct Join {
  JoinKind kind;
  SourcePtr left;
  SourcePtr right;
  ExpressionPtr condition;
};

/// A source of rows; a join has no number of its own.
struct Source {
  std::variant<Table, Derived, Join> node;
  std::size_t number = 0;
};

struct Select {
  bool is_distinct = false;
  ExpressionPtr top;
  ExpressionList items;
  std::vector<SourcePtr> from;
  ExpressionPtr where;
  ExpressionList group_by;
  ExpressionPtr having;
};

/// A column of a result. `is_trimmed` as of an expression.
struct ResultColumn {
  std::string name;
  SqlType type;
  bool allows_null = true;
  bool is_trimmed = false;
};

/// An item of the order: the number of a result column, counted from 0, or an expression.
struct OrderItem {
  std::optional<std::size_t> column;
  ExpressionPtr value;
  bool is_descending = false;
};

struct Query {
  std::vector<Select> selects;
  std::vector<bool> keeps_duplicates;
  std::vector<OrderItem> order_by;
  std::vector<ResultColumn> columns;
};

struct SelectInto {
  std::string table;
  Query query;
};

/// Either rows of values or a query, each in the order of the columns.
struct Insert {
  std::string table;
  std::vector<std::string> columns;
  std::vector<ExpressionList> rows;
  QueryPtr query;
};

struct Assignment {
  std::string column;
  ExpressionPtr value;
};

/// `from` holds the target too when there are other sources; alone the target is numbered by `target`.
struct Update {
  std::string table;
  std::size_t target;
  std::vector<Assignment> assignments;
  std::vector<SourcePtr> from;
  ExpressionPtr where;
};

struct Delete {
  std::string table;
  std::size_t target;
  std::vector<SourcePtr> from;
  ExpressionPtr where;
};

struct ColumnDefinition {
  std::string name;
  SqlType type;
  bool is_identity = false;
  bool allows_null = true;
  ExpressionPtr default_value;
  ExpressionPtr computed;
};

struct KeyDefinition {
  std::string constraint;
  bool is_primary = false;
  std::vector<std::string> columns;
};

struct CreateTable {
  std::string table;
  std::vector<ColumnDefinition> columns;
  std::vector<KeyDefinition> keys;
};

struct AddColumns {
  std::string table;
  std::vector<ColumnDefinition> columns;
  std::vector<KeyDefinition> keys;
};

struct CreateView {
  std::string view;
  Query query;
};

struct IndexColumn {
  std::string name;
  bool is_descending = false;
};

struct CreateIndex {
  std::string index;
  bool is_unique = false;
  std::string table;
  std::vector<IndexColumn> columns;
  ExpressionPtr where;
};

struct Drop {
  DropKind kind;
  std::vector<std::string> names;
};

/// What asks nothing of SQLite.
struct Nothing {};

struct SetIdentityInsert {
  std::string table;
  bool is_on;
};

struct Statement {
  std::variant<Query, SelectInto, Insert, Update, Delete, CreateTable, AddColumns, CreateView, CreateIndex,
               Drop, SetIdentityInsert, Nothing>
      node;
  std::vector<ParameterRule> parameters;
};

}  // namespace ovindra::embedded::bound
