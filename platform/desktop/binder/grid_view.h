// The list grid of a form: a table view that hands a person's clicks and cursor keys on instead of moving by
// itself, lets the columns be dragged, and gives them widths that fit what they hold until someone drags one.
#pragma once

#include <QTableView>

namespace ovindra::desktop {

class GridView : public QTableView {
  Q_OBJECT

 public:
  explicit GridView(QWidget* parent = nullptr);

  QSize sizeHint() const override;

  /// Gives the columns the widths of their contents, what is left over to the columns of text and the last
  /// one, to all alike where none holds text. Without a header the first column is as wide as captions are.
  void FitColumns();

 signals:
  /// A row of the model, -1 for the header.
  void CellClicked(int row, int column);
  void CellClickedAgain(int row, int column);
  void CellReached(int row, int column);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  int WantedWidth(int column) const;
  bool IsTextColumn(int column) const;

  QPersistentModelIndex pressed_;
  bool is_dragged_ = false;
  bool is_fitting_ = false;
};

}  // namespace ovindra::desktop
