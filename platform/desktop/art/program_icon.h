// The program's sign: a white eye on petrol whose iris is the open ring of a sight-testing chart. Nothing is
// owned.
#pragma once

#include <QIcon>
#include <QPainter>
#include <QRectF>

namespace ovindra::art {

/// Draws the sign into the rectangle's largest square.
void DrawProgramIcon(QPainter& painter, const QRectF& rect);

/// The sign in the sizes that desktops ask for, 16 to 256. Needs a QGuiApplication.
QIcon ProgramIcon();

}  // namespace ovindra::art
