#include <utility>

#include "platform/embedded/binder/bind_context.h"
#include "platform/embedded/binder/binder.h"
#include "platform/embedded/refusals.h"

namespace ovindra::embedded {
namespace {

/// One procedure for each kind of statement.
class StatementBinder {
 public:
  StatementBinder(Catalog& catalog, std::string_view identity_insert)
      : context_{catalog, identity_insert, {}} {}

  bound::Statement Run(const syntax::Statement& statement) {
    return std::visit([this](const auto& node) { return Finish(Bind(node)); }, statement.node);
  }

  bound::Statement Run(const syntax::Query& query) { return Finish(Bind(query)); }

 private:
  using Node = decltype(bound::Statement::node);

  bound::Statement Finish(Node node) { return {std::move(node), std::move(context_.parameters)}; }

  Node Bind(const syntax::Query& query) {
    if (query.selects.front().into) return BindSelectInto(query, context_);
    return BindQuery(query, context_, nullptr, QueryPlace::kOutermost);
  }
  Node Bind(const syntax::Insert& node) { return BindInsert(node, context_); }
  Node Bind(const syntax::Update& node) { return BindUpdate(node, context_); }
  Node Bind(const syntax::Delete& node) { return BindDelete(node, context_); }
  Node Bind(const syntax::CreateTable& node) { return BindCreateTable(node, Definition()); }
  Node Bind(const syntax::AddColumns& node) { return BindAddColumns(node, Definition()); }
  Node Bind(const syntax::CreateView& node) { return BindCreateView(node, Definition()); }
  Node Bind(const syntax::CreateIndex& node) { return BindCreateIndex(node, Definition()); }
  Node Bind(const syntax::Drop& node) { return BindDrop(node, context_); }
  Node Bind(const syntax::SetIdentityInsert& node) {
    const CatalogTable& table = ChangeableTable(node.table, context_);
    if (table.Identity() == nullptr) throw NoIdentity(table.name);
    return bound::SetIdentityInsert{table.name, node.is_on};
  }
  Node Bind(const syntax::SetOption&) { return bound::Nothing{}; }
  /// The session asks the condition first and then binds what it guards.
  Node Bind(const syntax::If& node) { return Bind(*node.query); }

  BindContext& Definition() {
    context_.takes_parameters = false;
    return context_;
  }

  BindContext context_;
};

}  // namespace

bound::Statement Bind(const syntax::Statement& statement, Catalog& catalog,
                      std::string_view identity_insert) {
  return StatementBinder(catalog, identity_insert).Run(statement);
}

bound::Statement Bind(const syntax::Query& query, Catalog& catalog) {
  return StatementBinder(catalog, {}).Run(query);
}

}  // namespace ovindra::embedded
