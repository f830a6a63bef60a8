#include "sheet_desk.h"

#include <QApplication>
#include <QTest>

namespace ovindra::desktop {
namespace {

constexpr Colour kRed = 255;
constexpr Colour kBlue = 0xFF0000;
constexpr Colour kMagenta = 0xFF00FF;
constexpr int kHeadingRow = 5;

}  // namespace

void WriteReport(Workbook& workbook, int rows, int columns) {
  const int last = kHeadingRow + rows;
  workbook.SetText(1, 3, "Lanvik Eye Institute");
  workbook.Restyle({1, 3, 1, 3}, [](CellStyle& style) {
    style.font.size = 15;
    style.font.bold = style.font.underline = true;
    style.font.colour = kRed;
  });
  workbook.SetRowHeight(1, 19.5);
  workbook.SetText(3, 1, "List of children found with eye defects From : 01/04/2016 To :24/05/2016");
  workbook.Restyle({3, 1, 3, 8}, [](CellStyle& style) {
    style.font.bold = style.font.underline = true;
    style.font.colour = kRed;
  });
  for (int column = 1; column <= columns; ++column) {
    workbook.SetText(kHeadingRow, column, "Heading " + std::to_string(column));
    for (int row = kHeadingRow + 1; row <= last; ++row) {
      const bool number = column % 3 == 1;
      workbook.SetText(row, column, number ? std::to_string(row * column) : "CHILD " + std::to_string(row));
    }
  }
  workbook.Restyle({kHeadingRow, 1, last, columns}, [](CellStyle& style) {
    style.font.colour = kBlue;
    style.border = {true, true, true, true, kBlue};
  });
  workbook.Restyle({kHeadingRow, 1, kHeadingRow, columns}, [](CellStyle& style) {
    style.font.bold = true;
    style.font.colour = kMagenta;
    style.alignment.horizontal = HorizontalAlign::kCentre;
  });
}

SheetDesk::SheetDesk()
    : desktop_((UseOffscreenApplication(), office_.services()), ViewSettings{"", Timers::kStandStill}),
      form_(desktop_.machine()) {
  view_ = std::make_unique<FormView>(
      form_, [this](const auto& action) { Do(action); }, ViewSettings{"", Timers::kStandStill});
  view_->Build();
  root().resize(1366, 640);
  root().show();
  QApplication::setActiveWindow(&root());
  view_->ShowChanges();
  QApplication::processEvents();
}

SheetDesk::~SheetDesk() = default;

SheetView& SheetDesk::sheet() {
  return dynamic_cast<SheetView&>(WidgetOf(form_.F1Book1));
}

void SheetDesk::Do(const std::function<void()>& action) {
  action();
  view_->ShowChanges();
}

void SheetDesk::Key(int key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
}

void SheetDesk::Type(const QString& text) {
  QTest::keyClicks(QApplication::focusWidget(), text);
}

}  // namespace ovindra::desktop
