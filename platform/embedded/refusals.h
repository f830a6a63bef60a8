// The server's refusals that the embedded engine raises, each text in one place. The names say what is wrong;
// the number of each is the class of such a refusal.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/runtime_error.h"
#include "platform/embedded/sql_type.h"

namespace ovindra::embedded {

// What the text of a statement gets wrong.
RuntimeError UnknownTable(std::string_view name);
RuntimeError UnknownColumn(std::string_view name);
RuntimeError AmbiguousColumn(std::string_view name);
RuntimeError UnboundIdentifier(std::string_view name);
RuntimeError UnknownFunction(std::string_view name);
RuntimeError WrongArgumentCount(std::string_view function, std::size_t count);
RuntimeError UnknownType(std::string_view name);
RuntimeError TableExists(std::string_view name);
RuntimeError IndexExists(std::string_view index, std::string_view table);
RuntimeError NoSuchTableToDrop(std::string_view kind, std::string_view name);
RuntimeError ColumnTwice(std::string_view column, std::string_view table);
RuntimeError ColumnTwiceInQuery(std::string_view column, std::string_view query);
RuntimeError ColumnWithoutName(std::size_t number, std::string_view query);
RuntimeError ColumnSetTwice(std::string_view column);
RuntimeError SameExposedName(std::string_view name);
RuntimeError WrongValueCount();
RuntimeError FewerColumnsThanValues();
RuntimeError MoreColumnsThanValues();
RuntimeError UnequalUnion();
RuntimeError OneExpressionOnly();
RuntimeError OrderPositionOutOfRange(std::string_view position);
RuntimeError OrderNotInDistinct();
RuntimeError OrderNotInUnion();
RuntimeError OrderInside();
RuntimeError IntoInside();
RuntimeError StarWithoutTable();
RuntimeError GroupedByConstant();
RuntimeError NotGrouped(std::string_view column);
RuntimeError AggregateNotAllowed();
RuntimeError NotACondition();
RuntimeError OperandsClash(SqlType left, SqlType right, std::string_view operation);
RuntimeError InvalidOperand(SqlType type, std::string_view operation);
RuntimeError ExplicitIdentity(std::string_view table);
RuntimeError IdentityNeedsColumnList(std::string_view table);
RuntimeError IdentityUpdate(std::string_view column);
RuntimeError ComputedColumn(std::string_view column);
RuntimeError SecondIdentity(std::string_view table);
RuntimeError NoIdentity(std::string_view table);
RuntimeError NotChangeable(std::string_view name);
RuntimeError SecondPrimaryKey(std::string_view table);
RuntimeError AddedColumnNeedsValue(std::string_view column, std::string_view table);
RuntimeError NestedTooDeeply();
RuntimeError UnclosedComment();

/// What the dialect of a server has and the embedded engine has not, by its word and where it stands.
RuntimeError NotSupported(std::string_view word, std::size_t offset);

// What the values get wrong.
RuntimeError TextDoesNotConvert(std::string_view text, SqlType type);
RuntimeError TextOverflows(std::string_view text, SqlType type);
RuntimeError TextIsNoNumeric(SqlType type);
RuntimeError TextIsNoMoment();
RuntimeError MomentOutOfRange();
RuntimeError ArithmeticOverflow(SqlType type);
RuntimeError TextTooLong();
RuntimeError DivideByZero();
RuntimeError SubqueryManyRows();
RuntimeError InvalidLength();
RuntimeError InvalidStyle(int style);
RuntimeError InvalidDatePart(std::string_view part, std::string_view function);

// What the rows of a table forbid.
RuntimeError DuplicateKey(std::string_view kind, std::string_view constraint, std::string_view table,
                          std::string_view value);
RuntimeError DuplicateIndexKey(std::string_view index, std::string_view table, std::string_view value);
RuntimeError NullNotAllowed(std::string_view column, std::string_view table, std::string_view verb);
RuntimeError DuplicateKeyOnCreate(std::string_view index, std::string_view table);

// What keeps the file from being used.
RuntimeError FileIsBusy(std::string_view path);
RuntimeError FileIsMissing(std::string_view path);
RuntimeError FileIsThere(std::string_view path);
RuntimeError FileIsNoDatabase(std::string_view path);
RuntimeError FileIsNewer(std::string_view path, int version, int known);
RuntimeError FileIsReadOnly(std::string_view path);
RuntimeError FileIsOnNetwork(std::string_view path);
RuntimeError FileCannotBeUsed(std::string_view path, std::string_view reason);
RuntimeError DiskIsFull(std::string_view path);
RuntimeError FileIsDamaged(std::string_view path, std::string_view finding);

}  // namespace ovindra::embedded
