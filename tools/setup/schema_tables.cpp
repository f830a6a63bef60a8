#include "tools/setup/schema_tables.h"

#include "base/text/blanks.h"

namespace ovindra {
namespace {

constexpr std::string_view kCreateTable = "create table ";

/// Reads one line of a definition, "  Center_No int identity(1,1) not null".
void ReadColumn(std::string_view line, SchemaTable& table) {
  line = Trim(line);
  if (line.empty() || line.starts_with("--") || line.starts_with(')')) return;
  const std::string_view name = line.substr(0, line.find(' '));
  const std::string_view rest = line.substr(name.size());
  if (rest.starts_with(" as ")) return;
  table.columns.push_back(name);
  if (rest.find(" identity") != std::string_view::npos) table.identity = name;
}

SchemaTable ReadTable(std::string_view batch) {
  SchemaTable table;
  table.batch = batch;
  const std::size_t name_end = batch.find(' ', kCreateTable.size());
  table.name = batch.substr(kCreateTable.size(), name_end - kCreateTable.size());
  for (std::size_t at = batch.find('\n'); at != std::string_view::npos;) {
    const std::size_t end = batch.find('\n', at + 1);
    ReadColumn(batch.substr(at + 1, end - at - 1), table);
    at = end;
  }
  return table;
}

}  // namespace

std::string_view BatchOf(std::string_view schema, std::string_view table) {
  for (const SchemaTable& each : TablesOf(schema)) {
    if (each.name == table) return each.batch;
  }
  return {};
}

std::vector<SchemaTable> TablesOf(std::string_view schema) {
  std::vector<SchemaTable> tables;
  for (std::size_t at = 0; (at = schema.find(kCreateTable, at)) != std::string_view::npos;) {
    const std::size_t end = schema.find("\nGO", at);
    tables.push_back(ReadTable(schema.substr(at, end - at)));
    at = end;
  }
  return tables;
}

}  // namespace ovindra
