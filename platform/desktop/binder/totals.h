// Totals: a row of widgets that stand below the columns of a grid. In the form's file the row is a widget
// without a layout, with the property `under` that names the grid; its children are taken in the order of the
// file, one for each column. They follow the columns when those change their widths or are scrolled.
#pragma once

#include <QWidget>

namespace ovindra::desktop {

/// Lets every row of totals of the form follow its grid.
void PlaceTotals(QWidget& form);

}  // namespace ovindra::desktop
