#include <array>
#include <charconv>
#include <utility>

#include "platform/embedded/binder/scope.h"
#include "platform/embedded/translator/sql_writer.h"

namespace ovindra::embedded {
namespace {

using namespace bound;

/// Names of columns have this collation by their declaration, everything else must be told.
constexpr std::string_view kWithoutCase = " COLLATE NOCASE";

bool IsColumn(const Expression& expression) {
  return std::holds_alternative<Column>(expression.node);
}

std::string_view SymbolOf(Operator operation) {
  switch (operation) {
    case Operator::kAdd:
      return "+";
    case Operator::kSubtract:
      return "-";
    case Operator::kMultiply:
      return "*";
    case Operator::kDivide:
      return "/";
    case Operator::kModulo:
      return "%";
    case Operator::kEqual:
      return "=";
    case Operator::kNotEqual:
      return "<>";
    case Operator::kLess:
      return "<";
    case Operator::kLessOrEqual:
      return "<=";
    case Operator::kGreater:
      return ">";
    case Operator::kGreaterOrEqual:
      return ">=";
  }
  return {};
}

std::string Digits(double value) {
  std::array<char, 64> digits{};
  const auto written = std::to_chars(digits.begin(), digits.end(), value);
  std::string text(digits.begin(), written.ptr);
  if (text.find_first_of(".e") == std::string::npos) text += ".0";
  return text;
}

}  // namespace

void SqlWriter::WriteName(std::string_view name) {
  text_ += '"';
  for (char c : name) {
    if (c == '"') text_ += '"';
    text_ += c;
  }
  text_ += '"';
}

void SqlWriter::WriteNames(const std::vector<std::string>& names) {
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (i > 0) text_ += ',';
    WriteName(names[i]);
  }
}

void SqlWriter::WriteValue(const Value& value) {
  if (const auto* text = std::get_if<std::string>(&value)) {
    text_ += '\'';
    for (char c : *text) {
      if (c == '\'') text_ += '\'';
      text_ += c;
    }
    text_ += '\'';
  } else if (const auto* whole = std::get_if<std::int64_t>(&value)) {
    text_ += *whole < 0 ? "(" + std::to_string(*whole) + ")" : std::to_string(*whole);
  } else if (const auto* real = std::get_if<double>(&value)) {
    text_ += *real < 0 ? "(" + Digits(*real) + ")" : Digits(*real);
  } else {
    text_ += "NULL";
  }
}

void SqlWriter::WriteExpression(const Expression& expression) {
  std::visit(
      [&](const auto& node) {
        if constexpr (requires { this->Write(node, expression.type); }) {
          Write(node, expression.type);
        } else {
          Write(node);
        }
      },
      expression.node);
}

void SqlWriter::WriteCompared(const Expression& expression) {
  WriteExpression(expression);
  if (expression.type.IsText() && !IsColumn(expression)) text_ += kWithoutCase;
}

void SqlWriter::WriteList(const ExpressionList& list) {
  for (std::size_t i = 0; i < list.size(); ++i) {
    if (i > 0) text_ += ',';
    WriteExpression(*list[i]);
  }
}

void SqlWriter::Write(const Literal& literal) {
  WriteValue(literal.value);
}

void SqlWriter::Write(const Parameter& parameter) {
  *this << "?" << (parameter.rule + 1);
}

void SqlWriter::Write(const Column& column) {
  if (column.source != kOwnTable) *this << "t" << column.source << ".";
  WriteName(column.name);
}

/// Kind, size and scale, as the session's functions take a type.
void SqlWriter::WriteTypeArguments(SqlType type) {
  *this << "," << static_cast<std::size_t>(type.kind) << "," << std::to_string(type.size) << ","
        << std::to_string(type.scale);
}

