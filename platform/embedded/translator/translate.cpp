#include <algorithm>
#include <utility>

#include "platform/embedded/catalog/catalog.h"
#include "platform/embedded/translator/sql_writer.h"
#include "platform/embedded/translator/translator.h"

namespace ovindra::embedded {
namespace {

using namespace bound;

/// One procedure for each kind of statement.
class StatementTranslator {
 public:
  Program Run(const Statement& statement) {
    program_.parameters = statement.parameters;
    std::visit([this](const auto& node) { Translate(node); }, statement.node);
    return std::move(program_);
  }

 private:
  void AddStep(SqlWriter& writer) { program_.steps.push_back(writer.Take()); }

  void Translate(const Query& query) {
    SqlWriter writer;
    writer.WriteQuery(query, SqlWriter::Columns::kUnnamed);
    AddStep(writer);
    program_.columns = query.columns;
  }

  void Translate(const SelectInto& into) {
    SqlWriter table;
    table << "CREATE TABLE ";
    table.WriteName(into.table);
    for (std::size_t i = 0; i < into.query.columns.size(); ++i) {
      const ResultColumn& column = into.query.columns[i];
      ColumnDefinition definition;
      definition.name = column.name;
      definition.type = column.type;
      definition.allows_null = column.allows_null;
      table << (i == 0 ? "(" : ",");
      table.WriteColumnDefinition(definition);
    }
    table << ")";
    AddStep(table);
    SqlWriter rows;
    rows << "INSERT INTO ";
    rows.WriteName(into.table);
    rows << " ";
    rows.WriteQuery(into.query, SqlWriter::Columns::kUnnamed);
    AddStep(rows);
    program_.changed_table = into.table;
    program_.verb = "INSERT";
    program_.changes_schema = true;
  }

  void Translate(const Insert& insert) {
    SqlWriter rows;
    if (insert.query) {
      rows.WriteQuery(*insert.query, SqlWriter::Columns::kUnnamed);
    } else {
      rows << "VALUES ";
      for (std::size_t i = 0; i < insert.rows.size(); ++i) {
        rows << (i == 0 ? "(" : ",(");
        rows.WriteList(insert.rows[i]);
        rows << ")";
      }
    }
    program_.inserted_rows = rows.Take();
    SqlWriter writer;
    writer << "INSERT INTO ";
    writer.WriteName(insert.table);
    writer << "(";
    writer.WriteNames(insert.columns);
    writer << ") " << program_.inserted_rows;
    AddStep(writer);
    program_.changed_table = insert.table;
    program_.filled_columns = insert.columns;
    program_.verb = "INSERT";
  }

  /// An update with other sources goes by the rows that the sources give for each row of the target.
  void Translate(const Update& update) {
    const bool has_sources = update.from.size() > 1 || update.from.front()->number != update.target;
    SqlWriter writer;
    writer << "UPDATE ";
    writer.WriteName(update.table);
    if (!has_sources) writer << " AS t" << update.target;
    for (std::size_t i = 0; i < update.assignments.size(); ++i) {
      const Assignment& assignment = update.assignments[i];
      writer << (i == 0 ? " SET " : ",");
      writer.WriteName(assignment.column);
      writer << "=";
      if (has_sources) {
        writer << "s.c" << (i + 1);
      } else {
        writer.WriteExpression(*assignment.value);
      }
    }
    if (has_sources) {
      writer << " FROM (SELECT t" << update.target << "._rowid_ AS r";
      for (std::size_t i = 0; i < update.assignments.size(); ++i) {
        writer << ",";
        writer.WriteExpression(*update.assignments[i].value);
        writer << " AS c" << (i + 1);
      }
      writer.WriteFrom(update.from);
      writer.WriteWhere(update.where);
      writer << ") AS s WHERE ";
      writer.WriteName(update.table);
      writer << "._rowid_=s.r";
    } else {
      writer.WriteWhere(update.where);
    }
    AddStep(writer);
    program_.changed_table = update.table;
    program_.verb = "UPDATE";
  }

  void Translate(const Delete& node) {
    const bool has_sources = node.from.size() > 1 || node.from.front()->number != node.target;
    SqlWriter writer;
    writer << "DELETE FROM ";
    writer.WriteName(node.table);
    if (has_sources) {
      writer << " WHERE _rowid_ IN (SELECT t" << node.target << "._rowid_";
      writer.WriteFrom(node.from);
      writer.WriteWhere(node.where);
      writer << ")";
    } else {
      writer << " AS t" << node.target;
      writer.WriteWhere(node.where);
    }
    AddStep(writer);
    program_.changed_table = node.table;
    program_.verb = "DELETE";
  }

  void Translate(const CreateTable& table);
  void Translate(const AddColumns& added);
  void Translate(const CreateView& view);
  void Translate(const CreateIndex& index);
  void Translate(const Drop& drop);
  void Translate(const SetIdentityInsert&) {}
  void Translate(const Nothing&) {}

  void AddUniqueIndex(const KeyDefinition& key, const std::string& table);

