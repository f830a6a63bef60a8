// Puts the program's look on a QApplication: palette, fonts, style and style sheet, light or dark. The
// application owns the style. Changes of the desktop's own colours are followed while the program runs,
// unless light or dark was asked for by name.
#pragma once

#include <QApplication>
#include <QPalette>
#include <QString>

#include "platform/desktop/theme/tokens.h"

namespace ovindra::theme {

/// Which instance of the tokens is shown.
enum class Mode { FollowDesktop, Light, Dark };

/// Dresses the application. Call it once, before the first window is made.
void Apply(QApplication& application, Mode mode = Mode::FollowDesktop);

/// The tokens now shown; light before Apply.
const Tokens& Current();

/// True when text is lighter than its ground, as on a desktop set to dark.
bool IsDark(const QPalette& palette);

/// The palette of the tokens, with a flat and readable group for what is disabled.
QPalette PaletteFrom(const Tokens& tokens);

/// The style sheet with every `@name` replaced by its colour.
QString StyleSheetFrom(const Tokens& tokens);

}  // namespace ovindra::theme
