// The styles of a workbook as BIFF8 keeps them: a palette of 56 colours, fonts, and an XF record for every
// style of the model.
#pragma once

#include <array>
#include <vector>

#include "base/workbook/style.h"
#include "base/workbook/workbook.h"
#include "platform/office/biff/record_stream.h"

namespace ovindra::office {

/// The colours that a workbook's cells may name. It begins as the standard one; colours of the styles that it
/// lacks take the places of colours that no style uses, and the nearest stands for one beyond the 56.
class Palette {
 public:
  explicit Palette(const std::vector<CellStyle>& styles);

  /// The number by which records name the colour.
  unsigned IndexOf(Colour colour) const;

  /// The record, where the palette isn't the standard one.
  void Write(RecordStream& out) const;

 private:
  static constexpr std::size_t kSize = 56;

  std::size_t Nearest(Colour colour) const;

  std::array<Colour, kSize> colours_;
  bool is_standard_ = true;
};

/// The XF record of a cell that was never written or formatted.
inline constexpr unsigned kDefaultXf = 15;

/// The XF record of a style of the model.
constexpr unsigned XfOf(StyleId style) {
  return kDefaultXf + 1U + style;
}

/// The records FONT, XF, STYLE and PALETTE.
void WriteStyles(RecordStream& out, const std::vector<CellStyle>& styles);

}  // namespace ovindra::office
