#include "tools/setup/answers.h"

#include <algorithm>
#include <vector>

#include "base/text/utf8.h"

namespace ovindra {
namespace {

using Line = std::vector<std::string>;

std::string CellText(const Field& field) {
  return field.IsNull() ? "NULL" : YearFirstText(field);
}

std::vector<Line> ReadLines(Recordset& answer) {
  std::vector<Line> lines;
  for (; !answer.Eof(); answer.MoveNext()) {
    Line& line = lines.emplace_back();
    for (std::size_t i = 0; i < answer.columns().size(); ++i) line.push_back(CellText(answer.At(i)));
  }
  return lines;
}

std::string Padded(std::string text, std::size_t width) {
  const std::size_t characters = CharacterCount(text);
  return characters < width ? std::move(text) + std::string(width - characters, ' ') : text;
}

void WriteLine(std::ostream& out, const Line& line, const std::vector<std::size_t>& widths) {
  for (std::size_t i = 0; i < line.size(); ++i) {
    const bool last = i + 1 == line.size();
    out << (last ? line[i] : Padded(line[i], widths[i]) + "  ");
  }
  out << '\n';
}

std::string_view Plural(std::int64_t count) {
  return count == 1 ? " row" : " rows";
}

std::string JsonValue(const Field& field) {
  return field.IsNull() ? "null" : JsonString(YearFirstText(field));
}

/// Joins what `item` gives for each index with commas, in brackets.
template <typename Item>
std::string JsonArray(std::size_t count, Item item) {
  std::string text = "[";
  for (std::size_t i = 0; i < count; ++i) {
    if (i > 0) text += ',';
    text += item(i);
  }
  return text + "]";
}

}  // namespace

void WriteTable(std::ostream& out, Recordset answer) {
  if (!answer.HasColumns()) {
    out << answer.affected_rows() << Plural(answer.affected_rows()) << " changed\n";
    return;
  }
  const Line& heads = answer.columns();
  const std::vector<Line> lines = ReadLines(answer);
  std::vector<std::size_t> widths;
  Line rule;
  for (std::size_t i = 0; i < heads.size(); ++i) {
    std::size_t width = CharacterCount(heads[i]);
    for (const Line& line : lines) width = std::max(width, CharacterCount(line[i]));
    widths.push_back(width);
    rule.emplace_back(width, '-');
  }
  WriteLine(out, heads, widths);
  WriteLine(out, rule, widths);
  for (const Line& line : lines) WriteLine(out, line, widths);
  out << lines.size() << Plural(static_cast<std::int64_t>(lines.size())) << '\n';
}

std::string JsonLine(Recordset answer) {
  if (!answer.HasColumns()) return "{\"count\":" + std::to_string(answer.affected_rows()) + "}";
  const std::size_t width = answer.columns().size();
  const std::string columns =
      JsonArray(width, [&](std::size_t i) { return JsonString(answer.columns()[i]); });
  const std::string rows = JsonArray(answer.row_count(), [&](std::size_t) {
    std::string row = JsonArray(width, [&](std::size_t i) { return JsonValue(answer.At(i)); });
    answer.MoveNext();
    return row;
  });
  return "{\"columns\":" + columns + ",\"rows\":" + rows + "}";
}

std::string JsonLine(const RuntimeError& error) {
  return "{\"error\":" + std::to_string(error.number()) + ",\"text\":" + JsonString(error.text()) + "}";
}

std::string JsonString(std::string_view text) {
  std::string json = "\"";
  for (const char32_t character : Characters(text)) {
    switch (character) {
      case U'"':
        json += "\\\"";
        break;
      case U'\\':
        json += "\\\\";
        break;
      case U'\n':
        json += "\\n";
        break;
      case U'\r':
        json += "\\r";
        break;
      case U'\t':
        json += "\\t";
        break;
      default:
        if (character < 0x20) {
          constexpr std::string_view kHexDigits = "0123456789abcdef";
          json += std::string("\\u00") + (character < 0x10 ? '0' : '1') + kHexDigits[character % 16];
        } else {
          AppendCharacter(json, character);
        }
    }
  }
  return json + '"';
}

}  // namespace ovindra
