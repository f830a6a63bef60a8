// The panel at the left of the login window: the eye, with the picture of the key, a child of the panel, in
// its iris.
#pragma once

#include <QWidget>

namespace ovindra::desktop {

class LoginPicture : public QWidget {
 public:
  explicit LoginPicture(QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;
};

}  // namespace ovindra::desktop
