#include "platform/desktop/paper/print_sheet.h"

#include <QDateTime>
#include <QPainter>
#include <algorithm>
#include <cstdlib>
#include <memory>

#include "base/date.h"
#include "base/runtime_error.h"
#include "platform/desktop/binder/text.h"
#include "platform/desktop/paper/column_letters.h"
#include "platform/desktop/paper/page_text.h"
#include "platform/desktop/paper/sheet_pages.h"
#include "platform/desktop/paper/sheet_painter.h"

namespace ovindra::desktop {
namespace {

// In 96ths of an inch, as all lengths of the sheet.
constexpr double kHeadingWidth = 40;
constexpr double kHeadingHeight = 20;
constexpr double kPageTextHeight = 24;
constexpr double kLine = 0.75;
constexpr double kPixelsPerInch = 96;
constexpr double kWidestLetter = 1.2;

const QColor kGridLine(0x80, 0x80, 0x80);

/// The last row and column that leave ink on the paper: a text or a line, not a look alone.
struct Inked {
  int rows = 0;
  int columns = 0;
};

Inked FindInk(const Workbook& workbook) {
  Inked inked;
  const int last_row = workbook.last_row();
  const int last_column = workbook.last_column();
  for (int row = 1; row <= last_row; ++row) {
    for (int column = last_column; column >= 1; --column) {
      if (workbook.Text(row, column).empty() && !workbook.Style(row, column).border.OnAnySide()) continue;
      inked.rows = row;
      inked.columns = std::max(inked.columns, column);
      break;
    }
  }
  for (const CellRange& merge : workbook.merges()) {
    inked.rows = std::max(inked.rows, merge.last_row);
    inked.columns = std::max(inked.columns, merge.last_column);
  }
  return inked;
}

/// Prints one sheet: reckons once, then paints page after page.
class Printing {
 public:
  Printing(const Workbook& workbook, QPrinter& printer)
      : workbook_(workbook),
        setup_(workbook.page_setup),
        printer_(printer),
        pixel_(printer.logicalDpiX() / kPixelsPerInch),
        measures_(workbook, 1, printer) {
    MeasurePaper();
    LayOutSheet();
  }

  void Run();

 private:
  void MeasurePaper();
  void LayOutSheet();
  double TextWidth(const Inked& inked);
  void PaintPage(QPainter& painter, const SheetPage& page, int number);
  void PaintHeadings(QPainter& painter, const SheetPart& part, double left, double top) const;
  void PaintPageText(QPainter& painter, const QRectF& band, const std::string& codes, int number) const;
  std::string Footer() const;

