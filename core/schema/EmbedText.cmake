# Writes a C++ file with a function that gives the text of a file.
# cmake -DTEXT=file -DFUNCTION=name -DHEADER=header -DOUTPUT=file.cpp -P EmbedText.cmake

file(READ ${TEXT} text)
string(CONFIGURE [[
#include "@HEADER@"

namespace ovindra {

std::string_view @FUNCTION@() {
  return R"text(@text@)text";
}

}  // namespace ovindra
]] source @ONLY)
file(WRITE ${OUTPUT} "${source}")
