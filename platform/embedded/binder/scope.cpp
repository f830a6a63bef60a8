#include "platform/embedded/binder/scope.h"

#include <algorithm>

#include "base/text/utf8.h"
#include "platform/embedded/refusals.h"

namespace ovindra::embedded {
namespace {

const ScopeColumn* ColumnOf(const ScopeTable& table, std::string_view name) {
  const auto found = std::find_if(table.columns.begin(), table.columns.end(),
                                  [&](const ScopeColumn& each) { return SameWithoutCase(each.name, name); });
  return found == table.columns.end() ? nullptr : &*found;
}

}  // namespace

void Scope::Add(ScopeTable table) {
  if (TableNamed(table.exposed_name) != nullptr) throw SameExposedName(table.exposed_name);
  tables_.push_back(std::move(table));
}

void Scope::AddTable(const CatalogTable& table, std::string exposed_name, std::size_t source) {
  ScopeTable entry{std::move(exposed_name), source, {}};
  for (const CatalogColumn& column : table.columns) {
    entry.columns.push_back({column.name, column.name, column.type, column.allows_null, column.is_trimmed});
  }
  Add(std::move(entry));
}

Scope::Found Scope::Resolve(const syntax::ColumnName& name) const {
  for (const Scope* scope = this; scope != nullptr; scope = scope->outer_) {
    if (!name.table.empty()) {
      const ScopeTable* table = scope->TableNamed(name.table);
      if (table == nullptr) continue;
      const ScopeColumn* column = ColumnOf(*table, name.column);
      if (column == nullptr) throw UnknownColumn(name.column);
      return {table, column};
    }
    Found found{nullptr, nullptr};
    for (const ScopeTable& table : scope->tables_) {
      const ScopeColumn* column = ColumnOf(table, name.column);
      if (column == nullptr) continue;
      if (found.column != nullptr) throw AmbiguousColumn(name.column);
      found = {&table, column};
    }
    if (found.column != nullptr) return found;
  }
  if (name.table.empty()) throw UnknownColumn(name.column);
  const std::string table = name.schema.empty() ? name.table : name.schema + "." + name.table;
  throw UnboundIdentifier(table + "." + name.column);
}

const ScopeTable* Scope::TableNamed(std::string_view exposed_name) const {
  const auto found = std::find_if(tables_.begin(), tables_.end(), [&](const ScopeTable& each) {
    return SameWithoutCase(each.exposed_name, exposed_name);
  });
  return found == tables_.end() ? nullptr : &*found;
}

void Scope::AllowNullsFrom(std::size_t mark) {
  for (std::size_t i = mark; i < tables_.size(); ++i) {
    for (ScopeColumn& column : tables_[i].columns) column.allows_null = true;
  }
}

}  // namespace ovindra::embedded
