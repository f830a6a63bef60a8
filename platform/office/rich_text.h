// A document as rich text, which every word processor opens whatever the file is called.
#pragma once

#include <filesystem>
#include <string>

#include "base/workbook/document.h"

namespace ovindra::office {

/// The document's rich text.
std::string RichText(const Document& document);

/// Writes it over the file. Error 75 when that fails.
void WriteRichText(const Document& document, const std::filesystem::path& file);

}  // namespace ovindra::office
