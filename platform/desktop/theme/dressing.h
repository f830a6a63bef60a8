// What a widget needs beyond drawing to look like one of the program's: a list its delegate, a calendar its
// week, a card its shadow. Done by the style for every widget; grids have settings of their own, which their
// maker asks for.
#pragma once

#include <QListView>
#include <QTableView>
#include <QWidget>

namespace ovindra::theme {

/// The size of a calendar that is a card: columns of 42 and rows of 28.
inline constexpr QSize kCalendarSize{308, 245};

/// Dresses the widget according to its kind and its roles. May be called again, for instance after a change
/// of theme.
void DressWidget(QWidget& widget);

/// A list of records: striped, without lines, selected by whole rows, left by Tab, columns that can be
/// dragged, the last one taking the rest.
void DressGrid(QTableView& grid);

}  // namespace ovindra::theme
