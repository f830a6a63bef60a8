// The picture of the start-up window with the places for its labels. In the form's file each label says by
// its property `place` (title, institute, version, credit) where it goes; font and colour come with the
// place.
#pragma once

#include <QWidget>

namespace ovindra::desktop {

class SplashPicture : public QWidget {
 public:
  explicit SplashPicture(QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;
};

}  // namespace ovindra::desktop
