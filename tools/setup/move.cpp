#include "tools/setup/move.h"

#include <algorithm>

#include "base/database/database_error.h"
#include "tools/setup/schema_tables.h"
#include "tools/setup/statement.h"

namespace ovindra {
namespace {

/// Joined by copying, so that longer statements would cost more than they save.
constexpr std::size_t kRowsOfStatement = 20;

std::int64_t CountRows(Session& session, std::string_view table) {
  return Execute(session, sql("select count(*) as Total from ", bare(table))).At(0).AsInteger();
}

/// A text in quotes. The pieces between its own quotes stand in quotes each, which makes every quote a
/// doubled one.
SqlText Literal(std::string_view text) {
  SqlText literal;
  for (std::size_t at = 0;;) {
    const std::size_t quote = text.find('\'', at);
    literal = sql(literal, quoted(text.substr(at, quote - at)));
    if (quote == std::string_view::npos) return literal;
    at = quote + 1;
  }
}

SqlText ValueOf(const Field& field) {
  switch (field.kind()) {
    case FieldKind::kNull:
      return sql("null");
    case FieldKind::kInteger:
    case FieldKind::kReal:
      return sql(bare(field.AsText()));
    case FieldKind::kMoment:
      return Literal(YearFirst(field.AsMoment()));
    case FieldKind::kText:
      break;
  }
  return Literal(field.RawText());
}

SqlText ColumnList(const SchemaTable& table) {
  SqlText list = sql(bare(table.columns.front()));
  for (std::size_t i = 1; i < table.columns.size(); ++i) list = sql(list, ",", bare(table.columns[i]));
  return list;
}

SqlText RowOf(const Recordset& rows) {
  SqlText row = sql("(", ValueOf(rows.At(0)));
  for (std::size_t i = 1; i < rows.columns().size(); ++i) row = sql(row, ",", ValueOf(rows.At(i)));
  return sql(row, ")");
}

/// The rows as texts, sorted, to compare two tables.
std::vector<std::string> RowTexts(Session& session, const SchemaTable& table) {
  std::vector<std::string> texts;
  Recordset rows = Execute(session, sql("select ", ColumnList(table), " from ", bare(table.name)));
  for (; !rows.Eof(); rows.MoveNext()) texts.push_back(RowOf(rows).text());
  std::sort(texts.begin(), texts.end());
  return texts;
}

void RequireFreshTable(Session& server, Session& pristine, const SchemaTable& table) {
  std::int64_t rows = 0;
  try {
    rows = CountRows(server, table.name);
  } catch (const RuntimeError& error) {
    throw ServerRefusal(Refusal::kOther, "The data source has no table " + std::string(table.name) +
                                             " that can be read: " + error.text() +
                                             " Run the script of ovindra-setup server-script on it first. "
                                             "Nothing was moved.");
  }
  if (rows == 0 ||
      (rows == CountRows(pristine, table.name) && RowTexts(server, table) == RowTexts(pristine, table)))
    return;
  throw ServerRefusal(Refusal::kOther, "The table " + std::string(table.name) +
                                           " of the data source has rows already: " + std::to_string(rows) +
                                           ". Nothing was moved.");
}

/// Lets the database take the numbers of a table from the statements, as long as the object stands.
void SwitchNumbering(Session& server, const SchemaTable& table, Fragment state) {
  if (!table.identity.empty()) Execute(server, sql("set identity_insert ", bare(table.name), " ", state));
}

void CopyRows(Session& source, Session& server, const SchemaTable& table) {
  const SqlText columns = ColumnList(table);
  const SqlText head = sql("insert into ", bare(table.name), " (", columns, ") values ");
  SqlText values;
  std::size_t count = 0;
  const auto send = [&] {
    if (count > 0) Execute(server, sql(head, values));
    values = SqlText();
    count = 0;
  };
  Recordset rows = Execute(source, sql("select ", columns, " from ", bare(table.name)));
  for (; !rows.Eof(); rows.MoveNext()) {
    values = count == 0 ? RowOf(rows) : sql(values, ",", RowOf(rows));
    if (++count == kRowsOfStatement) send();
  }
  send();
}

/// The number that the source would give next: it gives it to a row that is taken back at once.
std::int64_t NextNumber(TransactionSession& source, const SchemaTable& table) {
  struct TakeBack {};
  std::int64_t next = 0;
  const SqlText other = sql(bare(table.columns[1]));
  try {
    source.RunTogether([&] {
      Execute(source, sql("insert into ", bare(table.name), " (", other, ") values (null)"));
      next = Execute(source, sql("select max(", bare(table.identity), ") as Last from ", bare(table.name)))
                 .At(0)
                 .AsInteger();
      throw TakeBack();
    });
  } catch (const TakeBack&) {
    return next;
  }
  return next;
}

/// A number that was given and whose row is gone is never given again: the children still bear it.
void KeepNextNumber(Session& server, const SchemaTable& table, std::int64_t next) {
  const SqlText last = sql(Number(next - 1));
  const SqlText where = sql(" where ", bare(table.identity), "=", last);
  if (next == 1 || !Execute(server, sql("select * from ", bare(table.name), where)).Eof()) return;
  Execute(server, sql("insert into ", bare(table.name), " (", bare(table.identity), ") values (", last, ")"));
  Execute(server, sql("delete from ", bare(table.name), where));
}

MovedTable MoveTable(Session& source, Session& server, const SchemaTable& table, std::int64_t next_number) {
  if (CountRows(server, table.name) > 0) Execute(server, sql("delete from ", bare(table.name)));
  SwitchNumbering(server, table, "on");
  CopyRows(source, server, table);
  if (!table.identity.empty()) KeepNextNumber(server, table, next_number);
  SwitchNumbering(server, table, "off");
  MovedTable moved{std::string(table.name), CountRows(source, table.name), CountRows(server, table.name)};
  if (moved.rows_here == moved.rows_there) return moved;
  throw ServerRefusal(Refusal::kOther, "The table " + moved.name + " has " + std::to_string(moved.rows_here) +
                                           " rows here and " + std::to_string(moved.rows_there) +
                                           " there. Nothing was moved.");
}

/// Runs the work as one transaction of the server.
void RunOnServer(TransactionSession& server, const std::function<void()>& work) {
  bool is_done = false;
  try {
    server.RunTogether([&] {
      work();
      is_done = true;
    });
  } catch (const RuntimeError& error) {
    if (!is_done) throw;
    throw ServerRefusal(
        Refusal::kOther,
        "The server failed while it was told to keep the rows, so it holds all of them or none: " +
            error.text());
  }
}

}  // namespace

std::vector<MovedTable> MoveRows(TransactionSession& source, TransactionSession& server, Session& pristine,
                                 std::string_view schema) {
  std::vector<SchemaTable> tables = TablesOf(schema);
  std::erase_if(tables, [](const SchemaTable& table) { return table.name == kWorkTable; });
  std::vector<std::int64_t> next_numbers;
  for (const SchemaTable& table : tables) {
    RequireFreshTable(server, pristine, table);
    next_numbers.push_back(table.identity.empty() ? 0 : NextNumber(source, table));
  }
  std::vector<MovedTable> moved;
  // No program writes to the source meanwhile.
  source.RunTogether([&] {
    RunOnServer(server, [&] {
      for (std::size_t i = 0; i < tables.size(); ++i)
        moved.push_back(MoveTable(source, server, tables[i], next_numbers[i]));
    });
  });
  return moved;
}

}  // namespace ovindra