  Program program_;
};

/// The key that is the identity column alone stands behind that column, since SQLite numbers rows only there.
bool IsIdentityKey(const KeyDefinition& key, const ColumnDefinition& column) {
  return column.is_identity && key.is_primary && key.columns.size() == 1 &&
         key.columns.front() == column.name;
}

void StatementTranslator::Translate(const CreateTable& table) {
  SqlWriter writer;
  writer.BeginDefinition();
  writer << "CREATE TABLE ";
  writer.WriteName(table.table);
  const auto& columns = table.columns;
  const bool has_identity = std::any_of(columns.begin(), columns.end(),
                                        [](const ColumnDefinition& each) { return each.is_identity; });
  for (std::size_t i = 0; i < columns.size(); ++i) {
    writer << (i == 0 ? "(" : ",");
    writer.WriteColumnDefinition(columns[i]);
    if (!columns[i].is_identity) continue;
    for (const KeyDefinition& key : table.keys) {
      if (!IsIdentityKey(key, columns[i])) continue;
      writer << " CONSTRAINT ";
      writer.WriteName(key.constraint);
    }
    writer << " PRIMARY KEY AUTOINCREMENT";
  }
  for (const KeyDefinition& key : table.keys) {
    if (std::any_of(columns.begin(), columns.end(),
                    [&](const ColumnDefinition& each) { return IsIdentityKey(key, each); })) {
      continue;
    }
    writer << ",CONSTRAINT ";
    writer.WriteName(key.constraint);
    writer << (key.is_primary && !has_identity ? " PRIMARY KEY (" : " UNIQUE (");
    writer.WriteNames(key.columns);
    writer << ")";
  }
  writer << ")";
  AddStep(writer);
  program_.changes_schema = true;
}

void StatementTranslator::Translate(const AddColumns& added) {
  for (const ColumnDefinition& column : added.columns) {
    SqlWriter writer;
    writer << "ALTER TABLE ";
    writer.WriteName(added.table);
    writer << " ADD COLUMN ";
    writer.WriteColumnDefinition(column);
    AddStep(writer);
  }
  for (const KeyDefinition& key : added.keys) AddUniqueIndex(key, added.table);
  program_.changes_schema = true;
}

/// SQLite adds no key to a table that is there; an index keeps rows apart as well.
void StatementTranslator::AddUniqueIndex(const KeyDefinition& key, const std::string& table) {
  SqlWriter writer;
  writer << "CREATE UNIQUE INDEX ";
  writer.WriteName(key.constraint);
  writer << " ON ";
  writer.WriteName(table);
  writer << "(";
  writer.WriteNames(key.columns);
  writer << ")";
  AddStep(writer);
}

void StatementTranslator::Translate(const CreateView& view) {
  std::vector<CatalogColumn> columns;
  for (const ResultColumn& column : view.query.columns) {
    CatalogColumn entry;
    entry.type = column.type;
    entry.is_trimmed = column.is_trimmed || !column.type.IsText();
    columns.push_back(std::move(entry));
  }
  SqlWriter writer;
  writer << "CREATE VIEW ";
  writer.WriteName(view.view);
  writer << " " << ViewTypesComment(columns) << " AS ";
  writer.WriteQuery(view.query, SqlWriter::Columns::kNamed);
  AddStep(writer);
  program_.changes_schema = true;
}

void StatementTranslator::Translate(const CreateIndex& index) {
  SqlWriter writer;
  writer.BeginDefinition();
  writer << (index.is_unique ? "CREATE UNIQUE INDEX " : "CREATE INDEX ");
  writer.WriteName(index.index);
  writer << " ON ";
  writer.WriteName(index.table);
  for (std::size_t i = 0; i < index.columns.size(); ++i) {
    writer << (i == 0 ? "(" : ",");
    writer.WriteName(index.columns[i].name);
    if (index.columns[i].is_descending) writer << " DESC";
  }
  writer << ")";
  writer.WriteWhere(index.where);
  AddStep(writer);
  program_.changed_table = index.table;
  program_.created_index = index.index;
  program_.changes_schema = true;
}

void StatementTranslator::Translate(const Drop& drop) {
  constexpr std::string_view kKinds[] = {"DROP TABLE ", "DROP VIEW ", "DROP INDEX "};
  for (const std::string& name : drop.names) {
    SqlWriter writer;
    writer << kKinds[static_cast<std::size_t>(drop.kind)];
    writer.WriteName(name);
    AddStep(writer);
  }
  program_.changes_schema = true;
}

}  // namespace

Program Translate(const Statement& statement) {
  return StatementTranslator().Run(statement);
}

void SqlWriter::WriteType(SqlType type) {
  *this << DeclarationOf(type);
  if (type.IsText()) *this << " COLLATE NOCASE";
}

void SqlWriter::WriteColumnDefinition(const ColumnDefinition& column) {
  WriteName(column.name);
  *this << " ";
  if (column.is_identity) {
    *this << "INTEGER";
    return;
  }
  WriteType(column.type);
  if (!column.allows_null) *this << " NOT NULL";
  if (column.default_value) {
    *this << " DEFAULT (";
    WriteExpression(*column.default_value);
    *this << ")";
  }
  if (column.computed) {
    *this << " GENERATED ALWAYS AS (";
    WriteExpression(*column.computed);
    *this << ") STORED";
  }
}

}  // namespace ovindra::embedded
