// The header and footer of a printed page, from the codes of spreadsheets. Nothing is owned.
#pragma once

#include <QString>
#include <string_view>

namespace ovindra::desktop {

/// What stands at the left, in the middle and at the right.
struct PageText {
  QString left;
  QString centre;
  QString right;
};

/// What the codes are filled from.
struct PageFacts {
  int page = 1;
  int pages = 1;
  QString sheet;
  QString date;
  QString time;
};

/// Reads &L, &C and &R (a text before any of them stands in the middle), &P, &N, &A for the sheet's name, &D,
/// &T and && for one ampersand. Any other code is left out with its letter.
PageText ReadPageText(std::string_view codes, const PageFacts& facts);

}  // namespace ovindra::desktop
