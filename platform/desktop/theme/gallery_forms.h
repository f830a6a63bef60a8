// The forms that the gallery shows: one of each way to compose a window, holding every kind of widget. The
// caller owns what is made.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QString>
#include <QWidget>

namespace ovindra::theme {

/// A label in the role `what`.
QLabel* Label(const QString& text, const char* what);

/// Groups of fields at the left, lists at the right; named widgets: `focused`, `typed`.
QWidget* EntryForm();

/// A master's few fields, off, and its list.
QWidget* MasterForm();

/// A bar over a sheet from edge to edge.
QWidget* ReportForm();

/// Puts a calendar and a small question over the form; the question's first option has the focus.
void AddCards(QWidget& form);

/// The login window; named widget: `password`.
QDialog* LoginWindow();

}  // namespace ovindra::theme
