// What the parser makes of a statement: its shape, with names as they were written and nothing resolved. The
// binder turns it into the tree of bound_tree.h, a different type, so that an unresolved name can't go
// further.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace ovindra::embedded::syntax {

/// A name as it was written and where it stands.
struct Name {
  std::string text;
  std::size_t offset = 0;
};

/// A table's name, with the dbo before it when it was written so.
struct ObjectName {
  std::string schema;
  Name name;

  std::string Written() const { return schema.empty() ? name.text : schema + "." + name.text; }
};

struct Query;
struct Expression;
using QueryPtr = std::unique_ptr<Query>;
using ExpressionPtr = std::unique_ptr<Expression>;
using ExpressionList = std::vector<ExpressionPtr>;

enum class LiteralKind { kNull, kInteger, kDecimal, kFloat, kText };

/// A literal. `value` is its number among the values that were joined into the statement, when it is one.
struct Literal {
  LiteralKind kind;
  std::string text;
  std::optional<std::size_t> value;
};

/// A column, with the table or correlation name before it when it was written so.
struct ColumnName {
  std::string schema;
  std::string table;
  std::string column;
};

enum class Operator {
  kAdd,
  kSubtract,
  kMultiply,
  kDivide,
  kModulo,
  kEqual,
  kNotEqual,
  kLess,
  kLessOrEqual,
  kGreater,
  kGreaterOrEqual,
};

struct Binary {
  Operator operation;
  ExpressionPtr left;
  ExpressionPtr right;
};

struct Negation {
  ExpressionPtr operand;
};

/// Conditions joined by and, or by or.
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

struct Like {
  bool is_not;
  ExpressionPtr value;
  ExpressionPtr pattern;
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

/// A case: of a value when there is an operand, of conditions otherwise.
struct Case {
  ExpressionPtr operand;
  std::vector<When> branches;
  ExpressionPtr otherwise;
};

/// A call of a function; of count(*) when there is a star.
struct Call {
  Name function;
  bool is_distinct = false;
  bool has_star = false;
  ExpressionList arguments;
};

struct TypeName {
  Name name;
  std::vector<int> arguments;
};

struct Conversion {
  TypeName type;
  ExpressionPtr value;
  std::optional<int> style;
};

struct Subquery {
  QueryPtr query;
};

struct Expression {
  std::variant<Literal, ColumnName, Binary, Negation, Junction, Not, Between, Like, InList, InQuery, IsNull,
               Exists, Case, Call, Conversion, Subquery>
      node;
  /// Where the expression begins.
  std::size_t offset;
};

/// An item of a select list: an expression, or all columns, of one table when it is named.
struct SelectItem {
  ExpressionPtr value;
  std::optional<ColumnName> star;
  Name alias;
};

struct TableSource;
using TableSourcePtr = std::unique_ptr<TableSource>;

struct NamedTable {
  ObjectName table;
};

struct DerivedTable {
  QueryPtr query;
};

enum class JoinKind { kInner, kLeft, kCross };

struct Join {
  JoinKind kind;
  TableSourcePtr left;
  TableSourcePtr right;
  ExpressionPtr condition;
};

struct TableSource {
  std::variant<NamedTable, DerivedTable, Join> node;
  Name alias;
};

using FromList = std::vector<TableSourcePtr>;

struct Select {
  bool is_distinct = false;
  ExpressionPtr top;
  std::vector<SelectItem> items;
  std::optional<ObjectName> into;
  FromList from;
  ExpressionPtr where;
  ExpressionList group_by;
  ExpressionPtr having;
};

struct OrderItem {
  ExpressionPtr value;
  bool is_descending = false;
};

/// Selects joined by union; `keeps_duplicates` says for each but the first whether it is joined by union all.
struct Query {
  std::vector<Select> selects;
  std::vector<bool> keeps_duplicates;
  std::vector<OrderItem> order_by;
};

struct Insert {
  ObjectName table;
  std::vector<Name> columns;
  std::vector<ExpressionList> rows;
  QueryPtr query;
};

/// `table` is the name before the column, where one is written.
struct Assignment {
  Name table;
  Name column;
  ExpressionPtr value;
};

struct Update {
  ObjectName target;
  std::vector<Assignment> assignments;
  FromList from;
  ExpressionPtr where;
};

struct Delete {
  ObjectName target;
  FromList from;
  ExpressionPtr where;
};

struct KeyDefinition {
  Name constraint;
  bool is_primary = false;
  std::vector<Name> columns;
};

struct ColumnDefinition {
  Name name;
  std::optional<TypeName> type;
  bool is_identity = false;
  std::optional<bool> allows_null;
  ExpressionPtr default_value;
  ExpressionPtr computed;
};

struct CreateTable {
  ObjectName table;
  std::vector<ColumnDefinition> columns;
  std::vector<KeyDefinition> keys;
};

struct AddColumns {
  ObjectName table;
  std::vector<ColumnDefinition> columns;
  std::vector<KeyDefinition> keys;
};

struct CreateView {
  ObjectName view;
  std::vector<Name> columns;
  QueryPtr query;
};

struct IndexColumn {
  Name name;
  bool is_descending = false;
};

struct CreateIndex {
  Name index;
  bool is_unique = false;
  ObjectName table;
  std::vector<IndexColumn> columns;
  std::vector<Name> included;
  ExpressionPtr where;
};

enum class DropKind { kTable, kView, kIndex };

struct Drop {
  DropKind kind;
  bool if_exists = false;
  std::vector<ObjectName> objects;
};

struct SetIdentityInsert {
  ObjectName table;
  bool is_on;
};

/// A setting of a session that has no bearing on the embedded engine.
struct SetOption {};

struct Statement;
using StatementPtr = std::unique_ptr<Statement>;

struct If {
  bool is_not;
  QueryPtr query;
  StatementPtr then;
  StatementPtr otherwise;
};

struct Statement {
  std::variant<Query, Insert, Update, Delete, CreateTable, AddColumns, CreateView, CreateIndex, Drop,
               SetIdentityInsert, SetOption, If>
      node;
};

/// One statement, or several of a batch.
using Batch = std::vector<Statement>;

}  // namespace ovindra::embedded::syntax
