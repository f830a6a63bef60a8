#include "platform/office/rich_text.h"

#include <cstdint>

#include "base/runtime_error.h"
#include "base/text/utf16.h"
#include "base/text/utf8.h"
#include "platform/office/file_handle.h"

namespace ovindra::office {
namespace {

/// By the published rules of Rich Text Format 1.9.1 \uN is a signed UTF-16 unit, followed by
/// the one character that \uc1 promises to readers that don't know it.
void AppendUnicode(std::string& out, char32_t character) {
  ForEachUtf16Unit(character, [&](std::uint16_t unit) {
    out += "\\u" + std::to_string(static_cast<std::int16_t>(unit)) + "?";
  });
}

void AppendCharacterAsRichText(std::string& out, char32_t character) {
  switch (character) {
    case U' ':
      // LibreOffice reads plain blanks beside one another as blanks of another width
      out += out.ends_with(' ') ? "\\u32?" : " ";
      return;
    case U'\r':
      return;
    case U'\n':
      out += "\\par\n";
      return;
    case U'\t':
      out += "\\tab ";
      return;
    case U'\\':
    case U'{':
    case U'}':
      out += '\\';
      break;
    default:
      break;
  }
  if (character < 0x80) {
    out += static_cast<char>(character);
  } else {
    AppendUnicode(out, character);
  }
}

}  // namespace

std::string RichText(const Document& document) {
  // font sizes are in half points; \ql aligns left
  std::string out =
      "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0{\\fonttbl{\\f0\\froman Times New Roman;}}\n"
      "\\pard\\plain\\ql\\f0\\fs" +
      std::to_string(2 * document.font_size) + (document.bold ? "\\b\n" : "\\b0\n");
  for (const char32_t character : Characters(document.text)) AppendCharacterAsRichText(out, character);
  return out + "}\n";
}

void WriteRichText(const Document& document, const std::filesystem::path& file) {
  const std::string text = RichText(document);
  const FileHandle out = OpenFile(file, "wb");
  if (out == nullptr || std::fwrite(text.data(), 1, text.size(), out.get()) != text.size() ||
      std::fflush(out.get()) != 0)
    throw PathFileAccess();
}

}  // namespace ovindra::office
