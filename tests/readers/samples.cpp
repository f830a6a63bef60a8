// Writes workbooks and a document for foreign programs to reopen, and beside each workbook what stands in it
// as JSON, told from the model alone.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include "platform/office/office_files.h"

namespace ovindra::office {
namespace {

namespace fs = std::filesystem;

CellStyle BodyStyle() {
  CellStyle style;
  style.font.colour = 0xFF0000;
  style.font.outline = true;
  style.font.shadow = true;
  return style;
}

void Apply(Workbook& workbook, const CellRange& range, const CellStyle& style) {
  workbook.Restyle(range, [&](CellStyle& cell) { cell = style; });
}

/// A title of its own size and underlined, headings, a body, a frame, cells that only look, colours that no
/// standard palette has.
void StyleReport(Workbook& workbook, int last_row) {
  CellStyle style = BodyStyle();
  Apply(workbook, {6, 1, last_row, 7}, style);
  style.font.bold = true;
  style.font.colour = 0xFF00FF;
  style.alignment = {HorizontalAlign::kCentre, true, VerticalAlign::kCentre};
  Apply(workbook, {5, 1, 5, 7}, style);
  style = BodyStyle();
  style.font.size = 15;
  style.font.bold = true;
  style.font.underline = true;
  style.font.colour = 255;
  Apply(workbook, {1, 1, 3, 8}, style);
  style = CellStyle();
  style.font.italic = true;
  style.font.strikeout = true;
  style.font.colour = 0x123456;
  style.alignment.horizontal = HorizontalAlign::kRight;
  Apply(workbook, {last_row, 3, last_row, 3}, style);
  style.alignment.horizontal = HorizontalAlign::kLeft;
  style.border = {true, false, false, true, 0x563412};
  Apply(workbook, {last_row, 5, last_row, 5}, style);
  workbook.Restyle({5, 1, last_row - 1, 7}, [](CellStyle& cell) {
    cell.border = {true, true, true, true, 0xFF0000};
  });
}

std::string LongText(const std::string& piece, int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += piece;
  return text;
}

/// A list of children longer than any page, whose texts are in two scripts and of every length.
Workbook Report() {
  constexpr int kLastRow = 2400;
  Workbook workbook;
  workbook.SetSheetName("Enroll & Screened बच्चे");
  workbook.SetText(1, 1, "Lanvik Eye Institute");
  workbook.SetText(3, 1, "List of children from : 31/05/2016 To : 31/05/2016");
  const char* const headings[] = {"Sr.", "Enroll No.", "Child Name", "F/M Name", "Age", "Gender", "Class"};
  for (int column = 1; column <= 7; ++column) workbook.SetText(5, column, headings[column - 1]);
  for (int row = 6; row <= kLastRow; ++row) {
    const std::string number = std::to_string(row - 5);
    workbook.SetText(row, 1, number);
    workbook.SetText(row, 2, "A" + number);
    workbook.SetText(row, 3, row % 3 == 0 ? "आशा देवी " + number : "ASHA \"D\" <&> " + number);
    workbook.SetText(row, 4, row % 5 == 0 ? "Jos\xC3\xA9 " + number : LongText("RAM ", row % 97 + 1));
    workbook.SetText(row, 5, std::to_string(row % 16));
    workbook.SetText(row, 6, row % 2 == 0 ? "M" : "F");
  }
  workbook.SetText(7, 7, LongText("नेत्र", 6'000));
  workbook.SetText(8, 7, LongText("plain", 6'000));
  workbook.SetText(9, 7, " outer blanks \n\tand a line end ");
  workbook.SetText(10, 7, "\xF0\x9F\x91\x93 spectacles");
  workbook.SetText(20, 12, "far from the rest");
  StyleReport(workbook, kLastRow);
  workbook.SetColumnWidth(2, 20'000);
  workbook.SetColumnWidth(5, 1'000);
  workbook.SetColumnWidth(7, 7'862);
  workbook.SetRowHeight(1, 21);
  workbook.SetRowHeight(kLastRow + 2, 40.5);
  workbook.Merge({1, 1, 1, 7});
  workbook.Protect("Tarn");
  workbook.page_setup = {0, 0, 0.25, 0.5, false, false, true, "&LOvindra", "&C & Page &P"};
  return workbook;
}

/// The defaults, and a merge of several rows.
Workbook Merged() {
  Workbook workbook;
  workbook.SetText(2, 2, "over four cells");
  workbook.SetText(2, 1, "left of them");
  workbook.SetText(4, 2, "below");
  workbook.Merge({2, 2, 3, 3});
  workbook.Merge({4, 2, 4, 2});
  return workbook;
}

Document Letter() {
  return {12, false,
          "Enroll_no :-A1Child_Name :-ASHA {D}\\Class :-4\r\n          A1          आशा\r\n          A2\r\n"};
}

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') quoted += '\\';
    switch (c) {
      case '\n':
        quoted += "\\n";
        break;
      case '\r':
        quoted += "\\r";
        break;
      case '\t':
        quoted += "\\t";
        break;
      default:
        quoted += c;
    }
  }
  return quoted + '"';
}

void DescribeColour(std::ostream& out, Colour colour) {
  out << '[' << int{Red(colour)} << ',' << int{Green(colour)} << ',' << int{Blue(colour)} << ']';
}

void DescribeStyle(std::ostream& out, const CellStyle& style) {
  const CellFont& font = style.font;
  const CellBorder& border = style.border;
  out << R"({"font":)" << Quoted(font.name);
  const std::pair<const char*, int> numbers[] = {
      {"size", font.size},
      {"bold", font.bold},
      {"italic", font.italic},
      {"underline", font.underline},
      {"strikeout", font.strikeout},
      {"outline", font.outline},
      {"shadow", font.shadow},
      {"horizontal", static_cast<int>(style.alignment.horizontal)},
      {"wrapped", style.alignment.wrapped},
      {"middle", style.alignment.vertical == VerticalAlign::kCentre},
  };
  for (const auto& [name, number] : numbers) out << ",\"" << name << "\":" << number;
  out << ",\"border\":[" << border.left << ',' << border.right << ',' << border.top << ',' << border.bottom;
  out << "],\"colour\":";
  DescribeColour(out, font.colour);
  out << ",\"line\":";
  DescribeColour(out, border.colour);
  out << '}';
}

void DescribeCells(std::ostream& out, const Workbook& workbook) {
  out << R"("cells":[)";
  const char* before = "";
  for (int row = 1; row <= workbook.last_row(); ++row) {
    for (int column = 1; column <= workbook.last_column(); ++column) {
      const std::string_view text = workbook.Text(row, column);
      const StyleId style = workbook.StyleIdAt(row, column);
      if (text.empty() && style == 0) continue;
      out << before << '[' << row << ',' << column << ',' << Quoted(text) << ',' << style << ']';
      before = ",\n";
    }
  }
  out << ']';
}

template <typename Map>
void DescribeSizes(std::ostream& out, const char* name, const Map& sizes) {
  out << '"' << name << "\":{";
  const char* before = "";
  for (const auto& [place, size] : sizes) {
    out << before << '"' << place << "\":" << size;
    before = ",";
  }
  out << '}';
}

void DescribePage(std::ostream& out, const PageSetup& page) {
  out << R"("page":{"margins":[)" << page.left_margin << ',' << page.right_margin << ',' << page.top_margin
      << ',' << page.bottom_margin << "],\"grid_lines\":" << page.grid_lines
      << ",\"headings\":" << page.headings << ",\"centred\":" << page.centred
      << ",\"header\":" << Quoted(page.header) << ",\"footer\":" << Quoted(page.footer) << '}';
}

void Describe(std::ostream& out, const Workbook& workbook) {
  out << "{\"sheet\":" << Quoted(workbook.sheet_name()) << ",\n\"styles\":[";
  for (std::size_t i = 0; i < workbook.styles().size(); ++i) {
    if (i != 0) out << ",\n";
    DescribeStyle(out, workbook.styles()[i]);
  }
  out << "],\n";
  DescribeCells(out, workbook);
  out << ",\n";
  DescribeSizes(out, "widths", workbook.column_widths());
  out << ",\n";
  DescribeSizes(out, "heights", workbook.row_heights());
  out << ",\n\"merges\":[";
  const char* before = "";
  for (const CellRange& range : workbook.merges()) {
    if (range.first_row == range.last_row && range.first_column == range.last_column) continue;
    out << before << '[' << range.first_row << ',' << range.first_column << ',' << range.last_row << ','
        << range.last_column << ']';
    before = ",";
  }
  out << "],\n\"protected\":" << workbook.protection().has_value() << ",\n";
  DescribePage(out, workbook.page_setup);
  out << "}\n";
}

void WriteSample(const fs::path& folder, const std::string& name, const Workbook& workbook) {
  for (const char* extension : {".xls", ".xlsx"}) WriteWorkbook(workbook, folder / (name + extension));
  std::ofstream description(folder / (name + ".json"));
  Describe(description, workbook);
}

void WriteSamples(const fs::path& folder) {
  fs::create_directories(folder);
  WriteSample(folder, "report", Report());
  WriteSample(folder, "merged", Merged());
  WriteDocument(Letter(), folder / "letter.doc");
  std::ofstream(folder / "letter.txt") << Letter().text;
}

}  // namespace
}  // namespace ovindra::office

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: office_samples FOLDER\n";
    return 2;
  }
  ovindra::office::WriteSamples(argv[1]);
}
