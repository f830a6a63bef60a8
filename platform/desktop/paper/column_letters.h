// The names of a sheet's columns. Nothing is owned.
#pragma once

#include <QString>

namespace ovindra::desktop {

/// "A" for 1, "Z" for 26, "AA" for 27.
inline QString ColumnLetters(int column) {
  constexpr int kLetters = 26;
  QString letters;
  for (; column > 0; column = (column - 1) / kLetters)
    letters.prepend(QChar(u'A' + static_cast<char16_t>((column - 1) % kLetters)));
  return letters;
}

}  // namespace ovindra::desktop
