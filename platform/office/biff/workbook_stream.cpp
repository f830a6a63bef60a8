#include "platform/office/biff/workbook_stream.h"

#include "platform/office/biff/globals.h"
#include "platform/office/biff/sheet.h"

namespace ovindra::office {

void WriteWorkbookStream(const Workbook& workbook, ByteSink& sink) {
  RecordStream out(sink);
  const SheetContent content(workbook);
  const std::uint32_t sheet_pointer = WriteGlobals(out, workbook, content.strings());
  out.PatchU32(sheet_pointer, out.position());
  WriteSheet(out, workbook, content);
  out.Finish();
}

}  // namespace ovindra::office
