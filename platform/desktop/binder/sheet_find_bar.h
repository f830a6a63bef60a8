// The small bar over the upper right corner of a sheet that looks for a text in it: the text, previous, next,
// close. It says what is looked for and shows whether it was found; the sheet does the looking.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QLineEdit>

namespace ovindra::desktop {

class SheetFindBar : public QFrame {
  Q_OBJECT

 public:
  explicit SheetFindBar(QWidget* parent);

  QLineEdit& edit() const { return *edit_; }
  void ShowFound(bool found);

 signals:
  void TextChanged(const QString& text);
  void NextAsked();
  void PreviousAsked();
  void CloseAsked();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QLineEdit* edit_;
  QLabel* nothing_;
};

}  // namespace ovindra::desktop
