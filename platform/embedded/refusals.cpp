#include "platform/embedded/refusals.h"

#include <initializer_list>

#include "base/database/database_error.h"

namespace ovindra::embedded {
namespace {

/// The pieces of a message joined.
RuntimeError Refuse(Refusal kind, std::initializer_list<std::string_view> pieces) {
  std::string text;
  for (std::string_view piece : pieces) text += piece;
  return ServerRefusal(kind, std::move(text));
}

std::string InTable(std::string_view table) {
  return "'dbo." + std::string(table) + "'";
}

}  // namespace

RuntimeError UnknownTable(std::string_view name) {
  return Refuse(Refusal::kUnknownTable, {"Invalid object name '", name, "'."});
}
RuntimeError UnknownColumn(std::string_view name) {
  return Refuse(Refusal::kSyntax, {"Invalid column name '", name, "'."});
}
RuntimeError AmbiguousColumn(std::string_view name) {
  return Refuse(Refusal::kSyntax, {"Ambiguous column name '", name, "'."});
}
RuntimeError UnboundIdentifier(std::string_view name) {
  return Refuse(Refusal::kSyntax, {"The multi-part identifier \"", name, "\" could not be bound."});
}
RuntimeError UnknownFunction(std::string_view name) {
  return Refuse(Refusal::kSyntax, {"'", name, "' is not a recognized built-in function name."});
}
RuntimeError WrongArgumentCount(std::string_view function, std::size_t count) {
  return Refuse(Refusal::kSyntax,
                {"The ", function, " function requires ", std::to_string(count), " argument(s)."});
}
RuntimeError UnknownType(std::string_view name) {
  return Refuse(Refusal::kSyntax, {"Cannot find data type ", name, "."});
}
RuntimeError TableExists(std::string_view name) {
  return Refuse(Refusal::kSyntax, {"There is already an object named '", name, "' in the database."});
}
RuntimeError IndexExists(std::string_view index, std::string_view table) {
  return Refuse(Refusal::kSyntax, {"The operation failed because an index or statistics with name '", index,
                                   "' already exists on table '", table, "'."});
}
RuntimeError NoSuchTableToDrop(std::string_view kind, std::string_view name) {
  return Refuse(Refusal::kUnknownTable, {"Cannot drop the ", kind, " '", name,
                                         "', because it does not exist or you do not have permission."});
}
RuntimeError ColumnTwice(std::string_view column, std::string_view table) {
  return Refuse(Refusal::kSyntax, {"Column names in each table must be unique. Column name '", column,
                                   "' in table '", table, "' is specified more than once."});
}
RuntimeError ColumnTwiceInQuery(std::string_view column, std::string_view query) {
  return Refuse(Refusal::kSyntax,
                {"The column '", column, "' was specified multiple times for '", query, "'."});
}
RuntimeError ColumnWithoutName(std::size_t number, std::string_view query) {
  return Refuse(Refusal::kSyntax,
                {"No column name was specified for column ", std::to_string(number), " of '", query, "'."});
}
RuntimeError ColumnSetTwice(std::string_view column) {
  return Refuse(
      Refusal::kSyntax,
      {"The column name '", column,
       "' is specified more than once in the SET clause or column list of an INSERT. A column cannot be "
       "assigned more than one value in the same clause."});
}
RuntimeError SameExposedName(std::string_view name) {
  return Refuse(
      Refusal::kSyntax,
      {"The objects \"", name, "\" and \"", name,
       "\" in the FROM clause have the same exposed names. Use correlation names to distinguish them."});
}
RuntimeError WrongValueCount() {
  return Refuse(Refusal::kSyntax,
                {"Column name or number of supplied values does not match table definition."});
}
RuntimeError FewerColumnsThanValues() {
  return Refuse(
      Refusal::kSyntax,
      {"There are fewer columns in the INSERT statement than values specified in the VALUES clause. The "
       "number of values in the VALUES clause must match the number of columns specified in the INSERT "
       "statement."});
}
RuntimeError MoreColumnsThanValues() {
  return Refuse(
      Refusal::kSyntax,
      {"There are more columns in the INSERT statement than values specified in the VALUES clause. The "
       "number of values in the VALUES clause must match the number of columns specified in the INSERT "
       "statement."});
}
RuntimeError UnequalUnion() {
  return Refuse(
      Refusal::kSyntax,
      {"All queries combined using a UNION, INTERSECT or EXCEPT operator must have an equal number of "
       "expressions in their target lists."});
}
RuntimeError OneExpressionOnly() {
  return Refuse(Refusal::kSyntax,
                {"Only one expression can be specified in the select list when the subquery is "
                 "not introduced with EXISTS."});
}
RuntimeError OrderPositionOutOfRange(std::string_view position) {
  return Refuse(Refusal::kSyntax, {"The ORDER BY position number ", position,
                                   " is out of range of the number of items in the select list."});
}
RuntimeError OrderNotInDistinct() {
  return Refuse(Refusal::kSyntax,
                {"ORDER BY items must appear in the select list if SELECT DISTINCT is specified."});
}
RuntimeError OrderNotInUnion() {
  return Refuse(Refusal::kSyntax,
                {"ORDER BY items must appear in the select list if the statement contains a UNION, "
                 "INTERSECT or EXCEPT operator."});
}
RuntimeError OrderInside() {
  return Refuse(
      Refusal::kSyntax,
      {"The ORDER BY clause is invalid in views, inline functions, derived tables, subqueries, and common "
       "table expressions, unless TOP or FOR XML is also specified."});
}
RuntimeError IntoInside() {
  return IncorrectSyntax("into");
}
RuntimeError StarWithoutTable() {
  return Refuse(Refusal::kSyntax, {"Must specify table to select from."});
}
RuntimeError GroupedByConstant() {
  return Refuse(
      Refusal::kSyntax,
      {"Each GROUP BY expression must contain at least one column that is not an outer reference."});
}
RuntimeError NotGrouped(std::string_view column) {
  return Refuse(
      Refusal::kSyntax,
      {"Column '", column,
       "' is invalid in the select list because it is not contained in either an aggregate function or "
       "the GROUP BY clause."});
}
RuntimeError AggregateNotAllowed() {
  return Refuse(
      Refusal::kSyntax,
      {"An aggregate may not appear in the WHERE clause unless it is in a subquery contained in a HAVING "
       "clause or a select list, and the column being aggregated is an outer reference."});
}
RuntimeError NotACondition() {
  return Refuse(Refusal::kSyntax,
                {"An expression of non-boolean type specified in a context where a condition is expected."});
}
RuntimeError OperandsClash(SqlType left, SqlType right, std::string_view operation) {
  return Refuse(Refusal::kSyntax, {"The data types ", NameOf(left), " and ", NameOf(right),
                                   " are incompatible in the ", operation, " operator."});
}
RuntimeError InvalidOperand(SqlType type, std::string_view operation) {
  return Refuse(Refusal::kSyntax,
                {"Operand data type ", NameOf(type), " is invalid for ", operation, " operator."});
}
RuntimeError ExplicitIdentity(std::string_view table) {
  return Refuse(Refusal::kSyntax, {"Cannot insert explicit value for identity column in table '", table,
                                   "' when IDENTITY_INSERT is set to OFF."});
}
RuntimeError IdentityNeedsColumnList(std::string_view table) {
  return Refuse(Refusal::kSyntax,
                {"An explicit value for the identity column in table '", table,
                 "' can only be specified when a column list is used and IDENTITY_INSERT is ON."});
}
RuntimeError IdentityUpdate(std::string_view column) {
  return Refuse(Refusal::kSyntax, {"Cannot update identity column '", column, "'."});
}
RuntimeError ComputedColumn(std::string_view column) {
  return Refuse(Refusal::kSyntax,
                {"The column \"", column,
                 "\" cannot be modified because it is either a computed column or is the result "
                 "of a UNION operator."});
}
RuntimeError SecondIdentity(std::string_view table) {
  return Refuse(Refusal::kSyntax, {"Multiple identity columns specified for table '", table,
                                   "'. Only one identity column per table is allowed."});
}
RuntimeError NoIdentity(std::string_view table) {
  return Refuse(Refusal::kSyntax,
                {"Table '", table, "' does not have the identity property. Cannot perform SET operation."});
}
RuntimeError NotChangeable(std::string_view name) {
  return Refuse(Refusal::kSyntax,
                {"View or function '", name,
                 "' is not updatable because the modification affects multiple base tables."});
}
RuntimeError SecondPrimaryKey(std::string_view table) {
  return Refuse(Refusal::kSyntax, {"Cannot add multiple PRIMARY KEY constraints to table '", table, "'."});
}
RuntimeError AddedColumnNeedsValue(std::string_view column, std::string_view table) {
  constexpr std::string_view kRule =
      "ALTER TABLE only allows columns to be added that can contain nulls, or have a DEFAULT definition "
      "specified.";
  return Refuse(Refusal::kSyntax, {kRule, " Column '", column, "' cannot be added to table '", table,
                                   "' because it does not satisfy these conditions."});
}
RuntimeError NestedTooDeeply() {
  return Refuse(Refusal::kSyntax,
                {"Some part of your SQL statement is nested too deeply. Rewrite the query or "
                 "break it up into smaller queries."});
}
RuntimeError UnclosedComment() {
  return Refuse(Refusal::kSyntax, {"Missing end comment mark '*/'."});
}
RuntimeError NotSupported(std::string_view word, std::size_t offset) {
  return Refuse(Refusal::kSyntax, {"The embedded database does not know '", word, "' (at character ",
                                   std::to_string(offset + 1), ")."});
}

RuntimeError TextDoesNotConvert(std::string_view text, SqlType type) {
  return Refuse(Refusal::kConversion, {"Conversion failed when converting the varchar value '", text,
                                       "' to data type ", NameOf(type), "."});
}
RuntimeError TextOverflows(std::string_view text, SqlType type) {
  return Refuse(Refusal::kTruncation, {"The conversion of the varchar value '", text, "' overflowed an ",
                                       NameOf(type), " column."});
}
RuntimeError TextIsNoNumeric(SqlType type) {
  return Refuse(Refusal::kConversion, {"Error converting data type varchar to ", NameOf(type), "."});
}
RuntimeError TextIsNoMoment() {
  return Refuse(Refusal::kConversion,
                {"Conversion failed when converting date and/or time from character string."});
}
RuntimeError MomentOutOfRange() {
  return Refuse(Refusal::kConversion,
                {"The conversion of a varchar data type to a datetime data type resulted in "
                 "an out-of-range value."});
}
RuntimeError ArithmeticOverflow(SqlType type) {
  return Refuse(Refusal::kTruncation,
                {"Arithmetic overflow error converting expression to data type ", NameOf(type), "."});
}
RuntimeError TextTooLong() {
  return Refuse(Refusal::kTruncation, {"String or binary data would be truncated."});
}
RuntimeError DivideByZero() {
  return Refuse(Refusal::kOther, {"Divide by zero error encountered."});
}
RuntimeError SubqueryManyRows() {
  return Refuse(
      Refusal::kOther,
      {"Subquery returned more than 1 value. This is not permitted when the subquery follows =, !=, <, "
       "<= , >, >= or when the subquery is used as an expression."});
}
RuntimeError InvalidLength() {
  return Refuse(Refusal::kOther, {"Invalid length parameter passed to the LEFT or SUBSTRING function."});
}
RuntimeError InvalidStyle(int style) {
  return Refuse(Refusal::kSyntax,
                {std::to_string(style),
                 " is not a valid style number when converting from datetime to a character "
                 "string."});
}
RuntimeError InvalidDatePart(std::string_view part, std::string_view function) {
  return Refuse(Refusal::kSyntax, {"'", part, "' is not a recognized ", function, " option."});
}

RuntimeError DuplicateKey(std::string_view kind, std::string_view constraint, std::string_view table,
                          std::string_view value) {
  std::string text = "Violation of " + std::string(kind) + " constraint '" + std::string(constraint) +
                     "'. Cannot insert duplicate key in object " + InTable(table) + ".";
  if (!value.empty()) text += " The duplicate key value is (" + std::string(value) + ").";
  return ServerRefusal(Refusal::kConstraint, std::move(text));
}
RuntimeError DuplicateIndexKey(std::string_view index, std::string_view table, std::string_view value) {
  std::string text = "Cannot insert duplicate key row in object " + InTable(table) + " with unique index '" +
                     std::string(index) + "'.";
  if (!value.empty()) text += " The duplicate key value is (" + std::string(value) + ").";
  return ServerRefusal(Refusal::kConstraint, std::move(text));
}
RuntimeError NullNotAllowed(std::string_view column, std::string_view table, std::string_view verb) {
  return Refuse(Refusal::kConstraint, {"Cannot insert the value NULL into column '", column, "', table '",
                                       table, "'; column does not allow nulls. ", verb, " fails."});
}
RuntimeError DuplicateKeyOnCreate(std::string_view index, std::string_view table) {
  return Refuse(
      Refusal::kConstraint,
      {"The CREATE UNIQUE INDEX statement terminated because a duplicate key was found for the object name ",
       InTable(table), " and the index name '", index, "'."});
}

RuntimeError FileIsBusy(std::string_view path) {
  return Refuse(Refusal::kOther,
                {"The database file ", path, " is in use by another program. Try again in a moment."});
}
RuntimeError FileIsMissing(std::string_view path) {
  return Refuse(Refusal::kOther, {"The database file ", path, " does not exist."});
}
RuntimeError FileIsThere(std::string_view path) {
  return Refuse(Refusal::kOther, {"The file ", path, " exists already and is left as it is."});
}
RuntimeError FileIsNoDatabase(std::string_view path) {
  return Refuse(Refusal::kOther, {"The file ", path, " is not a database of this program."});
}
RuntimeError FileIsNewer(std::string_view path, int version, int known) {
  return Refuse(Refusal::kOther,
                {"The database file ", path, " was made by a newer version of the program (schema ",
                 std::to_string(version), ", this program knows ", std::to_string(known), ")."});
}
RuntimeError FileIsReadOnly(std::string_view path) {
  return Refuse(Refusal::kOther, {"The database file ", path,
                                  " can't be written: the file or its folder is read-only for this user."});
}
RuntimeError FileIsOnNetwork(std::string_view path) {
  return Refuse(
      Refusal::kOther,
      {"The database file ", path,
       " lies on a network drive, where several programs can't share it safely. Keep the file on this "
       "machine, or use a database server."});
}
RuntimeError FileCannotBeUsed(std::string_view path, std::string_view reason) {
  return Refuse(Refusal::kOther, {"The database file ", path, " can't be used: ", reason, "."});
}
RuntimeError DiskIsFull(std::string_view path) {
  return Refuse(Refusal::kOther,
                {"The disk of the database file ", path, " is full. Nothing of this statement was stored."});
}
RuntimeError FileIsDamaged(std::string_view path, std::string_view finding) {
  return Refuse(Refusal::kOther,
                {"The database file ", path, " is damaged: ", finding, ". Restore the last saved copy."});
}

}  // namespace ovindra::embedded
