#include "platform/office/xlsx_file.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include <gsf/gsf-infile-zip.h>
#include <gsf/gsf-infile.h>
#include <gsf/gsf-input-stdio.h>
#include <xlsxwriter.h>

#include "base/runtime_error.h"
#include "base/text/utf8.h"
#include "platform/office/gsf_library.h"
#include "platform/office/limits.h"

namespace ovindra::office {
namespace {

void Require(lxw_error error) {
  if (error == LXW_ERROR_MAX_STRING_LENGTH_EXCEEDED) throw CellTextTooLong();
  if (error != LXW_NO_ERROR) throw PathFileAccess();
}

lxw_row_t RowFromZero(int row) {
  return static_cast<lxw_row_t>(row - 1);
}

lxw_col_t ColumnFromZero(int column) {
  return static_cast<lxw_col_t>(column - 1);
}

lxw_color_t RgbOf(Colour colour) {
  return static_cast<lxw_color_t>(Red(colour) << 16U | Green(colour) << 8U | Blue(colour));
}

/// The library takes 0 for "the default colour" and has a number of its own for black.
lxw_color_t ShownColour(Colour colour) {
  return colour == 0 ? static_cast<lxw_color_t>(LXW_COLOR_BLACK) : RgbOf(colour);
}

void SetFont(lxw_format* format, const CellFont& font) {
  format_set_font_name(format, font.name.c_str());
  format_set_font_size(format, font.size);
  format_set_font_color(format, ShownColour(font.colour));
  if (font.bold) format_set_bold(format);
  if (font.italic) format_set_italic(format);
  if (font.underline) format_set_underline(format, LXW_UNDERLINE_SINGLE);
  if (font.strikeout) format_set_font_strikeout(format);
  if (font.outline) format_set_font_outline(format);
  if (font.shadow) format_set_font_shadow(format);
}

void SetAlignment(lxw_format* format, const CellAlignment& alignment) {
  constexpr std::uint8_t kHorizontal[] = {LXW_ALIGN_NONE, LXW_ALIGN_LEFT, LXW_ALIGN_CENTER, LXW_ALIGN_RIGHT};
  const auto horizontal = static_cast<std::size_t>(alignment.horizontal) - 1;
  if (horizontal != 0) format_set_align(format, kHorizontal[horizontal]);
  if (alignment.vertical == VerticalAlign::kCentre) format_set_align(format, LXW_ALIGN_VERTICAL_CENTER);
  if (alignment.wrapped) format_set_text_wrap(format);
}

void SetBorder(lxw_format* format, const CellBorder& border) {
  if (border.left) format_set_left(format, LXW_BORDER_THIN);
  if (border.right) format_set_right(format, LXW_BORDER_THIN);
  if (border.top) format_set_top(format, LXW_BORDER_THIN);
  if (border.bottom) format_set_bottom(format, LXW_BORDER_THIN);
  if (border.OnAnySide()) format_set_border_color(format, ShownColour(border.colour));
}

/// Writes row by row: the library keeps only the current one.
class XlsxWriter {
 public:
  XlsxWriter(const Workbook& workbook, const std::filesystem::path& file) : workbook_(workbook), file_(file) {
    lxw_workbook_options options{};
    options.constant_memory = AllMergesAreInOneRow() ? LXW_TRUE : LXW_FALSE;
    options.use_zip64 = LXW_TRUE;
    book_.reset(workbook_new_opt(file.c_str(), &options));
    if (book_ == nullptr) throw PathFileAccess();
    sheet_ = workbook_add_worksheet(book_.get(), FileSheetName(workbook).c_str());
    if (sheet_ == nullptr) throw PathFileAccess();
  }

  void Write() {
    MakeFormats();
    WriteColumns();
    WriteRows();
    WritePageSetup();
    WriteProtection();
    RequireRowsOnDisk();
    Require(workbook_close(book_.release()));
    RequireWholeSheet();
  }

 private:
  struct Freer {
    void operator()(lxw_workbook* book) const { lxw_workbook_free(book); }
  };

  /// A merge writes its cells at once, those of later rows too, which the library can't do row by row.
  bool AllMergesAreInOneRow() const {
    const auto& merges = workbook_.merges();
    return std::all_of(merges.begin(), merges.end(),
                       [](const CellRange& range) { return range.first_row == range.last_row; });
  }

  void MakeFormats() {
    for (const CellStyle& style : workbook_.styles()) {
      lxw_format* format = workbook_add_format(book_.get());
      if (format == nullptr) throw PathFileAccess();
      SetFont(format, style.font);
      SetAlignment(format, style.alignment);
      SetBorder(format, style.border);
      formats_.push_back(format);
    }
  }

  /// The library adds the margin of a cell to the characters that it is given, as the width box of a
  /// spreadsheet program does.
  void WriteColumns() {
    constexpr double kUnitsInCharacter = 256;
    constexpr double kWidest = 255;
    for (const auto& [column, width] : workbook_.column_widths()) {
      if (column > kXlsxLimits.columns) break;
      const lxw_col_t place = ColumnFromZero(column);
      const double characters = std::clamp(width / kUnitsInCharacter, 0.0, kWidest);
      Require(worksheet_set_column(sheet_, place, place, characters, nullptr));
    }
  }

