// The signs of buttons and message boxes as icons that take their colours from the theme at the moment they
// are painted, so that a change between light and dark needs no new icon. Nothing is owned.
#pragma once

#include <QIcon>

#include "platform/desktop/art/glyphs.h"
#include "platform/desktop/art/message_icons.h"

namespace ovindra::theme {

/// A sign for a button.
QIcon GlyphIcon(art::Glyph glyph);

/// A sign for a message box.
QIcon MessageIcon(art::MessageSign sign);

}  // namespace ovindra::theme