  const Workbook& workbook_;
  const PageSetup& setup_;
  QPrinter& printer_;
  double pixel_;
  SheetFonts measures_;
  QRectF paper_;
  QRectF header_;
  QRectF footer_;
  QRectF room_;
  SheetPages laid_out_;
  std::unique_ptr<SheetFonts> fonts_;
};

void Printing::MeasurePaper() {
  QPageLayout layout = printer_.pageLayout();
  layout.setUnits(QPageLayout::Point);
  const double inch = printer_.logicalDpiX();
  const double point = inch / 72;
  paper_ = QRectF(QPointF(0, 0), layout.fullRect().size() * point);
  // No printer reaches the very edge, and a report that asks for no margin is not to lose its letters there.
  const QMarginsF unprintable = layout.minimumMargins() * point;
  const double left = std::max(setup_.left_margin * inch, unprintable.left());
  const double right = std::max(setup_.right_margin * inch, unprintable.right());
  const double head = setup_.header.empty() ? 0 : kPageTextHeight * pixel_;
  const double foot = kPageTextHeight * pixel_;
  const double top = std::max(setup_.top_margin * inch, unprintable.top() + head);
  const double bottom = std::max(setup_.bottom_margin * inch, unprintable.bottom() + foot);
  room_ = paper_.adjusted(left, top, -right, -bottom);
  header_ = QRectF(room_.left(), unprintable.top(), room_.width(), top - unprintable.top());
  footer_ = QRectF(room_.left(), room_.bottom(), room_.width(), bottom - unprintable.bottom());
}

/// The right end of the texts that run beyond the last column.
double Printing::TextWidth(const Inked& inked) {
  std::vector<double> edges{0};
  for (int column = 1; column <= inked.columns; ++column)
    edges.push_back(edges.back() + measures_.ColumnExtent(column));
  double widest = edges.back();
  for (int row = 1; row <= inked.rows; ++row) {
    int column = inked.columns;
    while (column >= 1 && workbook_.Text(row, column).empty()) --column;
    if (column < 1 || workbook_.Style(row, column).alignment.wrapped) continue;
    const std::string_view text = workbook_.Text(row, column);
    const double left = edges[static_cast<std::size_t>(column) - 1];
    // Measuring takes its time; most texts can't reach that far.
    const double letter =
        workbook_.Style(row, column).font.size * kWidestLetter * printer_.logicalDpiX() / 72;
    if (left + letter * static_cast<double>(text.size()) <= widest) continue;
    const HorizontalAlign align = workbook_.Style(row, column).alignment.horizontal;
    if (align == HorizontalAlign::kRight || align == HorizontalAlign::kCentre) continue;
    widest = std::max(widest, left + measures_.WidthOf(workbook_.StyleIdAt(row, column), ToQt(text)) +
                                  kHeadingHeight / 2 * pixel_);
  }
  return widest;
}

void Printing::LayOutSheet() {
  const Inked inked = FindInk(workbook_);
  SheetSize size;
  size.last_row = inked.rows;
  size.last_column = inked.columns;
  size.row_height = [this](int row) { return measures_.RowExtent(row); };
  size.column_width = [this](int column) { return measures_.ColumnExtent(column); };
  size.text_width = TextWidth(inked);
  if (setup_.headings) {
    size.heading_width = kHeadingWidth * pixel_;
    size.heading_height = kHeadingHeight * pixel_;
  }
  size.repeated_rows = setup_.repeated_rows;
  laid_out_ = LayOut(size, room_.width(), room_.height());
  fonts_ = std::make_unique<SheetFonts>(workbook_, laid_out_.scale, printer_);
}

void Printing::Run() {
  QPainter painter;
  if (!painter.begin(&printer_)) throw PrinterError();
  const int pages = static_cast<int>(laid_out_.pages.size());
  const int first = std::max(printer_.fromPage(), 1);
  const int last = printer_.toPage() == 0 ? pages : std::min(printer_.toPage(), pages);
  const int copies = printer_.supportsMultipleCopies() ? 1 : std::max(printer_.copyCount(), 1);
  bool is_first = true;
  for (int copy = 0; copy < copies; ++copy) {
    for (int number = first; number <= last; ++number) {
      if (!std::exchange(is_first, false) && !printer_.newPage()) throw PrinterError();
      PaintPage(painter, laid_out_.pages[static_cast<std::size_t>(number) - 1], number);
    }
  }
  if (!painter.end()) throw PrinterError();
}

void Printing::PaintPage(QPainter& painter, const SheetPage& page, int number) {
  const double heading_width = setup_.headings ? kHeadingWidth * fonts_->unit() : 0;
  const double heading_height = setup_.headings ? kHeadingHeight * fonts_->unit() : 0;
  SheetPart part;
  part.first_column = page.first_column;
  part.last_column = page.last_column;
  double width = heading_width;
  for (int column = page.first_column; column <= page.last_column; ++column)
    width += fonts_->ColumnExtent(column);
  double left = room_.left();
  if (setup_.centred) left += std::max(room_.width() - width, 0.0) / 2;
  double edge = left + heading_width;
  for (int column = 1; column < page.first_column; ++column) edge -= fonts_->ColumnExtent(column);
  part.edges.push_back(edge);
  // Beyond the last column a text may go on, as it does on the screen.
  const bool is_last = page.last_column == laid_out_.pages.back().last_column;
  for (int column = 1; column <= page.last_column; ++column)
    part.edges.push_back(edge += fonts_->ColumnExtent(column));
  if (is_last && edge < room_.right()) part.edges.push_back(room_.right());
  double top = room_.top() + heading_height;
  const auto add_rows = [&](int first, int last) {
    for (int row = first; row <= last; ++row) {
      part.rows.push_back({row, top, fonts_->RowExtent(row)});
      top += part.rows.back().height;
    }
  };
  if (page.repeats_rows) add_rows(setup_.repeated_rows->first, setup_.repeated_rows->second);
  add_rows(page.first_row, page.last_row);
  painter.save();
  painter.setClipRect(room_.adjusted(-kLine * pixel_, -kLine * pixel_, kLine * pixel_, kLine * pixel_));
  SheetPainter(painter, workbook_, *fonts_, kLine * pixel_, setup_.grid_lines ? kGridLine : QColor())
      .Paint(part);
  if (setup_.headings) PaintHeadings(painter, part, left, room_.top());
  painter.restore();
  PaintPageText(painter, header_, setup_.header, number);
  PaintPageText(painter, footer_, Footer(), number);
}

void Printing::PaintHeadings(QPainter& painter, const SheetPart& part, double left, double top) const {
  painter.setFont(QFont(ScreenFont(CellFont{}, laid_out_.scale), &printer_));
  painter.setPen(QPen(kGridLine, kLine * pixel_));
  const double height = kHeadingHeight * fonts_->unit();
  const double width = kHeadingWidth * fonts_->unit();
  const auto paint = [&](const QRectF& box, const QString& text) {
    painter.drawRect(box);
    painter.drawText(box, Qt::AlignCenter, text);
  };
  for (int column = part.first_column; column <= part.last_column; ++column) {
    paint({part.LeftOf(column), top, part.RightOf(column) - part.LeftOf(column), height},
          ColumnLetters(column));
  }
  for (const SheetPart::Row& row : part.rows)
    paint({left, row.top, width, row.height}, QString::number(row.number));
}

std::string Printing::Footer() const {
  if (!setup_.footer.empty() || laid_out_.pages.size() < 2) return setup_.footer;
  return "&CPage &P of &N";
}

void Printing::PaintPageText(QPainter& painter, const QRectF& band, const std::string& codes,
                             int number) const {
  if (codes.empty()) return;
  const QDateTime now = QDateTime::currentDateTime();
  const PageText text =
      ReadPageText(codes, {number, static_cast<int>(laid_out_.pages.size()), ToQt(workbook_.sheet_name()),
                           ToQt(ShortDate(FromQt(now.date()))), now.time().toString("hh:mm")});
  painter.setFont(QFont(ScreenFont(CellFont{}, 1), &printer_));
  painter.setPen(Qt::black);
  painter.drawText(band, Qt::AlignLeft | Qt::AlignVCenter, text.left);
  painter.drawText(band, Qt::AlignHCenter | Qt::AlignVCenter, text.centre);
  painter.drawText(band, Qt::AlignRight | Qt::AlignVCenter, text.right);
}

}  // namespace

void PrintSheet(const Workbook& workbook, QPrinter& printer) {
  printer.setFullPage(true);
  Printing(workbook, printer).Run();
}

}  // namespace ovindra::desktop
