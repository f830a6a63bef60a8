#include <utility>

#include "platform/embedded/translator/sql_writer.h"

namespace ovindra::embedded {

using namespace bound;

void SqlWriter::WriteQuery(const Query& query, Columns columns) {
  for (std::size_t i = 0; i < query.selects.size(); ++i) {
    if (i > 0) *this << (query.keeps_duplicates[i - 1] ? " UNION ALL " : " UNION ");
    WriteSelect(query, i, columns);
  }
  WriteOrder(query);
  const ExpressionPtr& top = query.selects.front().top;
  if (query.selects.size() == 1 && top) {
    *this << " LIMIT ";
    WriteExpression(*top);
  }
}

void SqlWriter::WriteSelect(const Query& query, std::size_t number, Columns columns) {
  const Select& select = query.selects[number];
  // The limit of one select among several stands inside a select of its own.
  const bool is_wrapped = query.selects.size() > 1 && select.top;
  if (is_wrapped) *this << "SELECT * FROM (";
  *this << (select.is_distinct ? "SELECT DISTINCT " : "SELECT ");
  WriteItems(query, select, columns);
  WriteFrom(select.from);
  WriteWhere(select.where);
  for (std::size_t i = 0; i < select.group_by.size(); ++i) {
    *this << (i == 0 ? " GROUP BY " : ",");
    WriteCompared(*select.group_by[i]);
  }
  if (select.having) {
    *this << " HAVING ";
    WriteExpression(*select.having);
  }
  if (is_wrapped) {
    *this << " LIMIT ";
    WriteExpression(*select.top);
    *this << ")";
  }
}

void SqlWriter::WriteItems(const Query& query, const Select& select, Columns columns) {
  for (std::size_t i = 0; i < select.items.size(); ++i) {
    if (i > 0) *this << ",";
    WriteCompared(*select.items[i]);
    if (columns == Columns::kNumbered) {
      *this << " AS c" << (i + 1);
    } else if (columns == Columns::kNamed) {
      *this << " AS ";
      WriteName(query.columns[i].name);
    }
  }
}

void SqlWriter::WriteFrom(const std::vector<SourcePtr>& from) {
  for (std::size_t i = 0; i < from.size(); ++i) {
    *this << (i == 0 ? " FROM " : ",");
    WriteSource(*from[i]);
  }
}

void SqlWriter::WriteSource(const Source& source) {
  if (const auto* table = std::get_if<Table>(&source.node)) {
    WriteName(table->name);
    *this << " AS t" << source.number;
    return;
  }
  if (const auto* derived = std::get_if<Derived>(&source.node)) {
    *this << "(";
    WriteQuery(*derived->query, Columns::kNumbered);
    *this << ") AS t" << source.number;
    return;
  }
  const auto& join = std::get<Join>(source.node);
  const auto write_side = [&](const Source& side) {
    const bool is_join = std::holds_alternative<Join>(side.node);
    if (is_join) *this << "(";
    WriteSource(side);
    if (is_join) *this << ")";
  };
  // A chain of joins leans to the left.
  WriteSource(*join.left);
  *this << (join.kind == JoinKind::kLeft    ? " LEFT JOIN "
            : join.kind == JoinKind::kCross ? " CROSS JOIN "
                                            : " JOIN ");
  write_side(*join.right);
  if (join.condition) {
    *this << " ON ";
    WriteExpression(*join.condition);
  }
}

void SqlWriter::WriteWhere(const ExpressionPtr& where) {
  if (!where) return;
  *this << " WHERE ";
  WriteExpression(*where);
}

/// Groups come in the order of what they are grouped by, distinct rows of them in that of their columns, as
/// the server's sorts leave them.
void SqlWriter::WriteOrderOfGroups(const Select& select) {
  const std::size_t count = select.is_distinct ? select.items.size() : select.group_by.size();
  for (std::size_t i = 0; i < count; ++i) {
    *this << (i == 0 ? " ORDER BY " : ",");
    if (select.is_distinct) {
      *this << (i + 1);
    } else {
      WriteCompared(*select.group_by[i]);
    }
  }
}

void SqlWriter::WriteOrder(const Query& query) {
  if (query.order_by.empty() && query.selects.size() == 1 && !query.selects.front().group_by.empty()) {
    WriteOrderOfGroups(query.selects.front());
    return;
  }
  for (std::size_t i = 0; i < query.order_by.size(); ++i) {
    const OrderItem& item = query.order_by[i];
    *this << (i == 0 ? " ORDER BY " : ",");
    if (item.column) {
      *this << (*item.column + 1);
    } else {
      WriteCompared(*item.value);
    }
    if (item.is_descending) *this << " DESC";
  }
}

}  // namespace ovindra::embedded
