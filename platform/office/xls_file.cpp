#include "platform/office/xls_file.h"

#include <array>
#include <memory>

#include <gsf/gsf-outfile-msole.h>
#include <gsf/gsf-outfile.h>
#include <gsf/gsf-output-stdio.h>

#include "base/runtime_error.h"
#include "platform/office/biff/workbook_stream.h"
#include "platform/office/file_handle.h"
#include "platform/office/gsf_library.h"
#include "platform/office/limits.h"

namespace ovindra::office {
namespace {

/// The class of an Excel 97 workbook, {00020820-0000-0000-C000-000000000046}, as its bytes stand in the file.
constexpr std::array<guint8, 16> kWorkbookClass = {0x20, 0x08, 0x02, 0, 0, 0, 0, 0,
                                                   0xC0, 0,    0,    0, 0, 0, 0, 0x46};

/// One that was not closed, as after an error, closes here; what is then in the file is thrown away.
struct OutputCloser {
  void operator()(GsfOutput* output) const {
    if (gsf_output_is_closed(output) == FALSE) gsf_output_close(output);
    g_object_unref(output);
  }
};
using Output = std::unique_ptr<GsfOutput, OutputCloser>;

void Require(bool written) {
  if (!written) throw PathFileAccess();
}

void Close(const Output& output) {
  Require(gsf_output_close(output.get()) != FALSE);
}

class StreamSink : public ByteSink {
 public:
  explicit StreamSink(GsfOutput* stream) : stream_(stream) {}

  void Append(std::string_view bytes) override {
    Require(gsf_output_write(stream_, bytes.size(), reinterpret_cast<const guint8*>(bytes.data())) != FALSE);
  }
  void Overwrite(std::uint32_t position, std::string_view bytes) override {
    Require(gsf_output_seek(stream_, position, G_SEEK_SET) != FALSE);
    Append(bytes);
    Require(gsf_output_seek(stream_, 0, G_SEEK_END) != FALSE);
  }

 private:
  GsfOutput* stream_;
};

}  // namespace

void WriteXls(const Workbook& workbook, const std::filesystem::path& file) {
  RequireWithin(workbook, kXlsLimits);
  StartGsf();
  const FileHandle out = OpenFile(file, "w+b");
  Require(out != nullptr);
  const Output bytes(gsf_output_stdio_new_FILE(file.c_str(), out.get(), TRUE));
  const Output compound(GSF_OUTPUT(gsf_outfile_msole_new(bytes.get())));
  gsf_outfile_msole_set_class_id(GSF_OUTFILE_MSOLE(compound.get()), kWorkbookClass.data());
  const Output stream(gsf_outfile_new_child(GSF_OUTFILE(compound.get()), "Workbook", FALSE));
  StreamSink sink(stream.get());
  WriteWorkbookStream(workbook, sink);
  Close(stream);
  Close(compound);  // and with it the bytes beneath
  Require(std::fflush(out.get()) == 0);
}

}  // namespace ovindra::office
