// The dynamic properties by which a form file or a widget's maker says what a widget is for, so that the
// style sheet and the style can show it so. They hold for any widget that the text here names; the value is
// `true` unless told otherwise.
#pragma once

#include <QVariant>
#include <QWidget>

namespace ovindra::theme::role {

/// QPushButton: the next step. Shown filled while it is enabled.
inline constexpr auto kPrimary = "primary";
/// QPushButton with an icon and no text, as beside a date field or between two lists.
inline constexpr auto kIconOnly = "iconOnly";
/// QLabel: a semi-bold heading over a hairline, as a QGroupBox has; without the hairline on a card.
inline constexpr auto kHeading = "heading";
/// QLabel: the name of a field or list. Labels of child windows are muted without it.
inline constexpr auto kMuted = "muted";
/// QLabel on a child window: what it says is content, not the name of a field.
inline constexpr auto kValue = "value";
/// QLabel: the title of a window without a heading, as on the login window.
inline constexpr auto kTitle = "title";
/// QLabel: small text of 8.5 points.
inline constexpr auto kSmall = "small";
/// QFrame that is a child of a form and lies over it (calendar, Paid/Free): bordered, rounded, with a shadow.
inline constexpr auto kCard = "card";
/// QLabel: a short statement in a pill.
inline constexpr auto kChip = "chip";
/// QLabel on the status bar: the state of a lock key, "on" or "off".
inline constexpr auto kLock = "lock";
/// QLabel on the status bar: a panel with a hairline to its left.
inline constexpr auto kPanel = "panel";
/// QWidget: the bar of selectors and buttons above a report sheet.
inline constexpr auto kReportBar = "reportBar";
/// QLineEdit that hides what is typed: the character that is shown instead, `$` when unset.
inline constexpr auto kPasswordCharacter = "passwordCharacter";
/// QAbstractScrollArea that fills its window from edge to edge: square, without a focus ring of its own.
inline constexpr auto kEdgeToEdge = "edgeToEdge";

/// Sets the property and shows the widget anew; a property that the style sheet names is not watched by Qt.
void Set(QWidget& widget, const char* name, const QVariant& value = true);

}  // namespace ovindra::theme::role
