// What the parts of the binder share while one statement is bound: the catalog, the rules of its parameters,
// the numbers of its sources; and the procedures by which they call one another.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/embedded/binder/bound_tree.h"
#include "platform/embedded/binder/scope.h"
#include "platform/embedded/catalog/catalog.h"
#include "platform/embedded/parser/syntax_tree.h"

namespace ovindra::embedded {

struct BindContext {
  Catalog& catalog;
  std::string_view identity_insert;
  std::vector<bound::ParameterRule> parameters;
  std::size_t sources = 0;
  /// Whether values may be parameters: SQLite takes none in a definition.
  bool takes_parameters = true;

  std::size_t NewSource() { return ++sources; }
};

/// Where a query stands: a statement's own, or inside another.
enum class QueryPlace { kOutermost, kInside };

bound::Query BindQuery(const syntax::Query& query, BindContext& context, const Scope* outer,
                       QueryPlace place);
bound::SelectInto BindSelectInto(const syntax::Query& query, BindContext& context);

/// Binds the sources of a from list and enters them into the scope.
std::vector<bound::SourcePtr> BindFrom(const syntax::FromList& from, BindContext& context, Scope& scope);

/// The table of that name; refuses one that is not there.
const CatalogTable& TableNamed(const syntax::ObjectName& name, BindContext& context);
/// The same, of a table whose rows can be changed.
const CatalogTable& ChangeableTable(const syntax::ObjectName& name, BindContext& context);
/// Refuses a name that a new table, view or index can't have: tables, views and indexes share one room of
/// names in SQLite, which keeps some of them for itself.
void RequireNewName(const syntax::Name& name, BindContext& context);
/// The column of that name; refuses one that is not there.
const CatalogColumn& ColumnNamed(const CatalogTable& table, const std::string& name);

bound::Insert BindInsert(const syntax::Insert& insert, BindContext& context);
bound::Update BindUpdate(const syntax::Update& update, BindContext& context);
bound::Delete BindDelete(const syntax::Delete& node, BindContext& context);
bound::CreateTable BindCreateTable(const syntax::CreateTable& table, BindContext& context);
bound::AddColumns BindAddColumns(const syntax::AddColumns& added, BindContext& context);
bound::CreateView BindCreateView(const syntax::CreateView& view, BindContext& context);
bound::CreateIndex BindCreateIndex(const syntax::CreateIndex& index, BindContext& context);
bound::Drop BindDrop(const syntax::Drop& drop, BindContext& context);

/// The type of that name; refuses one that the dialect does not have.
SqlType ResolveType(const syntax::TypeName& type);

}  // namespace ovindra::embedded
