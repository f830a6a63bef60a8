#include <utility>

#include "platform/embedded/parser/grammar.h"
#include "platform/embedded/refusals.h"
#include "platform/embedded/sql_type.h"

namespace ovindra::embedded {

using namespace syntax;

CreateTable Grammar::ReadCreateTable() {
  CreateTable table{reader_.TakeObjectName(), {}, {}};
  reader_.ExpectSymbol("(");
  do {
    if (reader_.AtSymbol(")") && !table.columns.empty()) break;
    ReadTableElement(table.columns, table.keys);
  } while (reader_.TakeSymbol(","));
  reader_.ExpectSymbol(")");
  if (reader_.TakeWord("on")) reader_.TakeName();
  return table;
}

AddColumns Grammar::ReadAlterTable() {
  reader_.ExpectWord("table");
  AddColumns table{reader_.TakeObjectName(), {}, {}};
  if (!reader_.AtWord("add")) throw NotSupported(reader_.Here().text, reader_.Here().offset);
  reader_.ExpectWord("add");
  do {
    ReadTableElement(table.columns, table.keys);
  } while (reader_.TakeSymbol(","));
  return table;
}

/// A column or a key of the table.
void Grammar::ReadTableElement(std::vector<ColumnDefinition>& columns, std::vector<KeyDefinition>& keys) {
  Name constraint;
  if (reader_.TakeWord("constraint")) constraint = reader_.TakeName();
  if (reader_.AtWord("primary") || reader_.AtWord("unique")) {
    KeyDefinition key = ReadKeyHead(std::move(constraint));
    for (IndexColumn& column : ReadIndexColumns()) key.columns.push_back(std::move(column.name));
    keys.push_back(std::move(key));
    return;
  }
  if (!constraint.text.empty() || reader_.AtWord("foreign") || reader_.AtWord("check")) {
    throw NotSupported(reader_.Here().text, reader_.Here().offset);
  }
  ReadColumnDefinition(columns, keys);
}

void Grammar::ReadColumnDefinition(std::vector<ColumnDefinition>& columns, std::vector<KeyDefinition>& keys) {
  ColumnDefinition column;
  column.name = reader_.TakeName();
  if (reader_.TakeWord("as")) {
    column.computed = ReadSum();
    reader_.TakeWord("persisted");
  } else {
    column.type = ReadType();
  }
  while (ReadColumnOption(column, keys)) continue;
  columns.push_back(std::move(column));
}

bool Grammar::ReadColumnOption(ColumnDefinition& column, std::vector<KeyDefinition>& keys) {
  if (reader_.TakeWord("identity")) {
    column.is_identity = true;
    ReadIdentity();
    return true;
  }
  if (reader_.TakeWord("null")) {
    column.allows_null = true;
    return true;
  }
  if (reader_.TakeWord("not")) {
    reader_.ExpectWord("null");
    column.allows_null = false;
    return true;
  }
  Name constraint;
  const bool is_named = reader_.TakeWord("constraint");
  if (is_named) constraint = reader_.TakeName();
  if (reader_.TakeWord("default")) {
    column.default_value = ReadSum();
    return true;
  }
  if (reader_.AtWord("primary") || reader_.AtWord("unique")) {
    KeyDefinition key = ReadKeyHead(std::move(constraint));
    key.columns.push_back(column.name);
    keys.push_back(std::move(key));
    return true;
  }
  if (is_named || reader_.AtWord("references") || reader_.AtWord("check") || reader_.AtWord("collate")) {
    throw NotSupported(reader_.Here().text, reader_.Here().offset);
  }
  return false;
}

/// "primary key" or "unique"; where the rows of a key lie in the file is no matter here.
KeyDefinition Grammar::ReadKeyHead(Name constraint) {
  KeyDefinition key{std::move(constraint), reader_.TakeWord("primary"), {}};
  if (key.is_primary) {
    reader_.ExpectWord("key");
  } else {
    reader_.ExpectWord("unique");
  }
  if (!reader_.TakeWord("clustered")) reader_.TakeWord("nonclustered");
  return key;
}

void Grammar::ReadIdentity() {
  if (!reader_.TakeSymbol("(")) return;
  const std::size_t offset = reader_.Here().offset;
  const int first = reader_.TakeWholeNumber();
  reader_.ExpectSymbol(",");
  const int step = reader_.TakeWholeNumber();
  reader_.ExpectSymbol(")");
  if (first != 1 || step != 1) throw NotSupported("identity", offset);
}

TypeName Grammar::ReadType() {
  TypeName type{reader_.TakeName(), {}};
  if (!reader_.TakeSymbol("(")) return type;
  do {
    type.arguments.push_back(reader_.TakeWord("max") ? kMaxText : reader_.TakeWholeNumber());
  } while (reader_.TakeSymbol(","));
  reader_.ExpectSymbol(")");
  return type;
}

CreateView Grammar::ReadCreateView() {
  CreateView view{reader_.TakeObjectName(), {}, nullptr};
  if (reader_.AtSymbol("(")) view.columns = ReadNameList();
  reader_.ExpectWord("as");
  view.query = std::make_unique<Query>(ReadQuery());
  return view;
}

CreateIndex Grammar::ReadCreateIndex() {
  CreateIndex index;
  index.is_unique = reader_.TakeWord("unique");
  if (!reader_.TakeWord("clustered")) reader_.TakeWord("nonclustered");
  reader_.ExpectWord("index");
  index.index = reader_.TakeName();
  reader_.ExpectWord("on");
  index.table = reader_.TakeObjectName();
  index.columns = ReadIndexColumns();
  if (reader_.TakeWord("include")) index.included = ReadNameList();
  if (reader_.TakeWord("where")) index.where = ReadExpression();
  return index;
}

Drop Grammar::ReadDrop() {
  Drop drop{DropKind::kTable, false, {}};
  if (reader_.TakeWord("view")) {
    drop.kind = DropKind::kView;
  } else if (reader_.TakeWord("index")) {
    drop.kind = DropKind::kIndex;
  } else if (!reader_.TakeWord("table")) {
    throw NotSupported(reader_.Here().text, reader_.Here().offset);
  }
  if (reader_.TakeWord("if")) {
    reader_.ExpectWord("exists");
    drop.if_exists = true;
  }
  do {
    drop.objects.push_back(reader_.TakeObjectName());
    if (drop.kind == DropKind::kIndex && reader_.TakeWord("on")) reader_.TakeObjectName();
  } while (reader_.TakeSymbol(","));
  return drop;
}

std::vector<Name> Grammar::ReadNameList() {
  std::vector<Name> names;
  reader_.ExpectSymbol("(");
  do {
    names.push_back(reader_.TakeName());
  } while (reader_.TakeSymbol(","));
  reader_.ExpectSymbol(")");
  return names;
}

std::vector<IndexColumn> Grammar::ReadIndexColumns() {
  std::vector<IndexColumn> columns;
  reader_.ExpectSymbol("(");
  do {
    IndexColumn column{reader_.TakeName(), false};
    column.is_descending = reader_.TakeWord("desc");
    if (!column.is_descending) reader_.TakeWord("asc");
    columns.push_back(std::move(column));
  } while (reader_.TakeSymbol(","));
  reader_.ExpectSymbol(")");
  return columns;
}

}  // namespace ovindra::embedded
