// How wide and how high a text comes out in a cell, without a screen or a printer at hand: from the advance
// widths of the Times faces (the Core 14 font metrics that Adobe publishes as AFM files).
#pragma once

#include <string_view>

#include "base/workbook/workbook.h"

namespace ovindra {

/// The width of one line of text in points.
double TextWidth(std::string_view text, const CellFont& font);

/// Gives each of the range's columns the width that its widest text there needs; one without text keeps its
/// width.
void FitColumnWidths(Workbook& workbook, const CellRange& range);

/// Gives each of the range's rows the height that its highest text there needs, wrapped texts by the width of
/// their column.
void FitRowHeights(Workbook& workbook, const CellRange& range);

}  // namespace ovindra
