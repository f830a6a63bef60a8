// How the title bars of child windows are laid out and drawn, and the three buttons that a maximised child
// window puts on the menu bar. Owns nothing.
#pragma once

#include <QPainter>
#include <QRect>
#include <QStyleOption>

namespace ovindra::theme {

/// The bar with rounded upper corners, the title and the buttons of the option's flags.
void DrawTitleBar(QPainter& painter, const QStyleOptionTitleBar& option);

/// The frame of a child window and the ground below its title bar.
void DrawChildFrame(QPainter& painter, const QStyleOption& option);

/// The part's place on the bar; empty where the window has no such button.
QRect TitleBarPart(const QStyleOptionTitleBar& option, QStyle::SubControl part);

/// The buttons of a maximised child window, their places and the size of them all.
void DrawMdiControls(QPainter& painter, const QStyleOptionComplex& option);
QRect MdiControl(const QStyleOptionComplex& option, QStyle::SubControl part);
QSize MdiControlsSize(const QStyleOptionComplex& option);

}  // namespace ovindra::theme
