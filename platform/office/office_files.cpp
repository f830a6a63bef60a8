#include "platform/office/office_files.h"

#include "base/text/utf8.h"
#include "platform/office/replace_file.h"
#include "platform/office/rich_text.h"
#include "platform/office/xls_file.h"
#include "platform/office/xlsx_file.h"

namespace ovindra::office {

void WriteWorkbook(const Workbook& workbook, const std::filesystem::path& file) {
  const bool is_xlsx = SameWithoutCase(file.extension().string(), ".xlsx");
  ReplaceFile(
      file, [&](const std::filesystem::path& beside) { (is_xlsx ? WriteXlsx : WriteXls)(workbook, beside); });
}

void WriteDocument(const Document& document, const std::filesystem::path& file) {
  ReplaceFile(file, [&](const std::filesystem::path& beside) { WriteRichText(document, beside); });
}

}  // namespace ovindra::office
