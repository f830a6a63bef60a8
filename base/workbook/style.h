// How a cell of the workbook looks: its font, alignment and lines. Values alone; whoever shows, prints or
// writes a cell reads them.
#pragma once

#include <string>

#include "base/colour.h"

namespace ovindra {

struct CellFont {
  std::string name = "TIMES NEW ROMAN";
  int size = 10;  // points
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikeout = false;
  Colour colour = 0;
  bool outline = false;
  bool shadow = false;

  bool operator==(const CellFont&) const = default;
};

enum class HorizontalAlign { kGeneral = 1, kLeft = 2, kCentre = 3, kRight = 4 };
enum class VerticalAlign { kBottom = 1, kCentre = 2 };

struct CellAlignment {
  HorizontalAlign horizontal = HorizontalAlign::kGeneral;
  bool wrapped = false;
  VerticalAlign vertical = VerticalAlign::kBottom;

  bool operator==(const CellAlignment&) const = default;
};

/// The thin lines on a cell's sides.
struct CellBorder {
  bool left = false;
  bool right = false;
  bool top = false;
  bool bottom = false;
  Colour colour = 0;

  bool OnAllSides() const { return left && right && top && bottom; }
  bool OnAnySide() const { return left || right || top || bottom; }

  bool operator==(const CellBorder&) const = default;
};

struct CellStyle {
  CellFont font;
  CellAlignment alignment;
  CellBorder border;

  bool operator==(const CellStyle&) const = default;
};

}  // namespace ovindra
