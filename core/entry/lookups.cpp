#include "core/entry/lookups.h"

#include "base/text/blanks.h"

namespace ovindra {

std::string CodeOf(Connection& connection, const Lookup& lookup, const TextControl& name) {
  return CodeOf(connection, lookup, std::string_view(name.text()));
}

std::string CodeOf(Connection& connection, const Lookup& lookup, std::string_view name) {
  const QuotedValue value = lookup.match == Match::kPrefix ? quoted(Trim(name), "%") : quoted(Trim(name));
  return Trim(connection.Execute(sql(lookup.statement, value))[lookup.field]);
}

}  // namespace ovindra
