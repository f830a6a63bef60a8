#include "platform/embedded/binder/grouping.h"

#include <algorithm>

#include "platform/embedded/refusals.h"

namespace ovindra::embedded {
namespace {

using namespace bound;

/// What is compared, before its trailing blanks are taken away.
const Expression& WithoutTrim(const Expression& expression) {
  const auto* conversion = std::get_if<Conversion>(&expression.node);
  const bool trims = conversion != nullptr && conversion->purpose == Purpose::kCompared;
  return trims ? *conversion->value : expression;
}

/// The expressions right below one.
std::vector<const Expression*> OperandsOf(const Expression& expression) {
  std::vector<const Expression*> operands;
  const auto add = [&](const ExpressionPtr& each) {
    if (each) operands.push_back(each.get());
  };
  const auto add_all = [&](const ExpressionList& list) { std::for_each(list.begin(), list.end(), add); };
  struct Visitor {
    decltype(add)& one;
    decltype(add_all)& all;
    void operator()(const Arithmetic& node) const { one(node.left), one(node.right); }
    void operator()(const Concatenation& node) const { one(node.left), one(node.right); }
    void operator()(const Negation& node) const { one(node.operand); }
    void operator()(const Comparison& node) const { one(node.left), one(node.right); }
    void operator()(const Junction& node) const { all(node.operands); }
    void operator()(const Not& node) const { one(node.operand); }
    void operator()(const Between& node) const { one(node.value), one(node.low), one(node.high); }
    void operator()(const Like& node) const { one(node.value), one(node.pattern); }
    void operator()(const InList& node) const { one(node.value), all(node.list); }
    void operator()(const InQuery& node) const { one(node.value); }
    void operator()(const IsNull& node) const { one(node.value); }
    void operator()(const Case& node) const {
      for (const When& branch : node.branches) one(branch.condition), one(branch.result);
      one(node.otherwise);
    }
    void operator()(const FunctionCall& node) const { all(node.arguments); }
    void operator()(const Conversion& node) const { one(node.value); }
    void operator()(const Aggregate&) const {}
    void operator()(const Literal&) const {}
    void operator()(const Parameter&) const {}
    void operator()(const Column&) const {}
    void operator()(const Exists&) const {}
    void operator()(const Subquery&) const {}
  };
  std::visit(Visitor{add, add_all}, expression.node);
  return operands;
}

/// Whether two nodes of one kind are alike but for what stands below them.
bool IsSameNode(const Expression& left, const Expression& right) {
  if (left.node.index() != right.node.index() || left.type != right.type) return false;
  if (const auto* column = std::get_if<Column>(&left.node)) {
    const auto& other = std::get<Column>(right.node);
    return column->source == other.source && column->name == other.name;
  }
  if (const auto* literal = std::get_if<Literal>(&left.node))
    return literal->value == std::get<Literal>(right.node).value;
  if (const auto* call = std::get_if<FunctionCall>(&left.node)) {
    return call->function == std::get<FunctionCall>(right.node).function;
  }
  if (const auto* arithmetic = std::get_if<Arithmetic>(&left.node)) {
    return arithmetic->operation == std::get<Arithmetic>(right.node).operation;
  }
  if (const auto* comparison = std::get_if<Comparison>(&left.node)) {
    return comparison->operation == std::get<Comparison>(right.node).operation;
  }
  if (const auto* conversion = std::get_if<Conversion>(&left.node)) {
    return conversion->style == std::get<Conversion>(right.node).style;
  }
  return std::holds_alternative<Concatenation>(left.node) || std::holds_alternative<Negation>(left.node) ||
         std::holds_alternative<Case>(left.node);
}

}  // namespace

bool IsSame(const Expression& left_side, const Expression& right_side) {
  const Expression& left = WithoutTrim(left_side);
  const Expression& right = WithoutTrim(right_side);
  if (!IsSameNode(left, right)) return false;
  const auto left_operands = OperandsOf(left);
  const auto right_operands = OperandsOf(right);
  return std::equal(left_operands.begin(), left_operands.end(), right_operands.begin(), right_operands.end(),
                    [](const Expression* a, const Expression* b) { return IsSame(*a, *b); });
}

void RequireGrouped(const Expression& expression, const ExpressionList& groups, std::size_t first_source) {
  const bool is_grouped = std::any_of(groups.begin(), groups.end(),
                                      [&](const ExpressionPtr& group) { return IsSame(expression, *group); });
  if (is_grouped) return;
  if (const auto* column = std::get_if<Column>(&expression.node)) {
    if (column->source >= first_source) throw NotGrouped(column->name);
    return;
  }
  for (const Expression* operand : OperandsOf(expression)) RequireGrouped(*operand, groups, first_source);
}

}  // namespace ovindra::embedded
