#include "tools/driver/papers/saved_sheet.h"

#include <cctype>
#include <fstream>
#include <memory>
#include <vector>

#include <freexl.h>
#include <gsf/gsf-infile-zip.h>
#include <gsf/gsf-infile.h>
#include <gsf/gsf-input-stdio.h>
#include <pugixml.hpp>

#include "platform/office/gsf_library.h"
#include "tools/driver/player.h"

namespace ovindra::driver {
namespace {

namespace fs = std::filesystem;

StepFailure Unreadable(const fs::path& file) {
  return {"a workbook in " + file.filename().string(), "bytes that are none"};
}

/// An Excel 97 file that is open in the library.
class Excel97File {
 public:
  explicit Excel97File(const fs::path& file) : file_(file) {
    const bool opened = freexl_open(file.c_str(), &handle_) == FREEXL_OK;
    if (opened && freexl_select_active_worksheet(handle_, 0) == FREEXL_OK) return;
    freexl_close(handle_);
    throw Unreadable(file);
  }
  ~Excel97File() { freexl_close(handle_); }
  Excel97File(const Excel97File&) = delete;
  Excel97File& operator=(const Excel97File&) = delete;

  SavedSheet Read() const {
    SavedSheet sheet;
    const char* name = nullptr;
    unsigned rows = 0;
    unsigned short columns = 0;
    Require(freexl_get_worksheet_name(handle_, 0, &name));
    Require(freexl_worksheet_dimensions(handle_, &rows, &columns));
    sheet.name = name;
    for (unsigned row = 0; row < rows; ++row) {
      for (unsigned short column = 0; column < columns; ++column) {
        FreeXL_CellValue value{};
        Require(freexl_get_cell_value(handle_, row, column, &value));
        if (value.type == FREEXL_CELL_TEXT || value.type == FREEXL_CELL_SST_TEXT)
          sheet.cells[{static_cast<int>(row) + 1, column + 1}] = value.value.text_value;
      }
    }
    return sheet;
  }

 private:
  void Require(int result) const {
    if (result != FREEXL_OK) throw Unreadable(file_);
  }

  const fs::path& file_;
  const void* handle_ = nullptr;
};

/// An Office Open XML file: parts of XML in a zip package.
class OpenXmlFile {
 public:
  explicit OpenXmlFile(const fs::path& file) : file_(file) {
    office::StartGsf();
    bytes_.reset(gsf_input_stdio_new(file.c_str(), nullptr));
    if (bytes_ == nullptr) throw Unreadable(file);
    package_.reset(gsf_infile_zip_new(bytes_.get(), nullptr));
    if (package_ == nullptr) throw Unreadable(file);
  }

  SavedSheet Read() const {
    SavedSheet sheet;
    sheet.name =
        Part("workbook.xml").child("workbook").child("sheets").child("sheet").attribute("name").value();
    const std::vector<std::string> shared = SharedTexts();
    const pugi::xml_document part = Part("worksheets", "sheet1.xml");
    for (const pugi::xml_node row : part.child("worksheet").child("sheetData").children("row")) {
      for (const pugi::xml_node cell : row.children("c")) {
        const std::string text = TextOf(cell, shared);
        if (!text.empty()) sheet.cells[PlaceOf(cell.attribute("r").value())] = text;
      }
    }
    return sheet;
  }

 private:
  template <typename... Names>
  office::GObjectHandle<GsfInput> Open(Names... names) const {
    return office::GObjectHandle<GsfInput>(
        gsf_infile_child_by_vname(package_.get(), "xl", names..., nullptr));
  }

  template <typename... Names>
  pugi::xml_document Part(Names... names) const {
    const auto input = Open(names...);
    if (input == nullptr) throw Unreadable(file_);
    const auto size = static_cast<std::size_t>(gsf_input_size(input.get()));
    const guint8* bytes = gsf_input_read(input.get(), size, nullptr);
    pugi::xml_document document;
    constexpr unsigned kKeepBlanks = pugi::parse_default | pugi::parse_ws_pcdata;
    if (bytes == nullptr || !document.load_buffer(bytes, size, kKeepBlanks)) throw Unreadable(file_);
    return document;
  }

  std::vector<std::string> SharedTexts() const {
    std::vector<std::string> texts;
    if (Open("sharedStrings.xml") == nullptr) return texts;
    const pugi::xml_document part = Part("sharedStrings.xml");
    for (const pugi::xml_node item : part.child("sst").children("si"))
      texts.emplace_back(item.child_value("t"));
    return texts;
  }

  std::string TextOf(pugi::xml_node cell, const std::vector<std::string>& shared) const {
    const std::string_view type = cell.attribute("t").value();
    if (type == "inlineStr") return cell.child("is").child_value("t");
    const pugi::xml_node value = cell.child("v");
    if (type != "s") return value.child_value();
    const std::size_t number = value.text().as_uint();
    if (number >= shared.size()) throw Unreadable(file_);
    return shared[number];
  }

  /// "AB12" is row 12, column 28.
  static std::pair<int, int> PlaceOf(std::string_view reference) {
    std::pair<int, int> place;
    for (const char c : reference) {
      if (std::isalpha(static_cast<unsigned char>(c)) != 0) {
        place.second = place.second * 26 + (c - 'A' + 1);
      } else {
        place.first = place.first * 10 + (c - '0');
      }
    }
    return place;
  }

  const fs::path& file_;
  office::GObjectHandle<GsfInput> bytes_;
  office::GObjectHandle<GsfInfile> package_;
};

}  // namespace

std::string SavedSheet::Text(int row, int column) const {
  const auto cell = cells.find({row, column});
  return cell == cells.end() ? std::string() : cell->second;
}

SavedSheet ReadSavedSheet(const fs::path& file) {
  std::string beginning(2, '\0');
  std::ifstream(file, std::ios::binary).read(beginning.data(), 2);
  return beginning == "PK" ? OpenXmlFile(file).Read() : Excel97File(file).Read();
}

}  // namespace ovindra::driver
