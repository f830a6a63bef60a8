// How radio buttons and check boxes are laid out and drawn: a sign of 16, the caption behind it, and round
// both a focus ring with the ground of a focused field, for which the place is always kept free. Owns
// nothing.
#pragma once

#include <QPainter>
#include <QRect>
#include <QStyleOption>

namespace ovindra::theme {

/// The ring and ground of the option with the focus; nothing without it.
void DrawOptionFocus(QPainter& painter, const QStyleOptionButton& option);

void DrawRadioSign(QPainter& painter, const QStyleOption& option);
void DrawCheckSign(QPainter& painter, const QStyleOption& option);

/// Places of sign and caption in the option.
QRect OptionSign(const QStyleOption& option);
QRect OptionCaption(const QStyleOption& option);

/// The size of an option whose caption needs `contents`.
QSize OptionSize(const QSize& contents);

}  // namespace ovindra::theme
