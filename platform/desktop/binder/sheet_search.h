// Looking for a text in a sheet, and what a copied block is as text. Pure functions; nothing is owned.
#pragma once

#include <QString>
#include <optional>

#include "base/workbook/workbook.h"

namespace ovindra::desktop {

/// A cell, counted from 1.
struct SheetCell {
  int row = 1;
  int column = 1;

  bool operator==(const SheetCell&) const = default;
};

enum class SearchFrom { kHere, kNext, kPrevious };

/// The next cell, row by row and around the end, that contains the text in whatever case; nothing where none
/// does.
std::optional<SheetCell> FindInSheet(const Workbook& workbook, const QString& text, SheetCell start,
                                     SearchFrom from);

/// The block as spreadsheets exchange it: a tab between cells, a line for a row, quotes around a cell that
/// holds a tab, a line break or a quote.
QString CopiedText(const Workbook& workbook, const CellRange& block);

}  // namespace ovindra::desktop