void SqlWriter::Write(const Arithmetic& arithmetic, SqlType type) {
  if (type.kind == TypeKind::kMoment) {
    // Moments are added as the days since the first day, which counts as nothing.
    const bool adds = arithmetic.operation == Operator::kAdd;
    text_ += "fit_moment(";
    WriteExpression(*arithmetic.left);
    text_ += SymbolOf(arithmetic.operation);
    WriteExpression(*arithmetic.right);
    *this << (adds ? "+" : "-") << static_cast<std::size_t>(-kDayZero) << ")";
    return;
  }
  const bool divides = arithmetic.operation == Operator::kDivide || arithmetic.operation == Operator::kModulo;
  text_ += arithmetic.operation == Operator::kDivide ? "divide(" : divides ? "modulo(" : "fit_number(";
  WriteExpression(*arithmetic.left);
  text_ += divides ? "," : SymbolOf(arithmetic.operation);
  WriteExpression(*arithmetic.right);
  WriteTypeArguments(type);
  text_ += ')';
}

void SqlWriter::Write(const Concatenation& concatenation) {
  text_ += '(';
  WriteChain(concatenation);
  text_ += ')';
}

/// A chain of joined texts leans to the left and needs no parentheses there.
void SqlWriter::WriteChain(const Concatenation& concatenation) {
  if (const auto* left = std::get_if<Concatenation>(&concatenation.left->node)) {
    WriteChain(*left);
  } else {
    WriteExpression(*concatenation.left);
  }
  text_ += "||";
  WriteExpression(*concatenation.right);
}

void SqlWriter::Write(const Negation& negation, SqlType type) {
  text_ += "fit_number(-(";
  WriteExpression(*negation.operand);
  text_ += ')';
  WriteTypeArguments(type);
  text_ += ')';
}

void SqlWriter::Write(const Comparison& comparison) {
  // Where one side is a column, its collation holds.
  const bool has_column = IsColumn(*comparison.left) || IsColumn(*comparison.right);
  text_ += '(';
  if (has_column) {
    WriteExpression(*comparison.left);
  } else {
    WriteCompared(*comparison.left);
  }
  text_ += SymbolOf(comparison.operation);
  WriteExpression(*comparison.right);
  text_ += ')';
}

void SqlWriter::Write(const Junction& junction) {
  text_ += '(';
  for (std::size_t i = 0; i < junction.operands.size(); ++i) {
    if (i > 0) text_ += junction.is_and ? " AND " : " OR ";
    WriteExpression(*junction.operands[i]);
  }
  text_ += ')';
}

void SqlWriter::Write(const Not& node) {
  text_ += "(NOT ";
  WriteExpression(*node.operand);
  text_ += ')';
}

void SqlWriter::WriteNegatable(bool is_not, const Expression& left) {
  text_ += '(';
  WriteCompared(left);
  if (is_not) text_ += " NOT";
}

void SqlWriter::Write(const Between& between) {
  WriteNegatable(between.is_not, *between.value);
  text_ += " BETWEEN ";
  WriteExpression(*between.low);
  text_ += " AND ";
  WriteExpression(*between.high);
  text_ += ')';
}

void SqlWriter::Write(const Like& like) {
  const bool is_range = IsColumn(*like.value) && !like.is_not && like.shape != PatternShape::kAny;
  const auto write = [&](std::string_view before, std::string_view between, std::string_view after) {
    text_ += before;
    WriteExpression(*like.value);
    text_ += between;
    WriteExpression(*like.pattern);
    text_ += after;
  };
  if (!is_range) {
    write(like.is_not ? "(NOT like_text(" : "like_text(", ",", like.is_not ? "))" : ")");
    return;
  }
  if (like.shape == PatternShape::kPlain) {
    write("(", "=", ")");
    return;
  }
  // One term as like is one: the planner takes every further term for another filter, and would look at the
  // likes of a statement before the joins that leave more rows out.
  write("(", " BETWEEN like_from(", ")");
  text_ += " AND like_to(";
  WriteExpression(*like.pattern);
  text_ += ')';
  if (like.shape == PatternShape::kPrefixed) write(" AND like_text(", ",", ")");
  text_ += ')';
}

void SqlWriter::Write(const InList& in) {
  WriteNegatable(in.is_not, *in.value);
  text_ += " IN (";
  WriteList(in.list);
  text_ += "))";
}

void SqlWriter::Write(const InQuery& in) {
  WriteNegatable(in.is_not, *in.value);
  text_ += " IN (";
  WriteQuery(*in.query, Columns::kUnnamed);
  text_ += "))";
}

