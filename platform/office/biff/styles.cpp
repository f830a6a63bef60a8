#include "platform/office/biff/styles.h"

#include <algorithm>
#include <cstdint>
#include <set>

#include "platform/office/biff/text.h"

namespace ovindra::office {
namespace {

constexpr Colour Rgb(std::uint32_t rgb) {
  return (rgb >> 16U) | (rgb & 0xFF00U) | ((rgb & 0xFFU) << 16U);
}

/// [MS-XLS] Icv: the colours behind the numbers 8 to 63 where no palette is given.
constexpr std::array<Colour, 56> kStandardPalette = {
    Rgb(0x000000), Rgb(0xFFFFFF), Rgb(0xFF0000), Rgb(0x00FF00), Rgb(0x0000FF), Rgb(0xFFFF00), Rgb(0xFF00FF),
    Rgb(0x00FFFF), Rgb(0x800000), Rgb(0x008000), Rgb(0x000080), Rgb(0x808000), Rgb(0x800080), Rgb(0x008080),
    Rgb(0xC0C0C0), Rgb(0x808080), Rgb(0x9999FF), Rgb(0x993366), Rgb(0xFFFFCC), Rgb(0xCCFFFF), Rgb(0x660066),
    Rgb(0xFF8080), Rgb(0x0066CC), Rgb(0xCCCCFF), Rgb(0x000080), Rgb(0xFF00FF), Rgb(0xFFFF00), Rgb(0x00FFFF),
    Rgb(0x800080), Rgb(0x800000), Rgb(0x008080), Rgb(0x0000FF), Rgb(0x00CCFF), Rgb(0xCCFFFF), Rgb(0xCCFFCC),
    Rgb(0xFFFF99), Rgb(0x99CCFF), Rgb(0xFF99CC), Rgb(0xCC99FF), Rgb(0xFFCC99), Rgb(0x3366FF), Rgb(0x33CCCC),
    Rgb(0x99CC00), Rgb(0xFFCC00), Rgb(0xFF9900), Rgb(0xFF6600), Rgb(0x666699), Rgb(0x969696), Rgb(0x003366),
    Rgb(0x339966), Rgb(0x003300), Rgb(0x333300), Rgb(0x993300), Rgb(0x993366), Rgb(0x333399), Rgb(0x333333)};

constexpr unsigned kFirstPaletteIndex = 8;
/// The two numbers that stand for the system's text and background, in a pattern that shows neither.
constexpr unsigned kNoPattern = 0x20C0;

constexpr unsigned kBold = 700;
constexpr unsigned kNotBold = 400;

/// [MS-XLS] Font.
void WriteFont(RecordStream& out, const CellFont& font, unsigned colour) {
  const unsigned flags = (font.italic ? 0x02U : 0U) | (font.strikeout ? 0x08U : 0U) |
                         (font.outline ? 0x10U : 0U) | (font.shadow ? 0x20U : 0U);
  out.Begin(RecordType::kFont);
  out.U16(static_cast<unsigned>(font.size) * 20);  // twips
  out.U16(flags);
  out.U16(colour);
  out.U16(font.bold ? kBold : kNotBold);
  out.U16(0);
  out.U8(font.underline ? 1 : 0);
  out.U8(0);
  out.U8(0);
  out.U8(0);
  BiffText(font.name).WriteShort(out);
  out.End();
}

/// What the bits of an XF record say ([MS-XLS] XF).
struct Xf {
  unsigned font = 0;
  unsigned flags = 0;
  unsigned alignment = 0x20;  // at the bottom
  unsigned own = 0;           // which groups of attributes are its own, not its parent's
  std::uint32_t left_right = 0;
  std::uint32_t top_bottom = 0;
};

constexpr unsigned kLocked = 0x0001;
constexpr unsigned kStyleXf = 0xFFF4;  // it is a style and has no parent
constexpr unsigned kOwnNothing = 0xF4;
constexpr unsigned kOwnFontAlignmentBorder = 0x38;

void WriteXf(RecordStream& out, const Xf& xf) {
  out.Begin(RecordType::kXf);
  out.U16(xf.font);
  out.U16(0);  // the number format General
  out.U16(xf.flags);
  out.U8(xf.alignment);
  out.U8(0);
  out.U8(0);
  out.U8(xf.own);
  out.U32(xf.left_right);
  out.U32(xf.top_bottom);
  out.U16(kNoPattern);
  out.End();
}

/// The model counts as the record does, from general to right, but from 1.
unsigned AlignmentBits(const CellAlignment& alignment) {
  const unsigned horizontal = static_cast<unsigned>(alignment.horizontal) - 1;
  const unsigned vertical = alignment.vertical == VerticalAlign::kCentre ? 1 : 2;
  return horizontal | (alignment.wrapped ? 0x08U : 0U) | (vertical << 4U);
}

/// A thin line is style 1; its colour stands in the same number, that of no line is 0.
void SetBorder(Xf& xf, const CellBorder& border, unsigned colour) {
  const auto line = [](bool there) { return there ? 1U : 0U; };
  const auto tint = [&](bool there) { return there ? colour : 0U; };
  xf.left_right = line(border.left) | (line(border.right) << 4U) | (line(border.top) << 8U) |
                  (line(border.bottom) << 12U) | (tint(border.left) << 16U) | (tint(border.right) << 23U);
  xf.top_bottom = tint(border.top) | (tint(border.bottom) << 7U);
}

/// The font that columns are measured by and the font of cells that were never formatted: that of Excel 97.
const CellFont& DefaultFont() {
  static const CellFont font = [] {
    CellFont arial;
    arial.name = "Arial";
    return arial;
  }();
  return font;
}

/// Font number 4 does not exist ([MS-XLS] FontIndex), so the first after the four default ones is 5.
constexpr unsigned kDefaultFonts = 4;
constexpr unsigned kFirstOwnFont = 5;

void WriteFonts(RecordStream& out, const std::vector<CellStyle>& styles, const Palette& palette) {
  for (unsigned i = 0; i < kDefaultFonts; ++i) WriteFont(out, DefaultFont(), palette.IndexOf(0));
  for (const CellStyle& style : styles) WriteFont(out, style.font, palette.IndexOf(style.font.colour));
}

void WriteXfs(RecordStream& out, const std::vector<CellStyle>& styles, const Palette& palette) {
  for (unsigned i = 0; i < kDefaultXf; ++i) {
    Xf style_xf;
    style_xf.flags = kLocked | kStyleXf;
    style_xf.own = i == 0 ? 0 : kOwnNothing;
    WriteXf(out, style_xf);
  }
  Xf cell;
  cell.flags = kLocked;
  WriteXf(out, cell);
  for (unsigned i = 0; i < styles.size(); ++i) {
    cell.font = kFirstOwnFont + i;
    cell.alignment = AlignmentBits(styles[i].alignment);
    cell.own = kOwnFontAlignmentBorder;
    SetBorder(cell, styles[i].border, palette.IndexOf(styles[i].border.colour));
    WriteXf(out, cell);
  }
}

/// The built-in style "Normal", which is XF record 0 ([MS-XLS] Style).
void WriteNormalStyle(RecordStream& out) {
  out.Begin(RecordType::kStyle);
  out.U16(0x8000);
  out.U8(0);
  out.U8(0xFF);
  out.End();
}

std::set<Colour> ColoursOf(const std::vector<CellStyle>& styles) {
  std::set<Colour> colours{0};
  for (const CellStyle& style : styles) {
    colours.insert(style.font.colour);
    if (style.border.OnAnySide()) colours.insert(style.border.colour);
  }
  return colours;
}

int Distance(Colour left, Colour right) {
  const auto square = [](int a, int b) { return (a - b) * (a - b); };
  return square(Red(left), Red(right)) + square(Green(left), Green(right)) + square(Blue(left), Blue(right));
}

}  // namespace

Palette::Palette(const std::vector<CellStyle>& styles) : colours_(kStandardPalette) {
  std::set<Colour> used = ColoursOf(styles);
  std::set<Colour> missing = used;
  for (const Colour colour : colours_) missing.erase(colour);
  for (auto place = colours_.rbegin(); place != colours_.rend() && !missing.empty(); ++place) {
    if (used.contains(*place)) continue;
    *place = *missing.begin();
    missing.erase(missing.begin());
    is_standard_ = false;
  }
}

unsigned Palette::IndexOf(Colour colour) const {
  return kFirstPaletteIndex + static_cast<unsigned>(Nearest(colour));
}

std::size_t Palette::Nearest(Colour colour) const {
  const auto nearest = std::min_element(colours_.begin(), colours_.end(), [&](Colour left, Colour right) {
    return Distance(left, colour) < Distance(right, colour);
  });
  return static_cast<std::size_t>(nearest - colours_.begin());
}

/// [MS-XLS] Palette: the count, then red, green, blue and a zero byte of each colour.
void Palette::Write(RecordStream& out) const {
  if (is_standard_) return;
  out.Begin(RecordType::kPalette);
  out.U16(kSize);
  for (const Colour colour : colours_) out.U32(colour & 0xFFFFFFU);
  out.End();
}

void WriteStyles(RecordStream& out, const std::vector<CellStyle>& styles) {
  const Palette palette(styles);
  WriteFonts(out, styles, palette);
  WriteXfs(out, styles, palette);
  WriteNormalStyle(out);
  palette.Write(out);
}

}  // namespace ovindra::office
