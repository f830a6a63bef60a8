// A sheet on the screen, as it will be printed: paper that stays white in the dark, lines of its own, texts
// that run over empty neighbours, row numbers and column letters. A person selects, copies, looks for a text
// and enlarges; nothing of that touches the workbook. It is shown once a model is set.
#pragma once

#include <QTableView>
#include <memory>

#include "platform/desktop/binder/sheet_find_bar.h"
#include "platform/desktop/binder/sheet_model.h"
#include "platform/desktop/binder/sheet_search.h"
#include "platform/desktop/paper/sheet_painter.h"

namespace ovindra::desktop {

class SheetView : public QTableView {
  Q_OBJECT

 public:
  explicit SheetView(QWidget* parent = nullptr);
  ~SheetView() override;

  /// The model is the caller's and outlives the view's showing.
  void SetModel(SheetModel& model);

  /// The workbook was changed: shows it from its first cell on.
  void ShowWorkbook();

  /// The width of a column as it stands on the screen, in the sheet's own unit; exactly the workbook's unless
  /// a person has dragged it.
  int ShownWidth(int column) const;

  double zoom() const { return zoom_; }
  void SetZoom(double zoom);

  /// The bar that looks for a text; null until it was first asked for.
  SheetFindBar* find_bar() const { return find_bar_; }
  void OpenFindBar();
  void CloseFindBar();

  QSize sizeHint() const override { return {1340, 430}; }
  void keyboardSearch(const QString& /*text*/) override {}

 signals:
  void FindBarOpened();
  void FindBarClosed();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

 private:
  void AddShortcuts();
  void SetSizes();
  SheetPart PartIn(const QRect& rect) const;
  void PaintSelection(QPainter& painter) const;
  QRect RectOf(const QItemSelectionRange& range) const;
  void Copy() const;
  void Look(SearchFrom from);
  void PlaceFindBar();
  double Unit() const;

  SheetModel* sheet_ = nullptr;
  std::unique_ptr<SheetFonts> fonts_;
  SheetFindBar* find_bar_ = nullptr;
  double zoom_ = 1;
  int turned_ = 0;
};

}  // namespace ovindra::desktop