void SqlWriter::Write(const IsNull& is_null) {
  text_ += '(';
  WriteExpression(*is_null.value);
  text_ += is_null.is_not ? " IS NOT NULL)" : " IS NULL)";
}

void SqlWriter::Write(const Exists& exists) {
  text_ += "(EXISTS(";
  WriteQuery(*exists.query, Columns::kUnnamed);
  text_ += "))";
}

void SqlWriter::Write(const Case& node) {
  text_ += "CASE";
  for (const When& branch : node.branches) {
    text_ += " WHEN ";
    WriteExpression(*branch.condition);
    text_ += " THEN ";
    WriteExpression(*branch.result);
  }
  if (node.otherwise) {
    text_ += " ELSE ";
    WriteExpression(*node.otherwise);
  }
  text_ += " END";
}

void SqlWriter::Write(const FunctionCall& call, SqlType type) {
  const bool is_checked = call.function->name == "abs";
  if (is_checked) text_ += "fit_number(";
  const std::string_view output = call.function->output;
  for (std::size_t at = 0; at < output.size(); ++at) {
    if (output[at] != '$') {
      text_ += output[at];
      continue;
    }
    ++at;
    if (output[at] == '*') {
      WriteList(call.arguments);
    } else {
      WriteExpression(*call.arguments[static_cast<std::size_t>(output[at] - '1')]);
    }
  }
  if (is_checked) {
    WriteTypeArguments(type);
    text_ += ')';
  }
}

void SqlWriter::Write(const Aggregate& aggregate, SqlType type) {
  const auto write = [&](std::string_view function) {
    text_ += function;
    text_ += aggregate.is_distinct ? "(DISTINCT " : "(";
    if (aggregate.argument) {
      WriteCompared(*aggregate.argument);
    } else {
      text_ += '*';
    }
    text_ += ')';
  };
  switch (aggregate.kind) {
    case AggregateKind::kCount:
      write("count");
      return;
    case AggregateKind::kMin:
      write("min");
      return;
    case AggregateKind::kMax:
      write("max");
      return;
    case AggregateKind::kSum:
      text_ += "fit_number(";
      write("sum");
      break;
    case AggregateKind::kAverage:
      text_ += "fit_number(";
      // The average of whole numbers is a whole number.
      if (type.kind == TypeKind::kInteger) {
        write("sum");
        text_ += '/';
        write("count");
      } else {
        write("avg");
      }
      break;
  }
  WriteTypeArguments(type);
  text_ += ')';
}

void SqlWriter::Write(const Conversion& conversion, SqlType type) {
  const SqlType from = conversion.value->type;
  const auto wrap = [&](std::string_view before, std::string_view after) {
    text_ += before;
    WriteExpression(*conversion.value);
    text_ += after;
  };
  // The longest int has ten digits and a sign.
  constexpr int kLongestInt = 11;
  constexpr int kMostDigitsOfInt = 10;
  const int enough = is_definition_ ? kMostDigitsOfInt : kLongestInt;
  if (from.IsText() && type.IsText() && conversion.purpose == Purpose::kCompared)
    return wrap("rtrim(", ",' ')");
  if (from.IsText() && type.IsText() && conversion.purpose == Purpose::kStored) {
    return wrap("fit_text(", "," + std::to_string(type.size) + ")");
  }
  if (from.kind == TypeKind::kInteger && from.size <= 4 && type.IsText() &&
      (type.size == kMaxText || type.size >= enough)) {
    return wrap("CAST(", " AS TEXT)");
  }
  if (from.IsNumber() && type.kind == TypeKind::kFloat) return wrap("CAST(", " AS REAL)");
  text_ += "convert_value(";
  WriteExpression(*conversion.value);
  WriteTypeArguments(from);
  WriteTypeArguments(type);
  *this << "," << static_cast<std::size_t>(conversion.purpose) << ","
        << static_cast<std::size_t>(conversion.style) << ")";
}

void SqlWriter::Write(const Subquery& subquery) {
  text_ += "(SELECT only_row(c1) FROM (";
  WriteQuery(*subquery.query, Columns::kNumbered);
  text_ += "))";
}

}  // namespace ovindra::embedded
