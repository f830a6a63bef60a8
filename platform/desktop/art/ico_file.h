// Writes pictures as one Windows icon file, since Qt reads such files everywhere but writes them only where a
// plugin for it is installed. Each picture is stored as PNG, which the format allows since Windows Vista: a
// directory of six bytes, sixteen bytes per picture, then the PNG files one after another, all numbers
// little-endian.
#pragma once

#include <QIODevice>
#include <QImage>
#include <QList>

namespace ovindra::art {

/// Writes the pictures, each at most 256 pixels wide and high, to the open device. False when the device
/// takes less than all of it.
bool WriteIco(QIODevice& device, const QList<QImage>& pictures);

}  // namespace ovindra::art
