// A plain document of the word processor: one font size, paragraphs that begin at the left.
#pragma once

#include <string>

namespace ovindra {

struct Document {
  int font_size = 12;  // points
  bool bold = false;
  std::string text;  // lines end with a carriage return and a line feed
};

}  // namespace ovindra
