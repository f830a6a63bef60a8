#include "platform/embedded/catalog/catalog.h"

#include <algorithm>
#include <optional>

#include "base/text/utf8.h"
#include "platform/embedded/lexer/lexer.h"
#include "platform/embedded/sqlite_statement.h"

namespace ovindra::embedded {
namespace {

constexpr std::string_view kTypesMark = "types:";

/// What SQLite's own tables are called by.
constexpr std::string_view kOwnPrefix = "sqlite_";

bool IsWord(const Token& token, std::string_view word) {
  return token.kind == TokenKind::kWord && SameWithoutCase(token.text, word);
}

/// A table's row in SQLite's schema.
struct Definition {
  std::string name;
  bool is_view;
  std::string text;
};

std::optional<Definition> ReadDefinition(sqlite3* database, std::string_view name) {
  SqliteStatement statement(
      database,
      "select name,type='view',sql from sqlite_schema where name=?1 collate nocase and type in "
      "('table','view')");
  statement.Bind(1, name);
  if (!statement.Step()) return {};
  return Definition{std::string(statement.Text(0)), statement.Integer(1) != 0,
                    std::string(statement.Text(2))};
}

/// The types of a view's columns, in order, each followed by a word on its text.
std::vector<std::string> ViewTypes(std::string_view definition) {
  std::vector<std::string> types;
  const std::size_t mark = definition.find(kTypesMark);
  const std::size_t end = definition.find("*/", mark);
  if (mark == std::string_view::npos || end == std::string_view::npos) return types;
  std::string_view list = definition.substr(mark + kTypesMark.size(), end - mark - kTypesMark.size());
  while (!list.empty()) {
    const std::size_t separator = std::min(list.find(';'), list.size());
    types.emplace_back(list.substr(0, separator));
    list.remove_prefix(std::min(separator + 1, list.size()));
  }
  return types;
}

std::vector<CatalogColumn> ReadColumns(sqlite3* database, const Definition& definition,
                                       std::span<const Token> tokens) {
  const bool numbers_rows = std::any_of(tokens.begin(), tokens.end(),
                                        [](const Token& token) { return IsWord(token, "autoincrement"); });
  const std::vector<std::string> view_types =
      definition.is_view ? ViewTypes(definition.text) : std::vector<std::string>{};
  SqliteStatement statement(
      database, "select name,type,\"notnull\",pk,hidden from pragma_table_xinfo(?1) order by cid");
  statement.Bind(1, std::string_view(definition.name));
  std::vector<CatalogColumn> columns;
  while (statement.Step()) {
    CatalogColumn column;
    column.name = statement.Text(0);
    std::string declaration(statement.Text(1));
    if (columns.size() < view_types.size()) {
      declaration = view_types[columns.size()];
      column.is_trimmed = !declaration.ends_with('*');
      if (!column.is_trimmed) declaration.pop_back();
    }
    column.type = TypeDeclared(declaration).value_or(TextType(kMaxText));
    column.is_identity = numbers_rows && statement.Integer(3) != 0 && !definition.is_view;
    column.allows_null = statement.Integer(2) == 0 && !column.is_identity;
    column.is_computed = statement.Integer(4) == 2 || statement.Integer(4) == 3;
    columns.push_back(std::move(column));
  }
  return columns;
}

/// The named keys of a table's definition: constraint NAME primary key (COLUMN, ...), or behind an identity
/// column.
std::vector<CatalogKey> NamedKeys(std::span<const Token> tokens, const CatalogTable& table) {
  std::vector<CatalogKey> keys;
  for (std::size_t at = 0; at + 3 < tokens.size(); ++at) {
    if (!IsWord(tokens[at], "constraint")) continue;
    const bool is_primary = IsWord(tokens[at + 2], "primary");
    if (!is_primary && !IsWord(tokens[at + 2], "unique")) continue;
    CatalogKey key{is_primary ? KeyKind::kPrimary : KeyKind::kUnique, Unquoted(tokens[at + 1]), {}};
    std::size_t column = at + (is_primary ? 4 : 3);
    if (column < tokens.size() && tokens[column].text == "(") {
      for (++column; column < tokens.size() && tokens[column].text != ")"; ++column) {
        if (tokens[column].kind == TokenKind::kQuotedName) key.columns.push_back(Unquoted(tokens[column]));
      }
    } else if (table.Identity() != nullptr) {
      key.columns.push_back(table.Identity()->name);
    }
    keys.push_back(std::move(key));
  }
  return keys;
}

/// The unique indexes that were made by themselves.
std::vector<CatalogKey> UniqueIndexes(sqlite3* database, const std::string& table) {
  std::vector<CatalogKey> keys;
  SqliteStatement statement(
      database,
      "select l.name,i.name from pragma_index_list(?1) l,pragma_index_info(l.name) i where l.\"unique\" and "
      "l.origin='c' order by l.seq,i.seqno");
  statement.Bind(1, std::string_view(table));
  while (statement.Step()) {
    const std::string name(statement.Text(0));
    if (keys.empty() || keys.back().name != name) keys.push_back({KeyKind::kIndex, name, {}});
    keys.back().columns.emplace_back(statement.Text(1));
  }
  return keys;
}

}  // namespace

const CatalogColumn* CatalogTable::Find(std::string_view column) const {
  const auto found = std::find_if(columns.begin(), columns.end(), [&](const CatalogColumn& each) {
    return SameWithoutCase(each.name, column);
  });
  return found == columns.end() ? nullptr : &*found;
}

const CatalogColumn* CatalogTable::Identity() const {
  const auto found = std::find_if(columns.begin(), columns.end(),
                                  [](const CatalogColumn& each) { return each.is_identity; });
  return found == columns.end() ? nullptr : &*found;
}

const CatalogTable* Catalog::Find(std::string_view name) {
  const std::string key = LowerCaseLatin(name);
  const auto known = tables_.find(key);
  if (known != tables_.end()) return known->second.get();
  if (IsReserved(name)) return nullptr;
  auto table = Read(name);
  if (!table) return nullptr;
  return tables_.emplace(key, std::move(table)).first->second.get();
}

bool Catalog::IsReserved(std::string_view name) {
  return LowerCaseLatin(name).starts_with(kOwnPrefix);
}

std::unique_ptr<CatalogTable> Catalog::Read(std::string_view name) {
  const auto definition = ReadDefinition(database_, name);
  if (!definition) return nullptr;
  const std::vector<Token> tokens = Lex(definition->text);
  auto table = std::make_unique<CatalogTable>();
  table->name = definition->name;
  table->is_view = definition->is_view;
  table->columns = ReadColumns(database_, *definition, tokens);
  if (table->is_view) return table;
  table->keys = NamedKeys(tokens, *table);
  for (CatalogKey& key : UniqueIndexes(database_, table->name)) table->keys.push_back(std::move(key));
  return table;
}

std::string Catalog::TableOfIndex(std::string_view index) {
  SqliteStatement statement(
      database_, "select tbl_name from sqlite_schema where type='index' and name=?1 collate nocase");
  statement.Bind(1, index);
  return statement.Step() ? std::string(statement.Text(0)) : std::string();
}

std::string ViewTypesComment(const std::vector<CatalogColumn>& columns) {
  std::string comment = "/*" + std::string(kTypesMark);
  for (const CatalogColumn& column : columns) {
    comment += DeclarationOf(column.type) + (column.is_trimmed ? "" : "*") + ";";
  }
  return comment + "*/";
}

}  // namespace ovindra::embedded
