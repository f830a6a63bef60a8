// A database of a test: rows as one text, fields parted by | and rows by ; .
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/embedded/embedded_database.h"

namespace ovindra {

inline std::string RowsOf(Session& session, std::string_view statement) {
  std::string text;
  for (Recordset rows = session.Run(WholeStatement(std::string(statement))); !rows.Eof(); rows.MoveNext()) {
    if (!text.empty()) text += ';';
    for (std::size_t i = 0; i < rows.columns().size(); ++i) {
      if (i > 0) text += '|';
      text += rows.At(i).IsNull() ? "NULL" : YearFirstText(rows.At(i));
    }
  }
  return text;
}

}  // namespace ovindra
