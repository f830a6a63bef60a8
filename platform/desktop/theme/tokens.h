// The colours of the program, one struct with a light and a dark instance, and the measures that painting and
// layout share. Text colours meet the AA contrast of 4.5 on their grounds, borders and rings 3.0. Both
// instances live as long as the program.
#pragma once

#include <QColor>
#include <array>

namespace ovindra::theme {

/// A colour for every use; where a ground carries text, the text's colour follows it.
struct Tokens {
  QColor window;   // form ground
  QColor surface;  // menus, bars
  QColor card;     // cards that lie over a form
  QColor button;   // any button but the primary one
  QColor status;   // status bar
  QColor base;     // fields, grids
  QColor alt;      // every second row
  QColor text;
  QColor muted;   // labels, column heads
  QColor line;    // borders of fields, buttons, grids
  QColor hair;    // hairlines
  QColor header;  // grid head
  QColor fill;    // primary button, selected row with focus
  QColor on_fill;
  QColor soft;  // selected row without focus, chip
  QColor heading;
  QColor accent;  // radio, check
  QColor on_accent;
  QColor focus;       // ring
  QColor focus_fill;  // ground of the focused field
  QColor ring_on;     // ring on a primary button
  QColor dis_fill;
  QColor dis_text;
  QColor dis_line;
  QColor title_on;  // active child window
  QColor on_title_on;
  QColor title_off;
  QColor on_title_off;
  QColor err;
  QColor warn;
  bool dark = false;
};

/// The two instances.
const Tokens& LightTokens();
const Tokens& DarkTokens();

/// A token under the name that the style sheet calls it by, as in `@focusFill`.
struct TokenName {
  const char* name;
  QColor Tokens::*color;
};

inline constexpr std::array kTokenNames = std::to_array<TokenName>({
    {"window", &Tokens::window},    {"button", &Tokens::button},
    {"status", &Tokens::status},    {"surface", &Tokens::surface},
    {"card", &Tokens::card},        {"base", &Tokens::base},
    {"alt", &Tokens::alt},          {"text", &Tokens::text},
    {"muted", &Tokens::muted},      {"line", &Tokens::line},
    {"hair", &Tokens::hair},        {"header", &Tokens::header},
    {"fill", &Tokens::fill},        {"onFill", &Tokens::on_fill},
    {"soft", &Tokens::soft},        {"heading", &Tokens::heading},
    {"accent", &Tokens::accent},    {"onAccent", &Tokens::on_accent},
    {"focus", &Tokens::focus},      {"focusFill", &Tokens::focus_fill},
    {"ringOn", &Tokens::ring_on},   {"disFill", &Tokens::dis_fill},
    {"titleOn", &Tokens::title_on}, {"disText", &Tokens::dis_text},
    {"disLine", &Tokens::dis_line},
});

/// Heights and radii in device-independent pixels.
inline constexpr int kFieldHeight = 26;
inline constexpr int kButtonHeight = 28;
inline constexpr int kGridRowHeight = 26;
inline constexpr int kGridHeadHeight = 28;
inline constexpr int kListRowHeight = 24;
inline constexpr int kSheetRowHeight = 20;
inline constexpr int kChildTitleHeight = 28;
inline constexpr int kRadius = 4;
inline constexpr int kCardRadius = 8;

}  // namespace ovindra::theme
