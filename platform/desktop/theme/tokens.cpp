#include "platform/desktop/theme/tokens.h"

namespace ovindra::theme {

const Tokens& LightTokens() {
  static const Tokens tokens{.window = 0xF1F5F5,
                             .surface = 0xFFFFFF,
                             .card = 0xFFFFFF,
                             .button = 0xFFFFFF,
                             .status = 0xE6EEEF,
                             .base = 0xFFFFFF,
                             .alt = 0xF4F8F8,
                             .text = 0x16262B,
                             .muted = 0x4A5D64,
                             .line = 0x768A91,
                             .hair = 0xD3DDDF,
                             .header = 0xE6EEEF,
                             .fill = 0x0F6372,
                             .on_fill = 0xFFFFFF,
                             .soft = 0xD5E8EB,
                             .heading = 0x0F6372,
                             .accent = 0x0F6372,
                             .on_accent = 0xFFFFFF,
                             .focus = 0x0F6372,
                             .focus_fill = 0xFFFBE8,
                             .ring_on = 0xFFC94D,
                             .dis_fill = 0xE8EEEF,
                             .dis_text = 0x5A6C73,
                             .dis_line = 0xBECBCE,
                             .title_on = 0x0F5361,
                             .on_title_on = 0xFFFFFF,
                             .title_off = 0xDCE6E8,
                             .on_title_off = 0x4A5D64,
                             .err = 0xB3261E,
                             .warn = 0x8A5A00,
                             .dark = false};
  return tokens;
}

const Tokens& DarkTokens() {
  static const Tokens tokens{.window = 0x1A2428,
                             .surface = 0x212D31,
                             .card = 0x243137,
                             .button = 0x27353A,
                             .status = 0x141D20,
                             .base = 0x11191C,
                             .alt = 0x172024,
                             .text = 0xE4ECEE,
                             .muted = 0xA7B7BD,
                             .line = 0x708891,
                             .hair = 0x33434A,
                             .header = 0x243137,
                             .fill = 0x1D7786,
                             .on_fill = 0xFFFFFF,
                             .soft = 0x24454D,
                             .heading = 0x7CCBD6,
                             .accent = 0x58BAC8,
                             .on_accent = 0x11191C,
                             .focus = 0x6CC9D6,
                             .focus_fill = 0x26251A,
                             .ring_on = 0xFFD166,
                             .dis_fill = 0x1F2A2F,
                             .dis_text = 0x93A4AA,
                             .dis_line = 0x3E5058,
                             .title_on = 0x0E4753,
                             .on_title_on = 0xFFFFFF,
                             .title_off = 0x27343A,
                             .on_title_off = 0xA7B7BD,
                             .err = 0xFF8A80,
                             .warn = 0xF0B95A,
                             .dark = true};
  return tokens;
}

}  // namespace ovindra::theme
