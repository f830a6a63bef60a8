#include "platform/desktop/paper/sheet_fonts.h"

#include <algorithm>

#include "platform/desktop/binder/text.h"

namespace ovindra::desktop {
namespace {

constexpr double kUnitsPerInch = 96;
constexpr double kPixelsPerCharacter = 7;
constexpr double kUnitsPerCharacter = 256;
constexpr double kPixelsPerPoint = 96.0 / 72;
constexpr double kRowAir = 2;

}  // namespace

double ColumnPixels(int width) {
  return width * kPixelsPerCharacter / kUnitsPerCharacter;
}

double RowPixels(double points) {
  return points * kPixelsPerPoint + kRowAir;
}

QFont ScreenFont(const CellFont& font, double scale) {
  QFont shown;
  if (ToQt(font.name).compare("Times New Roman", Qt::CaseInsensitive) == 0) {
    shown.setFamilies({"Times New Roman", "Liberation Serif", "Tinos", "DejaVu Serif"});
  } else {
    shown.setFamily(ToQt(font.name));
  }
  shown.setStyleHint(QFont::Serif);
  shown.setPointSizeF(font.size * scale);
  shown.setBold(font.bold);
  shown.setItalic(font.italic);
  shown.setUnderline(font.underline);
  shown.setStrikeOut(font.strikeout);
  return shown;
}

bool ReadsAsNumber(std::string_view text) {
  if (text.ends_with('%')) text.remove_suffix(1);
  if (text.starts_with('-')) text.remove_prefix(1);
  const bool has_digit = text.find_first_of("0123456789") != std::string_view::npos;
  return has_digit && text.find_first_not_of("0123456789.") == std::string_view::npos &&
         std::count(text.begin(), text.end(), '.') <= 1;
}

SheetFonts::SheetFonts(const Workbook& workbook, double scale, const QPaintDevice& device)
    : workbook_(workbook),
      scale_(scale),
      device_(device),
      unit_(scale * device.logicalDpiX() / kUnitsPerInch) {}

const QFont& SheetFonts::FontOf(StyleId style) {
  return Of(style).font;
}

double SheetFonts::WidthOf(StyleId style, const QString& text) {
  return Of(style).metrics.horizontalAdvance(text);
}

SheetFonts::Known& SheetFonts::Of(StyleId style) {
  if (known_.size() <= style) known_.resize(workbook_.styles().size());
  std::optional<Known>& known = known_[style];
  if (!known) {
    // The metrics need the device for its resolution alone, but take it by a pointer to no constant.
    const QFont font(ScreenFont(workbook_.StyleOf(style).font, scale_), const_cast<QPaintDevice*>(&device_));
    known.emplace(Known{font, QFontMetricsF(font)});
  }
  return *known;
}

}  // namespace ovindra::desktop