  void WriteRows() {
    const int rows = std::max(workbook_.last_row(),
                              workbook_.row_heights().empty() ? 0 : workbook_.row_heights().rbegin()->first);
    const int columns = workbook_.last_column();
    for (int row = 1; row <= std::min(rows, kXlsxLimits.rows); ++row) {
      if (workbook_.row_heights().contains(row))
        Require(worksheet_set_row(sheet_, RowFromZero(row), workbook_.RowHeight(row), nullptr));
      MergeFrom(row);
      for (int column = 1; column <= columns; ++column) WriteCell(row, column);
    }
  }

  /// A merge fills its cells with blanks, so the cells themselves are written after it.
  void MergeFrom(int row) {
    for (const CellRange& range : workbook_.merges()) {
      const bool is_one_cell = range.first_row == range.last_row && range.first_column == range.last_column;
      if (range.first_row != row || is_one_cell) continue;
      Require(worksheet_merge_range(sheet_, RowFromZero(range.first_row), ColumnFromZero(range.first_column),
                                    RowFromZero(range.last_row), ColumnFromZero(range.last_column), "",
                                    nullptr));
    }
  }

  void WriteCell(int row, int column) {
    const std::string_view text = workbook_.Text(row, column);
    const StyleId style = workbook_.StyleIdAt(row, column);
    if (text.empty()) {
      if (style != 0)
        Require(worksheet_write_blank(sheet_, RowFromZero(row), ColumnFromZero(column), formats_[style]));
      return;
    }
    TakeText(text);
    Require(worksheet_write_string(sheet_, RowFromZero(row), ColumnFromZero(column), text_.c_str(),
                                   formats_[style]));
  }

  /// The library writes the bytes as they are, and what is no UTF-8 would make the file unreadable.
  void TakeText(std::string_view text) {
    text_ = text;
    if (std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; }))
      return;
    text_.clear();
    for (const char32_t character : Characters(text)) AppendCharacter(text_, character);
  }

  void WritePageSetup() {
    constexpr std::uint8_t kA4 = 9;
    const PageSetup& setup = workbook_.page_setup;
    // Every cell is a text; a reader of the list must not find a mark on each that looks like a number.
    Require(worksheet_ignore_errors(sheet_, LXW_IGNORE_NUMBER_STORED_AS_TEXT, "A1:XFD1048576"));
    worksheet_set_paper(sheet_, kA4);
    worksheet_set_margins(sheet_, setup.left_margin, setup.right_margin, setup.top_margin,
                          setup.bottom_margin);
    if (!setup.header.empty()) Require(worksheet_set_header(sheet_, setup.header.c_str()));
    if (!setup.footer.empty()) Require(worksheet_set_footer(sheet_, setup.footer.c_str()));
    worksheet_gridlines(sheet_, setup.grid_lines ? LXW_SHOW_ALL_GRIDLINES : LXW_SHOW_SCREEN_GRIDLINES);
    if (setup.headings) worksheet_print_row_col_headers(sheet_);
    if (setup.centred) worksheet_center_horizontally(sheet_);
  }

  /// Contents and scenarios; drawing objects stay free.
  void WriteProtection() {
    if (!workbook_.protection()) return;
    lxw_protection options{};
    options.scenarios = LXW_FALSE;
    options.objects = LXW_TRUE;
    worksheet_protect(sheet_, workbook_.protection()->c_str(), &options);
  }

  /// The library keeps the rows in a temporary file, then copies them into another, and asks of neither
  /// whether it could be written. So we do: here of the first, below of the second by what has come of it.
  void RequireRowsOnDisk() const {
    std::FILE* rows = sheet_->optimize_tmpfile;
    if (rows != nullptr && (std::fflush(rows) != 0 || std::ferror(rows) != 0)) throw PathFileAccess();
  }

  void RequireWholeSheet() const {
    StartGsf();
    const GObjectHandle<GsfInput> bytes(gsf_input_stdio_new(file_.c_str(), nullptr));
    if (bytes == nullptr) throw PathFileAccess();
    const GObjectHandle<GsfInfile> zip(gsf_infile_zip_new(bytes.get(), nullptr));
    if (zip == nullptr) throw PathFileAccess();
    const GObjectHandle<GsfInput> sheet(
        gsf_infile_child_by_vname(zip.get(), "xl", "worksheets", "sheet1.xml", nullptr));
    if (sheet == nullptr || !EndOf(sheet.get()).ends_with("</worksheet>")) throw PathFileAccess();
  }

  /// The last bytes of a packed file, which can only be read from its beginning.
  static std::string EndOf(GsfInput* input) {
    constexpr gsf_off_t kPiece = 1 << 16;
    std::string end;
    while (gsf_input_remaining(input) > 0) {
      const gsf_off_t size = std::min(kPiece, gsf_input_remaining(input));
      const guint8* piece = gsf_input_read(input, static_cast<std::size_t>(size), nullptr);
      if (piece == nullptr) return {};
      const std::string_view text(reinterpret_cast<const char*>(piece), static_cast<std::size_t>(size));
      constexpr std::size_t kKept = 64;
      if (text.size() >= kKept) {
        end = text.substr(text.size() - kKept);
      } else {
        end += text;
      }
    }
    return end;
  }

  const Workbook& workbook_;
  const std::filesystem::path& file_;
  std::unique_ptr<lxw_workbook, Freer> book_;
  lxw_worksheet* sheet_ = nullptr;
  std::vector<lxw_format*> formats_;
  std::string text_;
};

}  // namespace

void WriteXlsx(const Workbook& workbook, const std::filesystem::path& file) {
  RequireWithin(workbook, kXlsxLimits);
  XlsxWriter(workbook, file).Write();
}

}  // namespace ovindra::office
