#include <utility>

#include "base/database/database_error.h"
#include "platform/embedded/parser/grammar.h"
#include "platform/embedded/parser/parser.h"
#include "platform/embedded/refusals.h"

namespace ovindra::embedded {

using namespace syntax;

namespace {

/// Statements that a server has and the embedded engine has not.
constexpr std::string_view kForeignStatements[] = {
    "exec",     "execute", "declare", "begin", "commit", "rollback", "merge", "grant",  "deny",
    "truncate", "while",   "print",   "use",   "backup", "restore",  "with",  "return", "raiserror"};

}  // namespace

bool IsParameter(const ValuePlace& place, std::string_view statement) {
  const std::string_view value = statement.substr(place.offset, place.length);
  if (place.is_quoted) return value.find('\0') == std::string_view::npos;
  constexpr std::size_t kMostDigits = 9;
  return !value.empty() && value.size() <= kMostDigits &&
         value.find_first_not_of("0123456789") == std::string_view::npos;
}

Batch Parse(std::string_view statement, std::span<const Token> tokens, std::span<const ValuePlace> values) {
  return Grammar(statement, tokens, values).ReadBatch();
}

Batch Grammar::ReadBatch() {
  Batch batch;
  while (true) {
    while (reader_.TakeSymbol(";")) continue;
    if (reader_.IsAtEnd()) return batch;
    batch.push_back(ReadStatement());
  }
}

Statement Grammar::ReadStatement() {
  const TokenReader::Nesting nesting(reader_);
  const Token& here = reader_.Here();
  if (reader_.AtWord("select")) return {ReadQuery()};
  if (reader_.TakeWord("insert")) return {ReadInsert()};
  if (reader_.TakeWord("update")) return {ReadUpdate()};
  if (reader_.TakeWord("delete")) return {ReadDelete()};
  if (reader_.TakeWord("create")) return ReadCreate();
  if (reader_.TakeWord("alter")) return {ReadAlterTable()};
  if (reader_.TakeWord("drop")) return {ReadDrop()};
  if (reader_.TakeWord("set")) return ReadSet();
  if (reader_.TakeWord("if")) return {ReadIf()};
  for (std::string_view word : kForeignStatements) {
    if (reader_.AtWord(word)) throw NotSupported(here.text, here.offset);
  }
  throw IncorrectSyntax(here.text);
}

Statement Grammar::ReadCreate() {
  const Token& here = reader_.Here();
  if (reader_.TakeWord("table")) return {ReadCreateTable()};
  if (reader_.TakeWord("view")) return {ReadCreateView()};
  for (std::string_view word : {"unique", "clustered", "nonclustered", "index"}) {
    if (reader_.AtWord(word)) return {ReadCreateIndex()};
  }
  if (here.kind != TokenKind::kWord) throw reader_.Refusal();
  throw NotSupported(here.text, here.offset);
}

Statement Grammar::ReadSet() {
  const auto take_switch = [&] {
    const bool is_on = reader_.TakeWord("on");
    if (!is_on && !reader_.TakeWord("off")) throw reader_.Refusal();
    return is_on;
  };
  if (reader_.TakeWord("identity_insert")) {
    ObjectName table = reader_.TakeObjectName();
    return {SetIdentityInsert{std::move(table), take_switch()}};
  }
  if (reader_.TakeWord("dateformat")) {
    if (!reader_.TakeWord("mdy")) throw NotSupported(reader_.Here().text, reader_.Here().offset);
    return {SetOption{}};
  }
  for (std::string_view option :
       {"nocount", "ansi_nulls", "quoted_identifier", "ansi_padding", "xact_abort"}) {
    if (!reader_.TakeWord(option)) continue;
    take_switch();
    return {SetOption{}};
  }
  if (reader_.Here().kind != TokenKind::kWord) throw reader_.Refusal();
  throw NotSupported(reader_.Here().text, reader_.Here().offset);
}

If Grammar::ReadIf() {
  If node{};
  node.is_not = reader_.TakeWord("not");
  if (!reader_.AtWord("exists")) throw NotSupported(reader_.Here().text, reader_.Here().offset);
  reader_.ExpectWord("exists");
  reader_.ExpectSymbol("(");
  node.query = std::make_unique<Query>(ReadQuery());
  reader_.ExpectSymbol(")");
  node.then = std::make_unique<Statement>(ReadStatement());
  if (reader_.TakeWord("else")) node.otherwise = std::make_unique<Statement>(ReadStatement());
  return node;
}

Insert Grammar::ReadInsert() {
  reader_.TakeWord("into");
  Insert insert{reader_.TakeObjectName(), {}, {}, nullptr};
  if (reader_.AtSymbol("(")) insert.columns = ReadNameList();
  if (reader_.AtWord("select")) {
    insert.query = std::make_unique<Query>(ReadQuery());
    return insert;
  }
  reader_.ExpectWord("values");
  do {
    reader_.ExpectSymbol("(");
    insert.rows.push_back(ReadExpressionList());
    reader_.ExpectSymbol(")");
  } while (reader_.TakeSymbol(","));
  return insert;
}

Update Grammar::ReadUpdate() {
  Update update{reader_.TakeObjectName(), {}, {}, nullptr};
  reader_.ExpectWord("set");
  do {
    Assignment assignment{{}, reader_.TakeName(), nullptr};
    while (reader_.TakeSymbol(".")) {
      assignment.table = std::exchange(assignment.column, reader_.TakeName());
    }
    reader_.ExpectSymbol("=");
    assignment.value = ReadSum();
    update.assignments.push_back(std::move(assignment));
  } while (reader_.TakeSymbol(","));
  if (reader_.TakeWord("from")) update.from = ReadFromList();
  if (reader_.TakeWord("where")) update.where = ReadExpression();
  return update;
}

Delete Grammar::ReadDelete() {
  reader_.TakeWord("from");
  Delete node{reader_.TakeObjectName(), {}, nullptr};
  if (reader_.TakeWord("from")) node.from = ReadFromList();
  if (reader_.TakeWord("where")) node.where = ReadExpression();
  return node;
}

}  // namespace ovindra::embedded
